#include "facade/services/Language.h"
#include "grids/frame/FindInColumn.h"
#include "grids/frame/GridLayouts.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/grid/Grid.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::ScriptedPrompts;

namespace {

struct Streets final : GridSource {
    std::vector<GridColumn> all{
        {QStringLiteral("Nr"), QStringLiteral("Szám"), {}, CellKind::Number, false, 800},
        {QStringLiteral("Name"), QStringLiteral("Név"), {}, CellKind::Text, false, 3000}};
    QStringList names{"Telek", "Út", "Patak"};
    const std::vector<GridColumn> &columns() const override { return all; }
    int rowCount() const override { return int(names.size()); }
    qint64 rowId(int row) const override { return row; }
    QVariant value(int row, int c) const override { return c ? QVariant(names[row]) : QVariant(row + 1); }
    QString text(int row, int c) const override { return value(row, c).toString(); }
    bool edit(int, int, const QVariant &) override { return false; }
};

} // namespace

class tst_GridLayouts : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void aLayoutBelongsToItsLanguage()
    {
        const QString layout = QStringLiteral("jsTest");
        Streets streets;
        Grid builtIn;
        builtIn.setSource(&streets);
        const GridState before = builtIn.state();
        QVERIFY(!loadGridLayout(builtIn, layout));
        QCOMPARE(builtIn.state(), before);

        Grid grid;
        grid.setSource(&streets);
        grid.setView(GridView::Card);
        grid.showColumns(std::vector{1});
        grid.setSortKeys(std::vector{SortKey{1, SortOrder::Descending}});
        grid.setGroupLevels(std::vector{SortKey{0, SortOrder::Ascending}});
        saveGridLayout(grid, layout);

        setLanguage(English, {});
        QVERIFY(!loadGridLayout(builtIn, layout));
        QCOMPARE(builtIn.state(), before);
        setLanguage(Hungarian, {});
        QVERIFY(loadGridLayout(builtIn, layout));
        QCOMPARE(builtIn.state(), grid.state());
        QVERIFY(builtIn.state() != before);
    }

    void findAsksGoesOrSaysThatThereIsNone_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<int>("row");
        QTest::newRow("found") << QVariant(QStringLiteral("Patak")) << 2;
        QTest::newRow("not found") << QVariant(QStringLiteral("9 %1")) << 0;
        QTest::newRow("empty answer") << QVariant(QString()) << 0;
        QTest::newRow("cancelled") << QVariant() << 0;
    }
    void findAsksGoesOrSaysThatThereIsNone()
    {
        QFETCH(QVariant, answer);
        QFETCH(int, row);
        Streets streets;
        Grid grid;
        grid.setSource(&streets);
        grid.setCurrentRow(0);
        std::vector<ScriptedPrompts::Step> steps{{"text", "Keresés", "A keresett érték:|Telek", answer}};
        if (answer == QStringLiteral("9 %1"))
            steps.push_back({"tell", "ZOL", "Nincs 9 %1 érték!", {}, Icon::Information});
        ScriptedPrompts user(steps);
        findInColumn(grid, 1, ErrorRelay());
        QCOMPARE(grid.currentRow(), row);
    }
};
QVDC_TEST(tst_GridLayouts)
#include "tst_GridLayouts.moc"
