#include "import/DxfText.h"
#include "import/RecordsOfDrawing.h"

#include "support/Registry.h"

using namespace refhost;
using tests::same;

namespace {

using Texts = std::pair<const char *, const char *>;
constexpr Texts kSingleRow[] = {
    {"%%c12 %%d %%p0.5", "Ø12 ° ±0.5"}, {"%%C %%D %%P", "Ø ° ±"}, {"%%uKút%%u %%o1", "Kút 1"},
    {"100%%%", "100%"},                 {"%%065%%176", "A°"},      {"50%", "50%"},
    {"%%x", "%%x"},                     {"\\U+0151r", "őr"},       {"a^Ib^ c", "a b^c"},
    {"\\P{x}", "\\P{x}"},               {"\\M+182A0", "あ"},
};
constexpr Texts kRich[] = {
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
constexpr std::array<const char *, 5> kLetters[] = {
    {"central European", "AC1015", "ANSI_1250", "\xF5r\xFB \xC1rok", "őrű Árok"},
    {"Cyrillic", "AC1018", "ANSI_1251", "\xCA\xEE\xEB\xEE\xE4\xE5\xF6", "Колодец"},
    {"small letters in the page's name", "AC1015", "ansi_1251", "\xCA", "К"},
    {"release 12 names no page", "AC1009", "", "\xE4\xF6", "äö"},
    {"code page of DOS", "AC1009", "dos852", "\x8B", "ő"},
    {"UTF-8, whatever the page", "AC1021", "ANSI_1252", "\xD0\x9A\xC5\x91", "Кő"},
    {"not UTF-8 after all", "AC1024", "ANSI_1250", "\xF5r", "őr"},
    {"code within a name", "AC1015", "ANSI_1252", "V\\U+0171z", "Vűz"},
    {"unfinished code", "AC1015", "ANSI_1252", "a\\U+01", "a\\U+01"},
};

} // namespace

class tst_DxfText : public QObject {
    Q_OBJECT
private slots:
    void codesAndFormatsAreResolved()
    {
        for (const auto &[raw, plain] : kSingleRow)
            same(raw, plainOfText(DxfLetters("AC1021", "")(raw), {}).text, plain);
        for (const auto &[raw, plain] : kRich) same(raw, plainOfMText(raw, {}).text, plain);
    }
    void aFormatCountsOnlyWhenItHoldsForTheWholeText()
    {
        const PlainText whole = plainOfMText("{\\fTahoma|b1|i1;\\H0.5x;all}", {});
        QCOMPARE(whole.face, "Tahoma");
        QVERIFY(whole.bold && whole.italic && !whole.changes);
        QCOMPARE(whole.heightFactor, 0.5);
        const PlainText part = plainOfMText("{\\fTahoma|b1;some} more", {});
        QVERIFY(part.face.isEmpty() && !part.bold && part.changes);
        QVERIFY(plainOfMText("plain {\\Lunder}", {}).changes);
    }
    void lettersFollowTheVersionAndCodePage()
    {
        for (const auto &[name, version, page, bytes, text] : kLetters)
            same(name, DxfLetters(version, page)(bytes), text);
    }
    void rowsBreakBetweenWords()
    {
        QCOMPARE(wrapped("aaaa bbbb cccc", 4, 1), "aaaa\nbbbb\ncccc");
        QCOMPARE(wrapped("aaaa bbbb", 100, 1), "aaaa bbbb");
        QCOMPARE(wrapped("unbreakable", 1, 1), "unbreakable");
        QCOMPARE(wrapped("no width", 0, 1), "no width");
    }
    void dashesBecomePaperMillimetres()
    {
        using V = std::vector<double>;
        const std::tuple<const char *, V, V, bool> rows[] = {
            {"dash and gap", {1.5, -0.75}, {3, 1.5}, false},
            {"a dot is a short dash", {1, -1, 0, -1}, {2, 2, 0.1, 2}, false},
            {"begins with its gap", {-1, 2}, {4, 2}, true},
            {"gaps around a lost text", {1.5, -0.4, -1.5, 1}, {5, 3.8}, false},
            {"the ring closes: dot and dash", {3, -1.5, 0}, {6, 3}, false},
            {"the ring closes: gaps", {-1, 2, -3}, {4, 8}, true},
            {"dashes only", {0.15, 0.15}, {}, false},
            {"continuous", {}, {}, false}};
        for (const auto &[name, dashes, pattern, moved] : rows) {
            bool shifted = false;
            same(name, patternOf(dashes, 2, shifted), pattern);
            same(name, shifted, moved);
        }
    }
    void facesComeFromFontFiles()
    {
        const std::tuple<const char *, const char *, bool> rows[] = {
            {"arial.ttf", "Arial", false},         {"C:\\Fonts\\TAHOMA.TTF", "Tahoma", false},
            {"simplex.shx", "DejaVu Sans", true},  {"txt", "DejaVu Sans", true},
            {"Own Face.ttf", "Own Face", false},   {"", "DejaVu Sans", false}};
        for (const auto &[file, face, replaced] : rows) {
            bool was = !replaced;
            same(file, faceOf(file, was), face);
            same(file, was, replaced);
        }
    }
};

QVDC_TEST(tst_DxfText)
#include "tst_DxfText.moc"
