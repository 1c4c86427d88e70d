#include "facade/services/Language.h"
#include "grids/frame/FindInColumn.h"
#include "grids/frame/GridLayouts.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::ScriptedPrompts;

class tst_GridLayouts : public QObject {
    Q_OBJECT
    struct Seen {
        GridState now;
        GridState state() const { return now; }
        void setState(const GridState &s) { now = s; }
    };
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void aLayoutBelongsToItsLanguage()
    {
        const Seen builtIn{{{{QStringLiteral("gNr"), 800}, {QStringLiteral("Name"), 3000}}, {}, {}, 0}};
        Seen grid = builtIn;
        QVERIFY(!loadGridLayout(grid, QStringLiteral("jsTest")));
        grid.now.view = 1;
        grid.now.columns[1].visible = false;
        const GridState worked = grid.now;
        saveGridLayout(grid, QStringLiteral("jsTest"));

        setLanguage(English, {});
        grid = builtIn;
        QVERIFY(!loadGridLayout(grid, QStringLiteral("jsTest")));
        QCOMPARE(grid.now, builtIn.now);
        setLanguage(Hungarian, {});
        QVERIFY(loadGridLayout(grid, QStringLiteral("jsTest")));
        QCOMPARE(grid.now, worked);
    }

    void findAsksGoesOrSaysThatThereIsNone_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<QStringList>("looked");
        QTest::newRow("found") << QVariant(QStringLiteral("Út")) << QStringList{"Út"};
        QTest::newRow("not found") << QVariant(QStringLiteral("9 %1")) << QStringList{"9 %1"};
        QTest::newRow("empty answer") << QVariant(QString()) << QStringList();
        QTest::newRow("cancelled") << QVariant() << QStringList();
    }
    void findAsksGoesOrSaysThatThereIsNone()
    {
        QFETCH(QVariant, answer);
        QFETCH(QStringList, looked);
        const bool missed = looked == QStringList{"9 %1"};
        std::vector<ScriptedPrompts::Step> steps{{"text", "Keresés", "A keresett érték:|Telek", answer}};
        if (missed) steps.push_back({"tell", "ZOL", "Nincs 9 %1 érték!", {}, Icon::Information});
        ScriptedPrompts user(steps);
        QStringList asked;
        findInColumn(QStringLiteral("Telek"), [&](const QString &value) { return asked << value, !missed; }, ErrorRelay(), nullptr);
        QCOMPARE(asked, looked);
    }
};
QVDC_TEST(tst_GridLayouts)
#include "tst_GridLayouts.moc"
