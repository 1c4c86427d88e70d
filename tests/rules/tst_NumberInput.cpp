#include "facade/services/Language.h"
#include "rules/NumberInput.h"
#include "rules/NumberText.h"
#include "support/Registry.h"

#include <QtTest/qtest.h>

#include <cmath>

using namespace QV_DOC_CONTROLS;

Q_DECLARE_METATYPE(QV_DOC_CONTROLS::NumberInput)

namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedKingdom);
const QLocale kHungarian(QLocale::Hungarian, QLocale::Hungary);
const QLocale kRomanian(QLocale::Romanian, QLocale::Romania);
const QLocale kVietnamese(QLocale::Vietnamese, QLocale::Vietnam);

NumberInput decimals(const QLocale &locale, const char *format = "0.00")
{
    return {.type = NumberInput::kDecimal, .min = -100, .max = 100, .format = QString::fromUtf8(format),
            .locale = locale};
}
NumberInput whole(double min = 0)
{
    return {.min = min, .max = 10, .locale = kEnglish};
}

} // namespace

class tst_NumberInput : public QObject {
    Q_OBJECT
private slots:
    void aTextIsNumericInTheWideSense_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("in"); // d: in the dot locale, c: in the comma locale
        QTest::addColumn<double>("value");
        const auto row = [](const char16_t *text, const char *in, double value) {
            QTest::newRow(qPrintable(QString::fromUtf16(text))) << QString::fromUtf16(text)
                                                                << QString::fromLatin1(in) << value;
        };
        row(u"10", "dc", 10), row(u"  10  ", "dc", 10), row(u"-3", "dc", -3), row(u"+3", "dc", 3);
        row(u"1.5", "dc", 1.5);
        row(u"1,5", "dc", 1);                   // a decimal or a group, but read as 1, on purpose
        row(u"1,500.5", "d", 1), row(u"1\u00a0500,5", "c", 1), row(u"1 500", "c", 1);
        row(u".5", "dc", 0.5), row(u"5.", "dc", 5), row(u",5", "c", 0);
        row(u"1.5E+03", "dc", 1500), row(u"1.5e", "", 1.5), row(u"2E-", "", 2);
        row(u"", "", 0), row(u" ", "", 0), row(u"-", "", 0), row(u".", "", 0), row(u"abc", "", 0);
        row(u"12 mm", "", 12), row(u"--5", "", 0), row(u"5-3", "", 5), row(u"1.2.3", "", 1.2);
        row(u"\u22127", "dc", -7), row(u"٣", "", 0), row(u"1e999", "dc", HUGE_VAL);
    }
    void aTextIsNumericInTheWideSense()
    {
        QFETCH(QString, text);
        QFETCH(QString, in);
        QFETCH(double, value);
        QCOMPARE(isNumeric(text, kEnglish), in.contains(u'd'));
        QCOMPARE(isNumeric(text, kHungarian), in.contains(u'c'));
        QCOMPARE(leadingNumber(text), value);
    }

    void aPersonOfTheLocaleIsUnderstood_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("meant"); // empty = no number
        const auto row = [](const QLocale &locale, const char *pattern, const char16_t *text,
                            const char *meant) {
            QTest::newRow(qPrintable(locale.name() + u' ' + QString::fromUtf8(pattern) + u' ' +
                                     QString::fromUtf16(text)))
                << locale << QString::fromUtf8(pattern) << QString::fromUtf16(text)
                << QString::fromUtf8(meant);
        };
        row(kHungarian, "0.00", u"3,5", "3.5"), row(kHungarian, "#,##0.0", u"1\u00a0234,5", "1234.5");
        row(kHungarian, "#,##0.0", u"1 234 567", "1234567"), 
        row(kRomanian, "0.0", u"1.234,5", "1234.5"), row(kEnglish, "0.0", u"1,234.5", "1234.5");
        row(kEnglish, "0.0 mm", u"3.5 mm", "3.5"), row(kEnglish, "0.0 mm", u"3.5mm", "3.5");
        row(kEnglish, "0.0 mm", u"3.5", "3.5"), row(kEnglish, "0.0 mm", u"3.5 cm", "");
        row(kEnglish, "0%", u"60%", "0.6"), row(kEnglish, "0.0 %", u"33.3", "0.333"),
            row(kEnglish, "%0", u"%7", "0.07");
        row(kEnglish, "0.0;(0.0)", u"(2.5)", "-2.5"), row(kEnglish, "0;0-", u"5-", "-5"),
            row(kEnglish, "0;(0)", u"-5", "-5");
        row(kEnglish, "0,", u"12", "12000"), row(kEnglish, "0.00E+00", u"1.50E+03", "1500");
        row(kEnglish, "0.0E+0%", u"5.0E+1%", "0.5"), row(kEnglish, "0", u"mm", ""),
            row(kEnglish, "mm", u"mm", "");
        row(kEnglish, "0E+0%", u"1e99999999999", "inf");
        // What is typed is read as its writer means it, with or without the unit.
        row(kHungarian, "0.# mm", u"1234", "1234"), row(kHungarian, "0.# mm", u"1,5", "1.5"),
        row(kHungarian, "0.# mm", u"1.5", "1.5"), row(kHungarian, "0.# mm", u"1.500", "1.5"),
        row(kRomanian, "0.# mm", u"1.500", "1500"), row(kRomanian, "0.# mm", u"1.5", "1.5"),
        row(kVietnamese, "0.# mm", u"12.345,5", "12345.5"), row(kEnglish, "0.# mm", u"1.5", "1.5"),
        row(kEnglish, "0.# mm", u"1,500", "1500"), row(kEnglish, "0.# mm", u"1,5", "1.5"),
        row(kHungarian, "0.# mm", u"32 767", "32767"),
        row(kHungarian, "0.# mm", u"1\u00a0234\u00a0567,25", "1234567.25"),
        row(kHungarian, "0.# mm", u"3 27", ""), row(kHungarian, "0.# mm", u"-12", "-12"),
        row(kHungarian, "0.# mm", u"\u221212", "-12"), row(kHungarian, "0.# mm", u" +12 ", "12"),
        row(kHungarian, "0.# mm", u",5", "0.5"), row(kHungarian, "0.# mm", u"5,", "5"),
        row(kHungarian, "0.# mm", u"2,5 mm", "2.5"), row(kHungarian, "0.# mm", u"2,5MM", "2.5"),
        row(kHungarian, "0.# mm", u"2,5 cm", ""), row(kHungarian, "0.# mm", u"mm", ""),
        row(kHungarian, "0.# mm", u"", ""), row(kHungarian, "0.# mm", u"-", ""),
        row(kHungarian, "0.# mm", u",", ""), row(kHungarian, "0.# mm", u"1,2,3", ""),
        row(kHungarian, "0.# mm", u"1,234.5", ""), row(kHungarian, "0.# mm", u"12a", ""),
        row(kHungarian, "0.# mm", u"1e3", ""), row(kEnglish, "0.# mm", u"inf", ""),
        row(kEnglish, "0.# mm", u"nan", "");
    }
    void aPersonOfTheLocaleIsUnderstood()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QFETCH(QString, meant);
        const auto value = numberMeant(text, pattern, locale);
        QCOMPARE(value ? QString::number(*value, 'g', 17) : QString(),
                 meant.isEmpty() ? meant : QString::number(meant.toDouble(), 'g', 17));
    }

    void keysPassTheFilter_data()
    {
        QTest::addColumn<NumberInput>("input");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("behind");
        QTest::addColumn<QChar>("key");
        QTest::addColumn<int>("lastKeyCode");
        QTest::addColumn<QString>("typed"); // empty = dropped
        int n = 0;
        const auto row = [&](const NumberInput &input, const char *before, const char *behind, char16_t key,
                             const char *typed, int lastKeyCode = 0) {
            QTest::addRow("%d: %s|%s + %c", ++n, before, behind, key < 128 ? char(key) : '?')
                << input << QString::fromUtf8(before) << QString::fromUtf8(behind) << QChar(key)
                << lastKeyCode << QString::fromUtf8(typed);
        };
        const NumberInput dot = decimals(kEnglish), comma = decimals(kHungarian);
        row(whole(), "1", "2", u'0', "0"), row(whole(), "", "", u'9', "9"), row(whole(), "1", "", u'a', "");
        row(whole(), "", "", u'+', ""), row(whole(), "", "", u'٣', ""), row(whole(), "", "", u' ', "");
        row(whole(), "1", "", u'.', ""), row(whole(), "1", "", u',', "");
        row(dot, "1", "", u'.', "."), row(dot, "1", "", u',', "."), row(comma, "1", "", u'.', ",");
        row(dot, "1.5", "", u'.', ""), row(dot, "", "1.5", u',', ""), row(dot, "15", "", u'.', ".");
        row(decimals(kEnglish, " 0 "), "1", "", u'.', ""), row(decimals(kEnglish, ""), "1", "", u'.', ".");
        // Right after the keypad's decimal key any key is one.
        row(dot, "1", "", u'5', ".", 110), row(dot, "1.2", "", u'5', "", 110),
            row(comma, "", "", u'-', ",", 110);
        row(whole(), "1", "", u'5', "5", 110), row(dot, "1", "", u'5', "5", 46);
        row(whole(-5), "", "12", u'-', "-"), row(whole(-5), "1", "", u'-', ""),
            row(whole(), "", "", u'-', "");
        row(whole(-5), "", "-1", u'-', "-");
        NumberInput text;
        text.type = NumberInput::kText;
        row(text, "x", "y", u'a', "a"), row(text, "x", "y", u'5', "5", 110);
    }
    void keysPassTheFilter()
    {
        QFETCH(NumberInput, input);
        QFETCH(QString, before);
        QFETCH(QString, behind);
        QFETCH(QChar, key);
        QFETCH(int, lastKeyCode);
        QFETCH(QString, typed);
        const auto passed = keyTyped(input, {before, behind}, key, lastKeyCode);
        QCOMPARE(passed ? QString(*passed) : QString(), typed);
    }

    void insertedTextIsTypedCharacterByCharacter()
    {
        const NumberInput comma = decimals(kHungarian);
        QCOMPARE(textTyped(whole(), {}, QStringLiteral("a1b2.3\n")).text, QStringLiteral("123"));
        QCOMPARE(textTyped(comma, {}, QStringLiteral("-1.2.3-")).text, QStringLiteral("-1,23"));
        QCOMPARE(textTyped(comma, {QStringLiteral("7,"), {}}, QStringLiteral("1.5")).text,
                 QStringLiteral("15"));
        QCOMPARE(textTyped(decimals(kEnglish), {}, QStringLiteral("1,234.5")).text, QStringLiteral("1.2345"));
        NumberInput reader = decimals(kEnglish);
        reader.readsLocale = true;              // then a number that is pasted stays the number it is
        QCOMPARE(textTyped(reader, {}, QStringLiteral("1,234.5")).text, QStringLiteral("1234.5"));
        QVERIFY(!textTyped(reader, {}, QStringLiteral("1,234.5")).dropped);
        QVERIFY(textTyped(reader, {}, QStringLiteral("1.5 m")).dropped);
        QCOMPARE(textTyped(reader, {}, QStringLiteral("about 1,5")).text, QStringLiteral("1.5"));
    }

    void valuesAreCheckedAgainstTheBounds_data()
    {
        QTest::addColumn<NumberInput>("input");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("answer");
        const NumberInput dot = decimals(kEnglish, "0.0"), comma = decimals(kHungarian, "0.0");
        NumberInput reader = comma;
        reader.readsLocale = true;
        const auto row = [](const char *name, const NumberInput &input, const char *text,
                            const char *answer) {
            QTest::newRow(name) << input << QString::fromUtf8(text) << QString::fromUtf8(answer);
        };
        row("lower bound", whole(), "0", "0"), row("upper bound", whole(), "10", "10");
        row("above", whole(), "10.5", "Érték hiba!|0 és 10 közé eső értéket kell megadni!");
        row("below", dot, "-100.1", "Érték hiba!|-100.0 és 100.0 közé eső értéket kell megadni!");
        row("formatted bounds", comma, "101", "Érték hiba!|-100,0 és 100,0 közé eső értéket kell megadni!");
        row("none", dot, "", "Érték hiba!|Számot kell megadni!");
        row("comma read as far as it goes", comma, "1,5", "1");
        row("comma understood", reader, "1,5", "1.5");
        row("comma of another locale", dot, ",5", "Érték hiba!|Számot kell megadni!");
    }
    void valuesAreCheckedAgainstTheBounds()
    {
        QFETCH(NumberInput, input);
        QFETCH(QString, text);
        QFETCH(QString, answer);
        const CheckedNumber checked = checkedNumber(input, text);
        QCOMPARE(checked.value ? QString::number(*checked.value)
                               : checked.refusal.title + u'|' + checked.refusal.text,
                 answer);
        if (!checked.value) QCOMPARE(checked.refusal.icon, Icon::Exclamation);
    }

    void aTextOfExactlyTheLimitDrawsTheMessageAndStaysWhole()
    {
        NumberInput input;
        input.type = NumberInput::kText, input.lenMax = 5;
        QVERIFY(!checkedText(input, QStringLiteral("őőőő")).refusal);
        const CheckedText full = checkedText(input, QStringLiteral("abcde"));
        QCOMPARE(full.text, QStringLiteral("abcde"));
        QCOMPARE(full.refusal.value().text, QStringLiteral("A megengedettnél (5) hosszabb szöveg!"));
        QCOMPARE(checkedText(input, QStringLiteral("abcdefg")).text, QStringLiteral("abcde"));
        input.lenMax = -1;
        QCOMPARE(checkedText(input, QStringLiteral("a")).text, QString());
    }

    void boundsAreCheckedAgainstEachOtherAndTheValue()
    {
        const NumberInput input = whole();
        QVERIFY(!refusedMin(input, 3, 3));
        QCOMPARE(refusedMin(input, 4, 3),
                 (Message{Icon::Exclamation, QStringLiteral("Hiba"), QStringLiteral("Hibás minimum!")}));
        QVERIFY(refusedMin(input, 11, 20));
        QVERIFY(!refusedMax(input, 3, 3));
        QCOMPARE(refusedMax(input, 2, 3),
                 (Message{Icon::Exclamation, QStringLiteral("Hiba"), QStringLiteral("Hibás maximum!")}));
        QVERIFY(refusedMax(input, -1, -2));
        QVERIFY(refusedMin(input, std::nan(""), 3));
    }

    void theHintSaysTheRange()
    {
        QCOMPARE(rangeHint(decimals(kHungarian, "0.0")), QStringLiteral("-100,0 és 100,0 közé eső érték!"));
        NumberInput text;
        text.type = NumberInput::kText;
        QCOMPARE(rangeHint(text), QStringLiteral("Maximum 20 karakter"));
        setLanguage(English, {});
        QCOMPARE(rangeHint(whole()), QStringLiteral("0 and10 in range!")); // the text's blanks, to the letter
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_NumberInput)
#include "tst_NumberInput.moc"
