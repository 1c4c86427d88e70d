#include "facade/services/Language.h"
#include "grids/frame/FindInColumn.h"
#include "grids/frame/GridLayouts.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/grid/Grid.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/SampleRows.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

using namespace QV_DOC_CONTROLS;

constexpr LayoutName kLayout{"jsTest"};

class tst_GridLayouts : public QObject {
    Q_OBJECT
private slots:
    void aLayoutBelongsToItsLanguage()
    {
        setLanguage(Hungarian, {});
        tests::SampleRows rows({"alma", "körte"});
        Grid builtIn, grid;
        builtIn.setSource(&rows);
        grid.setSource(&rows);
        const GridState before = builtIn.state();
        QVERIFY(!loadGridLayout(builtIn, kLayout) && !builtIn.setState({{{"foreign"}}, {}, {}, 0}));
        QCOMPARE(builtIn.state(), before);

        grid.setView(GridView::Card);
        grid.showColumns(std::vector{3, 1});
        grid.findChild<GridTable *>()->header()->resizeSection(1, 123);
        grid.setSortKeys(std::vector{SortKey{1, SortOrder::Descending}});
        grid.setGroupLevels(std::vector{SortKey{0}});
        saveGridLayout(grid, kLayout);
        setLanguage(English, {});
        QVERIFY(!loadGridLayout(builtIn, kLayout));
        setLanguage(Hungarian, {});
        QVERIFY(loadGridLayout(builtIn, kLayout));
        QCOMPARE(builtIn.state(), grid.state());
        QCOMPARE(builtIn.shownColumns(), (std::vector{3, 1}));
        QVERIFY(builtIn.state() != before);
    }
    void aSearchGivenUpGoesNowhere()
    {
        tests::SampleRows rows({"alma", "körte"});
        Grid grid;
        grid.setSource(&rows);
        grid.setCurrentRow(0);
        tests::ScriptedPrompts user({{"text", "Keresés", "A keresett érték:|alma", {}}});
        findInColumn(grid, 1, ErrorRelay());
        QCOMPARE(grid.currentRow(), 0);
    }
};
QVDC_TEST(tst_GridLayouts)
#include "tst_GridLayouts.moc"
