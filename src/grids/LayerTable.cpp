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

RowStyles LayerTable::styles(const Record &l)
{
    RowStyles s;
    s.row = l.Visible ? QStringLiteral("OddRow")
                      : QStringLiteral("Grayed"); // "OddRow" marks visible rows, on purpose
    s.cells.insert(kScrColor, colorStyleName(l.ScrColor));
    s.cells.insert(kPrnColor, colorStyleName(l.PrnColor));
    return s;
}

} // namespace QV_DOC_CONTROLS
