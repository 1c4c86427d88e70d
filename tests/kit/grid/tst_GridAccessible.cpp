#include "kit/grid/SampleRows.h"
#include "support/Registry.h"

#include "kit/grid/FilterLine.h"
#include "kit/grid/Grid.h"
#include "kit/grid/GroupBox.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QAbstractItemView>

using namespace tests;

class tst_GridAccessible : public QObject {
    Q_OBJECT
private slots:
    void tableCardsAndBandsSayWhatTheyShow_data();
    void tableCardsAndBandsSayWhatTheyShow();
    void headerFilterAndChipsHaveNames();
};

void tst_GridAccessible::tableCardsAndBandsSayWhatTheyShow_data()
{
    QTest::addColumn<int>("view");
    QTest::newRow("table") << 0;
    QTest::newRow("cards") << 1;
    QTest::newRow("compact cards") << 2;
}

void tst_GridAccessible::tableCardsAndBandsSayWhatTheyShow()
{
    QFETCH(int, view);
    SampleRows rows({"alma", "körte"});
    rows.all[0].color = 7, rows.all[1].visible = false;
    Grid grid;
    grid.setTitle("Rétegek");
    grid.setSource(&rows);
    grid.setAllowEdit(true);
    grid.setGroupLevels(std::vector<SortKey>{{SampleRows::Visible, SortOrder::Descending}});
    grid.toggleBandOf(1);
    grid.setView(GridView(view));
    grid.resize(800, 500);
    grid.show();

    QAccessibleInterface *const table = QAccessible::queryAccessibleInterface(grid.activeView());
    QVERIFY(table && table->tableInterface());
    QCOMPARE(table->text(QAccessible::Name), "Rétegek");
    QCOMPARE(table->tableInterface()->rowCount(), 3);
    const auto cell = [&](int line, int column) { return table->tableInterface()->cellAt(line, column); };
    QCOMPARE(cell(0, 0)->text(QAccessible::Name), "csoport Látható: igen, 1 sor, kibontva");
    QCOMPARE(cell(2, 0)->text(QAccessible::Name), "csoport Látható: nem, 1 sor, összecsukva");
    QVERIFY(!cell(0, 0)->state().selectable);
    QVERIFY(cell(0, 0)->state().expanded && cell(2, 0)->state().collapsed);
    QVERIFY(cell(1, 0)->state().selectable);
    QCOMPARE(cell(1, SampleRows::Name)->text(QAccessible::Name), "alma");
    QCOMPARE(cell(1, SampleRows::Name)->text(QAccessible::Description), "Név");
    QCOMPARE(cell(1, SampleRows::Visible)->text(QAccessible::Name), "Látható bekapcsolva");
    QVERIFY(cell(1, SampleRows::Visible)->state().checkable && cell(1, SampleRows::Visible)->state().checked);
    QCOMPARE(cell(1, SampleRows::Color)->text(QAccessible::Name), "szín 7");
    QCOMPARE(cell(1, SampleRows::Sample)->text(QAccessible::Name), "kép minta");
    QVERIFY(cell(1, SampleRows::Name)->role() == QAccessible::Cell);
    grid.setCurrentRow(0);
    QVERIFY(cell(1, SampleRows::Name)->state().selected);
    grid.setSource(nullptr);
    QCOMPARE(table->tableInterface()->rowCount(), 0);
}

void tst_GridAccessible::headerFilterAndChipsHaveNames()
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
    const auto nameOf = [](QObject *of) {
        return QAccessible::queryAccessibleInterface(of)->text(QAccessible::Name);
    };
    QAccessibleInterface *const table = QAccessible::queryAccessibleInterface(grid.table());
    QCOMPARE(table->child(0)->role(), QAccessible::ColumnHeader);
    QCOMPARE(table->child(0)->text(QAccessible::Name), "Réteg sorszáma");
    QCOMPARE(table->child(0)->text(QAccessible::Description), "csökkenő 2");
    QVERIFY(table->child(2)->state().invisible && !table->child(1)->state().invisible);
    QCOMPARE(table->tableInterface()->cellAt(1, 1)->tableCellInterface()->columnHeaderCells().first(),
             table->child(1));
    QCOMPARE(table->childAt(table->child(1)->rect().center().x(), table->child(1)->rect().center().y()),
             table->child(1));
    QCOMPARE(nameOf(grid.findChild<FilterLine *>()->edit()), "Szűrés (Ctrl+F)");
    QCOMPARE(nameOf(grid.findChild<GroupChip *>()), "csoportosítás: Vonaltípus, csökkenő");
    QCOMPARE(QAccessible::queryAccessibleInterface(grid.findChild<GroupChip *>())->role(),
             QAccessible::Button);
}

QVDC_TEST(tst_GridAccessible)
#include "tst_GridAccessible.moc"
