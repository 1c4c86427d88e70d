#pragma once

#include "document/SqliteDoc.h"

#include <initializer_list>

namespace tests {

/// A document in memory that holds these layers and no others, in two groups: the system group with all of
/// them and "Utak" with the even numbers.
inline std::unique_ptr<refhost::SqliteDoc> layerDoc(std::initializer_list<ZolWDoc::tLay> layers)
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
