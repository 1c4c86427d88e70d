#include "sample/Village.h"

#include "sample/VillageDraft.h"
#include "sample/VillageTables.h"

#include "document/SqliteDoc.h"

#include <limits>

namespace refhost {
namespace {

using namespace ZolWDoc;
using namespace village;

QString utf16(const char16_t *s) { return QString::fromUtf16(s); }

qint16 nearest(const Palette &palette, quint32 rgb)
{
    const auto channel = [](quint32 c, int shift) { return int(c >> shift & 0xFF); };
    int best = 0, least = std::numeric_limits<int>::max();
    for (int i = 1; i < 256; ++i) {      // index 0 is the foreground in many palettes
        int square = 0;
        for (int shift : {0, 8, 16}) {
            const int d = channel(palette[size_t(i)], shift) - channel(rgb, shift);
            square += d * d;
        }
        if (square < least) least = square, best = i;
    }
    return qint16(best);
}

void writePens(SqliteDoc &doc)
{
    const Palette palette = doc.penColors().palette();
    PenColorTable table = doc.penColors().read();
    int pen = 1;
    for (const PenRow &row : pens())
        table.pen(pen++) = {nearest(palette, row.screen), nearest(palette, row.print)};
    table.pen(1).ScrColor = 7;           // white or black, whichever can be seen
    doc.penColors().write(table);
}

/// Stores the rows; the records that a new document brings along take the place of the first ones.
template <class Rec> std::vector<qint16> stored(TableRole<Rec> &role, std::vector<Rec> rows, qint16 Rec::*key)
{
    std::vector<qint16> ids;
    for (const Rec &old : role.readAll()) {
        if (ids.size() == rows.size()) break;
        Rec &row = rows[ids.size()];
        row.*key = old.*key;
        role.update(row);
        ids.push_back(old.*key);
    }
    std::vector<qint16> added;
    role.addAll(std::span<const Rec>(rows).subspan(ids.size()), added);
    ids.insert(ids.end(), added.begin(), added.end());
    return ids;
}

std::vector<qint16> groupsOf(GroupRole &role, std::span<const char16_t *const> names)
{
    std::vector<qint16> ids;
    for (const tGroup &old : role.readAll()) {
        if (ids.size() == names.size()) break;
        role.rename(old.GroupId, utf16(names[ids.size()]));
        ids.push_back(old.GroupId);
    }
    while (ids.size() < names.size()) ids.push_back(role.add(utf16(names[ids.size()])));
    return ids;
}

/// The symbols stand on layers and the layers need line types: layers come first, with what they refer to by
/// number.
struct Tables {
    SqliteDoc &doc;
    Numbers numbers;
    QHash<qint16, qint16> lineTypes;

    void writeSymbols()
    {
        const std::vector<qint16> groups = groupsOf(doc.symbols().groups(), symbolGroups());
        std::vector<tSid> rows;
        for (const SymbolRow &s : symbols()) {
            doc.addGlyph(s.nr, utf16(s.fullName), glyphFrom(s.strokes));
            rows.push_back({.SidId = s.nr,
                            .GroupName = utf16(symbolGroups()[size_t(s.group)]),
                            .GroupId = groups[size_t(s.group)],
                            .Code = s.nr,
                            .ShortName = utf16(s.name),
                            .FullName = utf16(s.fullName),
                            .Align = 24,
                            .Size_mm = s.size,
                            .YwFact = 1,
                            .XwFact = 1,
                            .Facename = doc.ownFontName(),
                            .Weight = s.weight,
                            .CharSet = 238,
                            .ProtXmm = s.size / 2,
                            .ProtYmm = s.size / 2,
                            .ProtType = 1,
                            .DspZoom = 4,
                            .LayId = numbers.layers.value(s.layer, 0),
                            .Type = 1});
        }
        const auto ids = stored<tSid>(doc.symbols(), rows, &tSid::SidId);
        for (size_t i = 0; i < ids.size(); ++i) numbers.symbols.insert(symbols()[i].nr, ids[i]);
    }
    void writeSymbolizations()
    {
        std::vector<tPenStyleSi> rows;
        for (const SymbolizationRow &s : symbolizations())
            rows.push_back({.Nr = s.nr,
                            .Name = utf16(s.name),
                            .SidId = numbers.symbols.value(s.symbol),
                            .Align = qint16(s.placement),
                            .DistrLength = s.length,
                            .Multi = 1,
                            .Rotation = s.rotation,
                            .OffsetY = s.offsetY,
                            .OffsetX = s.offsetX});
        stored<tPenStyleSi>(doc.lineSymbolizations(), rows, &tPenStyleSi::Nr);
    }
    /// Twice: first bare, because layers need them before symbols are there, then with their symbolizations.
    void writeLineTypes(bool withSlots)
    {
        std::vector<tPenStyle> rows;
        for (const LineTypeRow &t : village::lineTypes()) {
            tPenStyle row{.PenStyleNr = t.nr,
                          .Name = utf16(t.name),
                          .Size = t.size,
                          .Pattern = t.pattern,
                          .Slots = {0, 0, 0}};
            if (withSlots) row.Slots[0] = t.slot;
            rows.push_back(row);
        }
        const auto ids = stored<tPenStyle>(doc.lineTypes(), rows, &tPenStyle::iPenStyleId);
        for (size_t i = 0; i < ids.size(); ++i) lineTypes.insert(rows[i].PenStyleNr, ids[i]);
    }
    void writeTextTypes()
    {
        const std::vector<qint16> groups = groupsOf(doc.textTypes().groups(), textGroups());
        std::vector<tTxd> rows;
        for (const TextTypeRow &t : textTypes())
            rows.push_back({.TxdId = t.nr,
                            .GroupName = utf16(textGroups()[size_t(t.group)]),
                            .GroupId = groups[size_t(t.group)],
                            .Name = utf16(t.name),
                            .Weight = t.weight,
                            .Italic = t.italic,
                            .Align = quint8(t.align + 24),
                            .Size_mm = t.size,
                            .YwFact = 1,
                            .XwFact = 1,
                            .RowDist = 1.6f,
                            .CharSet = 238,
                            .Facename = utf16(t.face),
                            .DspZoom = 4,
                            .LayId = numbers.layers.value(t.layer, 0)});
        const auto ids = stored<tTxd>(doc.textTypes(), rows, &tTxd::TxdId);
        for (size_t i = 0; i < ids.size(); ++i) numbers.textTypes.insert(textTypes()[i].nr, ids[i]);
    }
    /// Without their text types at first: those name the layer they stand on.
    void writeLayers()
    {
        std::vector<tLay> rows;
        for (const LayerRow &l : layers())
            rows.push_back(
                {.gNr = l.nr,
                 .Name = utf16(l.name),
                 .Visible = l.visible,
                 .PenStyleId = lineTypes.value(l.lineType),
                 .ScrColor = l.pen,
                 .PrnColor = l.pen,
                 .PenColorId = l.pen,
                 .TxdId = numbers.textTypes.value(l.textType, doc.textTypes().readAll().front().TxdId)});
        const auto ids = stored<tLay>(doc.layers(), rows, &tLay::LayId);
        for (size_t i = 0; i < ids.size(); ++i) numbers.layers.insert(layers()[i].nr, ids[i]);
    }
    void writeLayerGroups()
    {
        std::vector<tGroup> groups = doc.layers().groups();  // the system group stays
        for (const char16_t *name : layerGroups()) groups.push_back({.GroupName = utf16(name)});
        doc.layers().writeGroups(groups);
        groups = doc.layers().groups();
        std::vector<tLayMember> members;
        for (const LayerRow &l : layers()) {
            const auto g =
                std::ranges::find(groups, utf16(layerGroups()[size_t(l.group)]), &tGroup::GroupName);
            members.push_back({g->GroupId, numbers.layers.value(l.nr)});
        }
        doc.layers().writeMembers(members);
    }
};

} // namespace

void makeVillage(SqliteDoc &doc)
{
    inCommand(doc, QStringLiteral("village"), [&doc] {
        doc.setInfo({.scale = 1000});
        writePens(doc);
        Tables tables{doc, {}, {}};
        tables.writeLineTypes(false);
        tables.writeLayers();
        tables.writeTextTypes();
        tables.writeLayers();
        tables.writeLayerGroups();
        tables.writeSymbols();
        tables.writeSymbolizations();
        tables.writeLineTypes(true);
        Draft draft(tables.numbers);
        for (const auto chapter : {draftStreets, draftParcels, draftFields, draftBrook, draftUtilities,
                                   draftRelief, draftControl, draftSheet})
            chapter(draft);
        doc.addElements(draft.elements);
        std::vector<qint16> ids;
        doc.points().addAll(draft.points, ids);
        if (const auto lay = doc.layers().findByNumber(101)) doc.layers().makeCurrent(*lay);
    });
}

} // namespace refhost
