#include "grids/LayerTable.h"

#include "grids/frame/ColorStyles.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr int columnOf(std::string_view key)
{
    int c = 0;
    while (LayerTable::columns[c].key != key) ++c; // an unknown key does not compile
    return c;
}
constexpr int kScrColor = columnOf("ScrColor");
constexpr int kPrnColor = columnOf("PrnColor");

QString nameOr(const QHash<qint16, QString> &names, qint16 id)
{
    const auto found = names.constFind(id);
    return found == names.constEnd() ? QString::number(id) : *found;
}

} // namespace

QString lineTypeName(const ZolWDoc::tLay &l, const LayerNames &n)
{
    return nameOr(n.lineTypeOf, l.PenStyleId);
}
QString textTypeName(const ZolWDoc::tLay &l, const LayerNames &n) { return nameOr(n.textTypeOf, l.TxdId); }

LayerTable::Names LayerTable::namesOf(ZolWDoc::ZOLW_Doc &doc)
{
    Names n;
    for (const ZolWDoc::tPenStyle &s : doc.lineTypes().readAll()) {
        n.lineTypes.push_back({QVariant::fromValue(s.iPenStyleId), s.Name});
        n.lineTypeOf.insert(s.iPenStyleId, s.Name);
    }
    for (const ZolWDoc::tTxd &t : doc.textTypes().readAll()) {
        n.textTypes.push_back({QVariant::fromValue(t.TxdId), t.Name});
        n.textTypeOf.insert(t.TxdId, t.Name);
    }
    return n;
}

Paper LayerTable::paper()
{
    constexpr std::pair<int, Text> kCaptions[] = { // from 1; the others stand on paper without a caption
        {1, {3224, u"Ssz"}},         {2, {3299, u"Rétegnév"}}, {3, {3311, u"Ki/Be"}},
        {4, {3305, u"Vonaltípus"}},  {7, {3310, u"Színtoll"}}, {8, {15, u"Felirattípus"}},
    };
    Paper paper{{txt(Text{3283, u"Rétegek"}), {}, txt(Text{3429, u" oldal"}), false}, {}};
    for (size_t c = 0; c < std::size(columns); ++c) paper.captions << QString();
    for (const auto &[entry, caption] : kCaptions) paper.captions[entry - 1] = txt(caption);
    return paper;
}

RowStyles LayerTable::styles(const Record &l)
{
    RowStyles s;
    s.row = l.Visible ? QStringLiteral("OddRow")
                      : QStringLiteral("Grayed"); // "OddRow" marks visible rows, on purpose
    // The pen colour cell is never empty here, so the colour cells always wear their pens' styles.
    s.cells.insert(kScrColor, colorStyleName(l.ScrColor));
    s.cells.insert(kPrnColor, colorStyleName(l.PrnColor));
    return s;
}

} // namespace QV_DOC_CONTROLS
