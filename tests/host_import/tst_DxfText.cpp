#include "import/DxfText.h"
#include "import/RecordsOfDrawing.h"

#include "support/Registry.h"

#include <QtTest/QTest>

using namespace refhost;

class tst_DxfText : public QObject {
    Q_OBJECT
private slots:
    void codesOfSingleRowTextsAreResolved_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("plain");
        const std::pair<const char *, const char *> rows[] = {
            {"%%c12 %%d %%p0.5", "Ø12 ° ±0.5"}, {"%%C %%D %%P", "Ø ° ±"}, {"%%uKút%%u %%o1", "Kút 1"},
            {"100%%%", "100%"},                 {"%%065%%176", "A°"},      {"50%", "50%"},
            {"%%x", "%%x"},                     {"\\U+0151r", "őr"},       {"a^Ib^ c", "a b^c"},
            {"\\P{x}", "\\P{x}"},               {"\\M+182A0", "あ"},
        };
        for (const auto &[raw, plain] : rows)
            QTest::newRow(raw) << QString::fromUtf8(raw) << QString::fromUtf8(plain);
    }
    void codesOfSingleRowTextsAreResolved()
    {
        QFETCH(QString, raw);
        const DxfLetters letters;
        QTEST(plainOfText(DxfLetters("AC1021", "")(raw.toStdString()), letters).text, "plain");
    }

    void formatsOfRichTextsAreResolved_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("plain");
        const std::pair<const char *, const char *> rows[] = {
            {"one\\Ptwo", "one\ntwo"},
            {"a\\~b", "a\u00A0b"},
            {"\\{x\\} \\\\", "{x} \\"},
            {"{\\fArial|b1|i0|c238|p34;bold}", "bold"},
            {"\\A1;\\H2.5x;\\C1;big", "big"},
            {"\\pi-1,l2;\\Lline\\l \\Oover\\o", "line over"},
            {"m\\S2^ ;", "m²"},
            {"\\S1/2; \\S3#4;", "1/2 3/4"},
            {"{a{b}c}", "abc"},
            {"a^Jb%%d", "a\nb°"},
            {"\\Q15;\\T1.1;\\W0.8;w", "w"},
            {"tail\\", "tail\\"},
            {"\\Hno end", ""},
        };
        for (const auto &[raw, plain] : rows)
            QTest::newRow(raw) << QString::fromUtf8(raw) << QString::fromUtf8(plain);
    }
    void formatsOfRichTextsAreResolved()
    {
        QFETCH(QString, raw);
        QTEST(plainOfMText(raw, DxfLetters()).text, "plain");
    }

    void aFormatCountsOnlyWhenItHoldsForTheWholeText()
    {
        const DxfLetters letters;
        const PlainText whole = plainOfMText(QStringLiteral("{\\fTahoma|b1|i1;\\H0.5x;all}"), letters);
        QCOMPARE(whole.face, QStringLiteral("Tahoma"));
        QVERIFY(whole.bold && whole.italic && !whole.changes);
        QCOMPARE(whole.heightFactor, 0.5);
        const PlainText part = plainOfMText(QStringLiteral("{\\fTahoma|b1;some} more"), letters);
        QVERIFY(part.face.isEmpty() && !part.bold && part.changes);
        QVERIFY(plainOfMText(QStringLiteral("plain {\\Lunder}"), letters).changes);
    }

    void lettersFollowTheVersionAndCodePage_data()
    {
        QTest::addColumn<QByteArray>("version");
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *version, const char *page, const char *bytes,
                            const char *text) {
            QTest::newRow(name) << QByteArray(version) << QByteArray(page) << QByteArray(bytes)
                                << QString::fromUtf8(text);
        };
        row("central European", "AC1015", "ANSI_1250", "\xF5r\xFB \xC1rok", "őrű Árok");
        row("Cyrillic", "AC1018", "ANSI_1251", "\xCA\xEE\xEB\xEE\xE4\xE5\xF6", "Колодец");
        row("small letters in the page's name", "AC1015", "ansi_1251", "\xCA", "К");
        row("release 12 names no page", "AC1009", "", "\xE4\xF6", "äö");
        row("code page of DOS", "AC1009", "dos852", "\x8B", "ő");
        row("UTF-8, whatever the page", "AC1021", "ANSI_1252", "\xD0\x9A\xC5\x91", "Кő");
        row("not UTF-8 after all", "AC1024", "ANSI_1250", "\xF5r", "őr");
        row("code within a name", "AC1015", "ANSI_1252", "V\\U+0171z", "Vűz");
        row("unfinished code", "AC1015", "ANSI_1252", "a\\U+01", "a\\U+01");
    }
    void lettersFollowTheVersionAndCodePage()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, page);
        QFETCH(QByteArray, bytes);
        QTEST(DxfLetters(version, page)(bytes.toStdString()), "text");
    }

    void rowsBreakBetweenWords()
    {
        QCOMPARE(wrapped(QStringLiteral("aaaa bbbb cccc"), 4, 1), QStringLiteral("aaaa\nbbbb\ncccc"));
        QCOMPARE(wrapped(QStringLiteral("aaaa bbbb"), 100, 1), QStringLiteral("aaaa bbbb"));
        QCOMPARE(wrapped(QStringLiteral("unbreakable"), 1, 1), QStringLiteral("unbreakable"));
        QCOMPARE(wrapped(QStringLiteral("no width"), 0, 1), QStringLiteral("no width"));
    }

    void dashesBecomePaperMillimetres_data()
    {
        QTest::addColumn<std::vector<double>>("dashes");
        QTest::addColumn<std::vector<double>>("pattern");
        QTest::addColumn<bool>("shifted");
        using V = std::vector<double>;
        QTest::newRow("dash and gap") << V{1.5, -0.75} << V{3, 1.5} << false;
        QTest::newRow("a dot is a short dash") << V{1, -1, 0, -1} << V{2, 2, 0.1, 2} << false;
        QTest::newRow("begins with its gap") << V{-1, 2} << V{4, 2} << true;
        QTest::newRow("gaps around a lost text") << V{1.5, -0.4, -1.5, 1} << V{5, 3.8} << false;
        QTest::newRow("the ring closes: dot and dash") << V{3, -1.5, 0} << V{6, 3} << false;
        QTest::newRow("the ring closes: gaps") << V{-1, 2, -3} << V{4, 8} << true;
        QTest::newRow("dashes only") << V{0.15, 0.15} << V{} << false;
        QTest::newRow("continuous") << V{} << V{} << false;
    }
    void dashesBecomePaperMillimetres()
    {
        QFETCH(std::vector<double>, dashes);
        bool shifted = false;
        QTEST(patternOf(dashes, 2, shifted), "pattern");
        QTEST(shifted, "shifted");
    }

    void facesComeFromFontFiles()
    {
        const std::tuple<const char *, const char *, bool> rows[] = {
            {"arial.ttf", "Arial", false},       {"C:\\Fonts\\TAHOMA.TTF", "Tahoma", false},
            {"txt", "DejaVu Sans", true},        {"simplex.shx", "DejaVu Sans", true},
            {"Own Face.ttf", "Own Face", false}, {"", "DejaVu Sans", false}};
        for (const auto &[file, face, replaced] : rows) {
            bool was = !replaced;
            QCOMPARE(faceOf(QString::fromLatin1(file), was), QString::fromLatin1(face));
            QCOMPARE(was, replaced);
        }
    }
};

QVDC_TEST(tst_DxfText)
#include "tst_DxfText.moc"
