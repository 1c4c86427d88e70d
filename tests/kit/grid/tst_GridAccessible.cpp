#include "kit/grid/SampleRows.h"
#include "support/Registry.h"

#include "kit/grid/FilterLine.h"
#include "kit/grid/Grid.h"
#include "kit/grid/GroupBox.h"

using namespace tests;

class tst_GridAccessible : public QObject {
    Q_OBJECT
private:
    static QAccessibleInterface &of(QObject *thing) { return *QAccessible::queryAccessibleInterface(thing); }
    static QString nameOf(QObject *thing) { return of(thing).text(QAccessible::Name); }
private slots:
    void tableCardsAndBandsSayWhatTheyShow()
    {
        for (const GridView view : {GridView::Table, GridView::Card, GridView::CardMin}) {
            SampleRows rows({"alma", "körte"});
            rows.all[0].color = 7, rows.all[1].visible = false;
            Grid grid;
            grid.setTitle("Rétegek");
            grid.setSource(&rows);
            grid.setGroupLevels(std::vector<SortKey>{{SampleRows::Visible, SortOrder::Descending}});
            grid.toggleBandOf(1);
            grid.setView(view);
            grid.show();
            QCOMPARE(nameOf(grid.activeView()), "Rétegek");
            auto &table = *of(grid.activeView()).tableInterface();
            QCOMPARE(table.rowCount(), 3);
            const std::tuple<int, int, const char *> cells[] = {
                {0, 0, "csoport Látható: igen, 1 sor, kibontva"},
                {2, 0, "csoport Látható: nem, 1 sor, összecsukva"},
                {1, SampleRows::Name, "alma"},
                {1, SampleRows::Visible, "Látható bekapcsolva"},
                {1, SampleRows::Color, "szín 7"},
                {1, SampleRows::Sample, "kép minta"}};
            for (const auto &[line, column, said] : cells)
                same(said, table.cellAt(line, column)->text(QAccessible::Name), said);
            const auto state = [&](int line, int column) { return table.cellAt(line, column)->state(); };
            QVERIFY(state(0, 0).expanded && !state(0, 0).selectable && state(2, 0).collapsed);
            QVERIFY(state(1, 0).selectable);
            QVERIFY(state(1, SampleRows::Visible).checkable && state(1, SampleRows::Visible).checked);
            QCOMPARE(table.cellAt(1, SampleRows::Name)->text(QAccessible::Description), "Név");
            QCOMPARE(table.cellAt(1, SampleRows::Name)->role(), QAccessible::Cell);
            grid.setCurrentRow(0);
            QVERIFY(state(1, SampleRows::Name).selected);
            grid.setSource(nullptr);
            QCOMPARE(table.rowCount(), 0);
        }
    }
    void headerFilterAndChipsHaveNames()
    {
        SampleRows rows({"alma"});
        rows.cols[0].longCaption = "Réteg sorszáma";
        Grid grid;
        grid.setSource(&rows);
        grid.setGroupLevels(std::vector<SortKey>{{SampleRows::Kind, SortOrder::Descending}});
        grid.setSortKeys(std::vector<SortKey>{{SampleRows::Name}, {SampleRows::Nr, SortOrder::Descending}});
        grid.showColumns(std::vector{0, 1, 3});
        grid.resize(800, 500);
        grid.show();
        auto &table = of(grid.table());
        QCOMPARE(table.child(0)->role(), QAccessible::ColumnHeader);
        QCOMPARE(table.child(0)->text(QAccessible::Name), "Réteg sorszáma");
        QCOMPARE(table.child(0)->text(QAccessible::Description), "csökkenő 2");
        QVERIFY(table.child(2)->state().invisible && !table.child(1)->state().invisible);
        QCOMPARE(table.tableInterface()->cellAt(1, 1)->tableCellInterface()->columnHeaderCells().first(),
                 table.child(1));
        const QPoint at = table.child(1)->rect().center();
        QCOMPARE(table.childAt(at.x(), at.y()), table.child(1));
        QCOMPARE(nameOf(grid.findChild<FilterLine *>()->edit()), "Szűrés (Ctrl+F)");
        QCOMPARE(nameOf(grid.findChild<GroupChip *>()), "csoportosítás: Vonaltípus, csökkenő");
        QCOMPARE(of(grid.findChild<GroupChip *>()).role(), QAccessible::Button);
    }
};

QVDC_TEST(tst_GridAccessible)
#include "tst_GridAccessible.moc"
