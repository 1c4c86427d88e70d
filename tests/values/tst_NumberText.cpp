#include "dialogs/values/NumberText.h"

#include "facade/services/Language.h"
#include "support/Registry.h"

#include <QTest>

#include <cmath>

using namespace QV_DOC_CONTROLS;

class tst_NumberText : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }
    void whatIsTypedIsReadAsItsWriterMeansIt_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("number");         // nan = none
        const auto row = [](const char *name, int language, const char *typed, double number) {
            QTest::newRow(name) << language << QString::fromUtf8(typed) << number;
        };
        const double none = std::nan("");
        row("whole", Hungarian, "1234", 1234);
        row("the language's comma", Hungarian, "1,5", 1.5);
        row("the key pad's point", Hungarian, "1.5", 1.5);
        row("point, three decimals, no group sign", Hungarian, "1.500", 1.5);
        row("group sign is the point", Romanian, "1.500", 1500);
        row("point that sets off no group", Romanian, "1.5", 1.5);
        row("comma beside points", Vietnamese, "12.345,5", 12345.5);
        row("English point", English, "1.5", 1.5);
        row("English group", English, "1,500", 1500);
        row("comma that sets off no group", English, "1,5", 1.5);
        row("groups set off by blanks", Hungarian, "32 767", 32767);
        row("groups set off by hard blanks", Hungarian, "1\u00a0234\u00a0567,25", 1234567.25);
        row("a blank elsewhere", Hungarian, "3 27", none);
        row("minus", Hungarian, "-12", -12);
        row("typographic minus", Hungarian, "\u221212", -12);
        row("plus and blanks around", Hungarian, " +12 ", 12);
        row("starts with the comma", Hungarian, ",5", 0.5);
        row("ends with the comma", Hungarian, "5,", 5);
        row("unit behind", Hungarian, "2,5 mm", 2.5);
        row("unit at once, in capitals", Hungarian, "2,5MM", 2.5);
        row("another unit", Hungarian, "2,5 cm", none);
        row("unit alone", Hungarian, "mm", none);
        row("nothing", Hungarian, "", none);
        row("only a sign", Hungarian, "-", none);
        row("only a comma", Hungarian, ",", none);
        row("two commas", Hungarian, "1,2,3", none);
        row("comma and point the wrong way round", Hungarian, "1,234.5", none);
        row("letters", Hungarian, "12a", none);
        row("a power", Hungarian, "1e3", none);
        row("infinity", English, "inf", none);
        row("not a number", English, "nan", none);
    }
    void whatIsTypedIsReadAsItsWriterMeansIt()
    {
        QFETCH(int, language);
        QFETCH(QString, typed);
        QFETCH(double, number);
        setLanguage(language, {});
        const auto read = numberOf(typed, QStringLiteral("mm"));
        QCOMPARE(read.has_value(), !std::isnan(number));
        if (read) QCOMPARE(*read, number);
    }
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
            QCOMPARE(numberOf(textOf(number, decimals)).value_or(std::nan("")), number);
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
QVDC_TEST(tst_NumberText)
#include "tst_NumberText.moc"
