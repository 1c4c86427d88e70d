#include "grids/LayerTable.h"

#include "grids/frame/ColorStyles.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kScrColor = columnOf<LayerTable>("ScrColor");
constexpr int kPrnColor = columnOf<LayerTable>("PrnColor");

} // namespace

LayerTable::Names LayerTable::namesOf(ZolWDoc::ZOLW_Doc &doc)
{
    using namespace ZolWDoc;
    return {{doc.lineTypes().readAll(), &tPenStyle::iPenStyleId, &tPenStyle::Name},
            {doc.textTypes().readAll(), &tTxd::TxdId, &tTxd::Name}};
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
