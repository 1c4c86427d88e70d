#include "rules/NumberFormat.h"
#include "support/Registry.h"

#include <cmath>
#include <cstring>
#include <limits>

using namespace QV_DOC_CONTROLS;

namespace {

struct Row {
    const char *pattern;
    double value;
    const char16_t *text;
};

const QLocale kDot = QLocale::c();
const QLocale kHungarian(QLocale::Hungarian, QLocale::Hungary);
const QLocale kRomanian(QLocale::Romanian, QLocale::Romania);

void shows(const QLocale &locale, std::initializer_list<Row> rows)
{
    for (const Row &row : rows) {
        const QString name = QString("%1 in '%2'").arg(row.value).arg(row.pattern);
        tests::same(qPrintable(name), formatted(row.value, QString(row.pattern), locale),
                    QString::fromUtf16(row.text));
    }
}

} // namespace

class tst_NumberFormat : public QObject {
    Q_OBJECT
private slots:
    void digits()
    {
        shows(kDot, {{"0", 0, u"0"}, {"0", 7, u"7"}, {"0", -7, u"-7"}, {"000", 7, u"007"}, {"#", 0, u""},
                     {"#", 12, u"12"}, {"0.00", 3.5, u"3.50"}, {"0.0#", 3.5, u"3.5"},
                     {"0.0#", 3.456, u"3.46"}, {"0.##", 5, u"5"}, {"0.", 5, u"5."}, {"#.00", 0.5, u".50"},
                     {".00", 12.5, u"12.50"}, {"0#", 5, u"05"}, {"#0#", 5, u"05"}, {"0.#0", 1, u"1.00"},
                     {"0.0.0", 1.25, u"1.2.5"}, {"0", 1e21, u"1000000000000000000000"},
                     {"0.0", 1e-320, u"0.0"}, {"0.00", 123456789012.34, u"123456789012.34"},
                     {"0000000000", 2147483647, u"2147483647"}});
    }
    void roundingGoesAwayFromZeroByTheDigitsThatOneSees()
    {
        shows(kDot, {{"0", 0.5, u"1"}, {"0", 1.5, u"2"}, {"0", 2.5, u"3"}, {"0", -2.5, u"-3"},
                     {"0.00", 1.005, u"1.01"}, {"0.00", 2.675, u"2.68"}, {"0.00", 1.0049999, u"1.00"},
                     {"0.0", 9.95, u"10.0"}, {"0", 999.5, u"1000"}, {"#,##0", 999999.5, u"1,000,000"},
                     {"0.0", 0.05, u"0.1"}, {"0.0", 0.0499, u"0.0"}, {"0", 0.05, u"0"}});
    }
    void whatIsShownAsZeroHasNoMinus()
    {
        shows(kDot, {{"0", -0.0, u"0"}, {"0.0", -0.04, u"0.0"}, {"0.0;(0.0)", -0.04, u"0.0"},
                     {"0.0;(0.0);nil", -0.04, u"nil"}, {"0.0;(0.0);nil", 0.04, u"nil"},
                     {"0.0", -0.05, u"-0.1"}});
    }
    void commasGroupOrScale()
    {
        shows(kDot, {{"#,##0", 1234567, u"1,234,567"}, {"#,##0", 999, u"999"},
                     {"#,##0.0", 1234.56, u"1,234.6"}, {"#,##0", -1000, u"-1,000"}, {"0,000", 5, u"0,005"},
                     {"0,", 1234567, u"1235"}, {"0,,.0", 1234567, u"1.2"},
                     {"#,##0,", 1234567890, u"1,234,568"}, {"0.0,", 1234, u"1.2"}, {"0.0,0", 1.25, u"1.25"},
                     {"a, 0", 5, u"a, 5"}, {",0", 1234, u",1234"}, {"0 m, b", 5, u"5 m, b"},
                     {"0,;", 4321, u"4"}});
    }
    void textStandsAround()
    {
        shows(kDot, {{"0.0 mm", 3.5, u"3.5 mm"}, {"0.0 mm", -3.5, u"-3.5 mm"}, {"\"#0\" 0", 5, u"#0 5"},
                     {"\\#0", 5, u"#5"}, {"0\\", 5, u"5\\"}, {"\"x", 5, u"x"}, {"0 \"E+0\"", 5, u"5 E+0"},
                     {"0 e", 5, u"5 e"}, {"±0.0 ő", 1, u"±1.0 ő"}, {"00-00", 1234, u"12-34"},
                     {"00-00", 123456, u"1234-56"}, {"##-##", 12, u"-12"}, {"mm", 5, u"mm"},
                     {"0\";\"0", 12, u"1;2"}, {"$0.00", -2, u"-$2.00"}});
    }
    void perCent()
    {
        shows(kDot, {{"0%", 0.256, u"26%"}, {"0.0 %", 0.256, u"25.6 %"}, {"%0", 0.5, u"%50"},
                     {"0%%", 0.5, u"5000%%"}, {"0\\%", 0.5, u"1%"}, {"0\"%\"", 2, u"2%"},
                     {"0%", 0.07, u"7%"}, {"0,%", 100, u"10%"}});
    }
    void scientificNotation()
    {
        shows(kDot, {{"0.00E+00", 1500, u"1.50E+03"}, {"0.00E+00", 0, u"0.00E+00"},
                     {"0.00E-00", 1500, u"1.50E03"}, {"0.00E-00", 0.0015, u"1.50E-03"},
                     {"0.00e+0", -0.0015, u"-1.50e-3"}, {"0.0E+0", 9.96, u"1.0E+1"},
                     {"##0.0E+0", 12345, u"123.5E+2"}, {"00.0E+0", 12345, u"12.3E+3"},
                     {".00E+0", 1234, u".12E+4"}, {"0E+0", 95, u"1E+2"}, {"0.0E+###", 1e100, u"1.0E+100"},
                     {"0.0E+0 m", 20, u"2.0E+1 m"}, {"E+0", 5, u"E+5"}, {"0.0E0", 5, u"5.0E0"},
                     {"0.0E+0%", 0.5, u"5.0E+1%"}, {"0.0E+00", 5e-324, u"5.0E-324"},
                     {"0.0E+00", 1.7976931348623157e308, u"1.8E+308"}});
    }
    void sections()
    {
        shows(kDot, {{"0.0;(0.0)", 2, u"2.0"}, {"0.0;(0.0)", -2, u"(2.0)"}, {"0.0;(0.0)", 0, u"0.0"},
                     {"0;-0;\"nil\"", 0, u"nil"}, {"0;;nil", -3, u"-3"}, {"0;;nil", 0, u"nil"},
                     {"0;-0;", 0, u"0"}, {";(0)", -3, u"(3)"}, {";(0)", 2.5, u"2.5"},
                     {"0;(0);z;text", 0, u"z"}, {"0;0%", -0.5, u"50%"}, {";;z", -1.5, u"-1.5"}});
    }
    void noPatternShowsTheShortestText()
    {
        shows(kDot, {{"", 0, u"0"}, {"", 3.5, u"3.5"}, {"", -0.1, u"-0.1"}, {"", 1e15, u"1E+15"},
                     {"", 123456789012345, u"123456789012345"}, {"", 0.00001, u"0.00001"},
                     {"", 1.5e-6, u"1.5E-6"}, {"", 0.1 + 0.2, u"0.30000000000000004"}});
    }
    void theLocaleSeparatesDecimalsAndGroups()
    {
        shows(kHungarian, {{"#,##0.00", 1234567.5, u"1\u00a0234\u00a0567,50"}, {"0.0", 3.5, u"3,5"},
                           {"", -0.5, u"-0,5"}, {"0.00E+00", 1500, u"1,50E+03"}, {"0 \".\"", 1, u"1 ."}});
        shows(kRomanian, {{"#,##0.0", 1234.5, u"1.234,5"}});
        shows(QLocale(QLocale::Arabic, QLocale::Egypt), {{"0", -12, u"-12"}}); // what can be typed
        QCOMPARE(decimalSeparator(kDot), QChar(u'.'));
        QCOMPARE(decimalSeparator(kHungarian), QChar(u','));
    }
    void numbersThatAreNoneAreNamed()
    {
        const double infinite = std::numeric_limits<double>::infinity();
        shows(kDot, {{"0.0", infinite, u"inf"}, {"0.0", -infinite, u"-inf"}, {"0", std::nan(""), u"nan"}});
    }

    /// The same as the standard library where that rounds alike, and every number reads back from its text.
    void manyNumbersAgreeWithTheStandardLibrary()
    {
        QRandomGenerator random(5);
        for (int i = 0; i < 20000; ++i) {
            const quint64 bits = random.generate64();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            if (!std::isfinite(value)) continue;
            QCOMPARE(formatted(value, u"", kDot).toDouble(), value);
            const QByteArray text = formatted(value, u"0.################E+000", kDot).toLatin1();
            QCOMPARE(text.toDouble(), value);
            const double small = double(qint32(bits)) / 1024; // exact in binary: no halves that differ
            if (std::abs(std::remainder(small * 100, 1)) == 0.5) continue;
            QCOMPARE(formatted(small, u"0.00", kDot),
                     QString::number(small, 'f', 2).replace("-0.00", "0.00"));
        }
    }
};
QVDC_TEST(tst_NumberFormat)
#include "tst_NumberFormat.moc"
