#pragma once

#include "document/SqliteDoc.h"

#include <cstdlib>
#include <vector>

namespace tests {

/// A document in memory that holds these layers and no others, in two groups: the system group with all of
/// them and "Utak" with the even numbers.
inline std::unique_ptr<refhost::SqliteDoc> layerDoc(const std::vector<ZolWDoc::tLay> &layers)
{
    auto doc = refhost::SqliteDoc::create(":memory:");
    ZolWDoc::LayerRole &role = doc->layers();
    const std::vector<ZolWDoc::tLay> before = role.readAll();
    std::vector<ZolWDoc::tLay> stored;
    for (ZolWDoc::tLay l : layers) {
        l.gNr += 20000; // out of the way of the layers that a new document has
        l.LayId = role.add(l);
        stored.push_back(l);
    }
    for (const ZolWDoc::tLay &l : before) role.remove(l.LayId, true);
    for (ZolWDoc::tLay &l : stored) l.gNr -= 20000;
    role.writeAll(stored);

    auto groups = role.groups();
    groups.push_back({-1, "Utak"});
    role.writeGroups(groups);
    const qint16 roads = role.groups().back().GroupId;
    auto members = role.members();
    for (const ZolWDoc::tLay &l : stored)
        if (l.gNr % 2 == 0) members.push_back({roads, l.LayId});
    role.writeMembers(members);
    return doc;
}

/// The same with layers as dump() writes them, an invisible one with '-' before it: "1 A, -2 B".
inline std::unique_ptr<refhost::SqliteDoc> layerDoc(const char *dumped)
{
    std::vector<ZolWDoc::tLay> layers;
    for (const QString &each : QString::fromUtf8(dumped).split(QStringLiteral(", "))) {
        const int number = each.section(u' ', 0, 0).toInt();
        layers.push_back(
            {.gNr = qint16(std::abs(number)), .Name = each.section(u' ', 1), .Visible = number > 0});
    }
    return layerDoc(layers);
}
/// The layers 1 A, like the first of their kind, 2 B, which is invisible, and 3 C with lines by layer.
inline std::unique_ptr<refhost::SqliteDoc> threeLayers()
{
    return layerDoc({{.gNr = 1, .Name = QStringLiteral("A"), .PenStyleId = 1, .TxdId = 1},
                     {.gNr = 2, .Name = QStringLiteral("B"), .Visible = false},
                     {.gNr = 3, .Name = QStringLiteral("C"), .ElByLayer = true}});
}
/// The layers 1 to 4 named A to D, and a third group without any.
inline std::unique_ptr<refhost::SqliteDoc> fourLayers()
{
    auto doc = layerDoc("1 A, 2 B, 3 C, 4 D");
    auto groups = doc->layers().groups();
    groups.push_back({-1, QStringLiteral("Üres")});
    doc->layers().writeGroups(groups);
    return doc;
}
inline constexpr char kFourLayers[] = "RENDSZER: 1 2 3 4 | Utak: 2 4 | Üres:"; ///< their groups

/// "number name" of every layer, in table order.
inline QString dump(ZolWDoc::ZOLW_Doc &doc)
{
    QStringList rows;
    for (const ZolWDoc::tLay &l : doc.layers().readAll()) rows << QString::number(l.gNr) + u' ' + l.Name;
    return rows.join(", ");
}

/// Every layer group with the numbers of its layers: "RENDSZER: 1 2 | Utak: 2".
inline QString dumpGroups(ZolWDoc::ZOLW_Doc &doc)
{
    const auto members = doc.layers().members();
    QStringList out;
    for (const ZolWDoc::tGroup &g : doc.layers().groups()) {
        QString line = g.GroupName + u':';
        for (const ZolWDoc::tLay &l : doc.layers().readAll())
            for (auto n = std::ranges::count(members, ZolWDoc::tLayMember{g.GroupId, l.LayId}); n > 0; --n)
                line += u' ' + QString::number(l.gNr);
        out << line;
    }
    return out.join(" | ");
}

} // namespace tests
