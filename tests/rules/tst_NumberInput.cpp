#include "facade/services/Language.h"
#include "rules/NumberInput.h"
#include "rules/NumberText.h"
#include "support/Registry.h"

#include <cmath>

using namespace QV_DOC_CONTROLS;

namespace {

const QLocale kEn(QLocale::English, QLocale::UnitedKingdom);
const QLocale kHu(QLocale::Hungarian, QLocale::Hungary);
const QLocale kRo(QLocale::Romanian, QLocale::Romania);
const QLocale kVi(QLocale::Vietnamese, QLocale::Vietnam);

NumberInput decimals(const QLocale &locale, const char *format = "0.00")
{
    return {.type = NumberInput::kDecimal, .min = -100, .max = 100, .format = QString::fromUtf8(format),
            .locale = locale};
}
NumberInput whole(double min = 0) { return {.min = min, .max = 10, .locale = kEn}; }
NumberInput text(int most = 20) { return {.type = NumberInput::kText, .lenMax = most}; }
NumberInput reading(NumberInput input) { return input.readsLocale = true, input; }

} // namespace

class tst_NumberInput : public QObject {
    Q_OBJECT
private slots:
    void aTextIsNumericInTheWideSense()
    {
        const std::tuple<const char16_t *, const char *, double> rows[] = { // d, c: in which locales
            {u"10", "dc", 10}, {u"  10  ", "dc", 10}, {u"-3", "dc", -3}, {u"+3", "dc", 3},
            {u"1.5", "dc", 1.5}, {u"1,5", "dc", 1}, // a decimal or a group, but read as 1, on purpose
            {u"1,500.5", "d", 1}, {u"1\u00a0500,5", "c", 1}, {u"1 500", "c", 1}, {u".5", "dc", 0.5},
            {u"5.", "dc", 5}, {u",5", "c", 0}, {u"1.5E+03", "dc", 1500}, {u"1.5e", "", 1.5}, {u"2E-", "", 2},
            {u"", "", 0}, {u" ", "", 0}, {u"-", "", 0}, {u".", "", 0}, {u"abc", "", 0}, {u"12 mm", "", 12},
            {u"--5", "", 0}, {u"5-3", "", 5}, {u"1.2.3", "", 1.2}, {u"\u22127", "dc", -7}, {u"٣", "", 0},
            {u"1e999", "dc", HUGE_VAL}};
        for (const auto &[said, in, value] : rows) {
            const QString text = QString::fromUtf16(said);
            QVERIFY2(isNumeric(text, kEn) == (std::strchr(in, 'd') != nullptr), qPrintable(text));
            QVERIFY2(isNumeric(text, kHu) == (std::strchr(in, 'c') != nullptr), qPrintable(text));
            QVERIFY2(leadingNumber(text) == value, qPrintable(text));
        }
    }

    void aPersonOfTheLocaleIsUnderstood()
    {
        using Row = std::tuple<const QLocale &, const char *, const char16_t *, const char *>; // "" = none
        const Row rows[] = {
            {kHu, "0.00", u"3,5", "3.5"}, {kHu, "#,##0.0", u"1\u00a0234,5", "1234.5"},
            {kHu, "#,##0.0", u"1 234 567", "1234567"}, {kRo, "0.0", u"1.234,5", "1234.5"},
            {kEn, "0.0", u"1,234.5", "1234.5"}, {kEn, "0.0 mm", u"3.5 mm", "3.5"},
            {kEn, "0.0 mm", u"3.5mm", "3.5"}, {kEn, "0.0 mm", u"3.5 cm", ""}, {kEn, "0%", u"60%", "0.6"},
            {kEn, "0.0 %", u"33.3", "0.333"}, {kEn, "%0", u"%7", "0.07"},
            {kEn, "0.0;(0.0)", u"(2.5)", "-2.5"}, {kEn, "0;0-", u"5-", "-5"}, {kEn, "0;(0)", u"-5", "-5"},
            {kEn, "0,", u"12", "12000"}, {kEn, "0.00E+00", u"1.50E+03", "1500"},
            {kEn, "0.0E+0%", u"5.0E+1%", "0.5"}, {kEn, "0", u"mm", ""}, {kEn, "mm", u"mm", ""},
            {kEn, "0E+0%", u"1e99999999999", "inf"},
            // Groups that were edited: in a pattern that shows them.
            {kEn, "#,##0.0", u"1,23.5", "123.5"}, {kEn, "#,##0", u"1,23", "123"},
            {kEn, "#,##0", u",234", "234"}, {kHu, "#,##0.0", u"1\u00a02634,5", "12634.5"},
            {kRo, "#,##0.0", u"1.23,5", "123.5"}, {kHu, "#,##0.0", u"1.5", "1.5"},
            // What is typed is read as its writer means it.
            {kHu, "0.#", u"1234", "1234"}, {kHu, "0.#", u"1.5", "1.5"}, {kHu, "0.#", u"1.500", "1.5"},
            {kRo, "0.#", u"1.500", "1500"}, {kRo, "0.#", u"1.5", "1.5"}, {kVi, "0.#", u"12.345,5", "12345.5"},
            {kEn, "0.#", u"1,500", "1500"}, {kEn, "0.#", u"1,5", "1.5"}, {kHu, "0.#", u"32 767", "32767"},
            {kHu, "0.#", u"3 27", ""}, {kHu, "0.#", u"\u221212", "-12"}, {kHu, "0.#", u" +12 ", "12"},
            {kHu, "0.#", u",5", "0.5"}, {kHu, "0.#", u"5,", "5"}, {kHu, "0.# mm", u"2,5MM", "2.5"},
            {kHu, "0.#", u"", ""}, {kHu, "0.#", u"-", ""}, {kHu, "0.#", u",", ""}, {kHu, "0.#", u"1,2,3", ""},
            {kHu, "0.#", u"1,234.5", ""}, {kHu, "0.#", u"12a", ""}, {kHu, "0.#", u"1e3", ""},
            {kEn, "0.#", u"inf", ""}, {kEn, "0.#", u"nan", ""}};
        for (const auto &[locale, pattern, said, meant] : rows) {
            const QString text = QString::fromUtf16(said);
            const auto value = numberMeant(text, QString(pattern), locale);
            tests::same(qPrintable(locale.name() + u' ' + text),
                        value ? QString::number(*value, 'g', 12) : QString(), meant);
        }
    }

    void keysPassTheFilter()
    {
        const NumberInput dot = decimals(kEn), comma = decimals(kHu);
        using Row = std::tuple<NumberInput, const char *, const char *, QChar, const char *>; // "" = dropped
        const Row rows[] = {
            {whole(), "1", "2", u'0', "0"}, {whole(), "", "", u'9', "9"}, {whole(), "1", "", u'a', ""},
            {whole(), "", "", u'+', ""}, {whole(), "", "", u'٣', ""}, {whole(), "", "", u' ', ""},
            {whole(), "1", "", u'.', ""}, {whole(), "1", "", u',', ""}, {dot, "1", "", u'.', "."},
            {dot, "1", "", u',', "."}, {comma, "1", "", u'.', ","}, {dot, "1.5", "", u'.', ""},
            {dot, "", "1.5", u',', ""}, {decimals(kEn, " 0 "), "1", "", u'.', ""},
            {decimals(kEn, ""), "1", "", u'.', "."}, {whole(-5), "", "12", u'-', "-"},
            {whole(-5), "1", "", u'-', ""}, {whole(), "", "", u'-', ""}, {whole(-5), "", "-1", u'-', "-"},
            {text(), "x", "y", u'a', "a"}};
        for (const auto &[input, before, behind, key, typed] : rows) {
            const auto passed = keyTyped(input, {before, behind}, key, 0);
            tests::same(before, passed ? QString(*passed) : QString(), typed);
        }
        // Right after the keypad's decimal key any key is one.
        const std::tuple<NumberInput, const char *, QChar, const char *, int> keypad[] = {
            {dot, "1", u'5', ".", 110}, {dot, "1.2", u'5', "", 110}, {comma, "", u'-', ",", 110},
            {whole(), "1", u'5', "5", 110}, {text(), "x", u'5', "5", 110}, {dot, "1", u'5', "5", 46}};
        for (const auto &[input, before, key, typed, lastKeyCode] : keypad) {
            const auto passed = keyTyped(input, {before, ""}, key, lastKeyCode);
            tests::same(before, passed ? QString(*passed) : QString(), typed);
        }
    }

    void insertedTextIsTypedCharacterByCharacter()
    {
        const NumberInput dot = decimals(kEn), comma = decimals(kHu);
        const auto typed = [](const NumberInput &input, const char *inserted, const char *before = "") {
            const TypedText all = textTyped(input, {QLatin1String(before), {}}, QLatin1String(inserted));
            return all.dropped ? all.text + u'!' : all.text;
        };
        QCOMPARE(typed(whole(), "a1b2.3\n"), "123!");
        QCOMPARE(typed(comma, "-1.2.3-"), "-1,23!");
        QCOMPARE(typed(comma, "1.5", "7,"), "15!");
        QCOMPARE(typed(dot, "1,234.5"), "1.2345!");
        QCOMPARE(typed(reading(dot), "1,234.5"), "1234.5"); // stays the number it is
        QCOMPARE(typed(reading(dot), "about 1,5"), "1.5!");
    }

    void valuesAreCheckedAgainstTheBounds()
    {
        struct Row {
            NumberInput input;
            const char *text, *answer;
        };
        const NumberInput dot = decimals(kEn, "0.0"), comma = decimals(kHu, "0.0");
        const Row rows[] = {
            {whole(), "0", "0"}, {whole(), "10", "10"},
            {whole(), "10.5", "Érték hiba!|0 és 10 közé eső értéket kell megadni!"},
            {dot, "-100.1", "Érték hiba!|-100.0 és 100.0 közé eső értéket kell megadni!"},
            {comma, "1e999", "Érték hiba!|-100,0 és 100,0 közé eső értéket kell megadni!"},
            {dot, "", "Érték hiba!|Számot kell megadni!"}, {dot, ",5", "Érték hiba!|Számot kell megadni!"},
            {comma, "1,5", "1"}, {reading(comma), "1,5", "1.5"}};
        for (const auto &[input, said, answer] : rows) {
            const CheckedNumber checked = checkedNumber(input, QLatin1String(said));
            const auto &refusal = checked.refusal;
            const QString told = refusal.title + u'|' + refusal.text;
            tests::same(said, checked.value ? QString::number(*checked.value) : told, answer);
            if (!checked.value) QCOMPARE(refusal.icon, Icon::Exclamation);
        }
        QVERIFY(!checkedNumber(dot, std::nan("")).value);
    }

    void aTextOfExactlyTheLimitDrawsTheMessageAndStaysWhole()
    {
        QVERIFY(!checkedText(text(5), "őőőő").refusal);
        const CheckedText full = checkedText(text(5), "abcde");
        QCOMPARE(full.text, "abcde");
        QCOMPARE(full.refusal.value().text, "A megengedettnél (5) hosszabb szöveg!");
        QCOMPARE(checkedText(text(5), "abcdefg").text, "abcde");
        QCOMPARE(checkedText(text(-1), "a").text, QString());
    }

    void boundsAreCheckedAgainstEachOtherAndTheValue()
    {
        const Message badMin{Icon::Exclamation, "Hiba", "Hibás minimum!"};
        const Message badMax{Icon::Exclamation, "Hiba", "Hibás maximum!"};
        QVERIFY(!refusedMin(whole(), 3, 3) && !refusedMax(whole(), 3, 3));
        QCOMPARE(refusedMin(whole(), 4, 3), badMin);
        QCOMPARE(refusedMax(whole(), 2, 3), badMax);
        QVERIFY(refusedMin(whole(), 11, 20) && refusedMax(whole(), -1, -2));
        QVERIFY(refusedMin(whole(), std::nan(""), 3) && refusedMax(whole(), std::nan(""), 3));
    }

    void theHintSaysTheRange()
    {
        QCOMPARE(rangeHint(decimals(kHu, "0.0")), "-100,0 és 100,0 közé eső érték!");
        QCOMPARE(rangeHint(text()), "Maximum 20 karakter");
        setLanguage(English, {});
        QCOMPARE(rangeHint(whole()), "0 and10 in range!"); // the text's blanks, to the letter
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_NumberInput)
#include "tst_NumberInput.moc"
