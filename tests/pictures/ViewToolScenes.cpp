#include "pictures/Scene.h"

#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Text.h"
#include "kit/grid/Grid.h"
#include "kit/grid/SampleRows.h"

using namespace QV_DOC_CONTROLS;

namespace {

struct Names final : EntrySource {
    QStringList entries() const override { return {txt(Text{3299, u"Rétegnév"}), "Telekhatár"}; }
};

/// A dialog over a grid that is sorted and grouped by two of its columns.
std::function<void()> over(void (*open)(Grid &))
{
    return [open] {
        const Text captions[] = {{3411, u"Sorszám"}, {3299, u"Rétegnév"}, {3307, u"Látható"},
                                 {3305, u"Vonaltípus"}, {3306, u"Láthatóság"}};
        tests::SampleRows rows;
        rows.cols.resize(std::size(captions));
        for (size_t c = 0; c < rows.cols.size(); ++c) rows.cols[c].caption = txt(captions[c]);
        Grid grid;
        grid.setSource(&rows);
        grid.setSortKeys(std::vector<SortKey>{{3, SortOrder::Descending}, {1}});
        grid.setGroupLevels(grid.sortKeys());
        open(grid);
    };
}

} // namespace

std::vector<tests::Scene> tests::viewToolScenes()
{
    static bool confirmed = false;
    static qint32 index = 0;
    return {
        {"sort", over([](Grid &grid) { frmSort().SortGrid(grid); })},
        {"group", over([](Grid &grid) { frmGroupBy().GroupGrid(grid); })},
        {"fields", over([](Grid &grid) { frmShowfields().ShowFields(grid, confirmed); })},
        {"list", [] { frmChooseList().getIndex(Names(), index); }},
    };
}
