#include "dialogs/values/NumberWording.h"

#include "facade/services/InterfaceLocale.h"
#include "rules/NumberText.h"
#include "support/Registry.h"

#include <QTest>

#include <cmath>

using namespace QV_DOC_CONTROLS;

class tst_NumberWording : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }
    void whatIsShownIsReadBack_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("hungarian");
        QTest::newRow("zero") << 0.0 << 2 << QStringLiteral("0");
        QTest::newRow("whole among decimals") << 100.0 << 3 << QStringLiteral("100");
        QTest::newRow("no needless zeros") << 2.5 << 3 << QStringLiteral("2,5");
        QTest::newRow("three decimals") << 1234.125 << 3 << QStringLiteral("1234,125");
        QTest::newRow("below zero") << -32767.0 << 0 << QStringLiteral("-32767");
        QTest::newRow("small") << 0.01 << 2 << QStringLiteral("0,01");
    }
    void whatIsShownIsReadBack()
    {
        QFETCH(double, number);
        QFETCH(int, decimals);
        setLanguage(Hungarian, {});
        QTEST(textOf(number, decimals), "hungarian");
        for (const int language : {Hungarian, Romanian, Vietnamese, English}) {
            setLanguage(language, {});
            QCOMPARE(numberMeant(textOf(number, decimals), patternOf(decimals), interfaceLocale()),
                     std::optional(number));
        }
    }
    void aRefusalSaysWhyAndNamesTheBounds_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("why");           // empty = taken
        QTest::newRow("lower bound") << "-1,5" << 2 << QString();
        QTest::newRow("upper bound") << "100" << 2 << QString();
        QTest::newRow("just below") << "-1,51" << 2 << QStringLiteral("A szám túl kicsi.");
        QTest::newRow("just above") << "100,01" << 2 << QStringLiteral("A szám túl nagy.");
        QTest::newRow("too fine") << "0,125" << 2 << QStringLiteral("A tizedesjegyek száma legfeljebb 2.");
        QTest::newRow("as fine as can be") << "0,12" << 2 << QString();
        QTest::newRow("zeros behind") << "0,1200" << 2 << QString();
        QTest::newRow("not whole") << "1,5" << 0 << QStringLiteral("Egész számot írj be!");
        QTest::newRow("whole after all") << "1,0" << 0 << QString();
        QTest::newRow("no number") << "x" << 0 << QStringLiteral("Írj be egy számot!");
    }
    void aRefusalSaysWhyAndNamesTheBounds()
    {
        QFETCH(QString, typed);
        QFETCH(int, decimals);
        QFETCH(QString, why);
        NumberField field{.min = -1.5, .max = 100, .decimals = decimals, .unit = QStringLiteral("mm")};
        QString refusal = refusalFor(typed, field);
        refusal.replace(QChar(0xa0), u' ');
        const QString bounds = decimals ? QStringLiteral("-1,5 – 100 mm") : QStringLiteral("-2 – 100 mm");
        QCOMPARE(refusal, why.isEmpty() ? QString() : why + QStringLiteral("\nMegengedett: ") + bounds);
    }
};
QVDC_TEST(tst_NumberWording)
#include "tst_NumberWording.moc"
