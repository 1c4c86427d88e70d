#include "fonts/Accents.h"
#include "fonts/StrokeFonts.h"
#include "support/Registry.h"

using namespace refhost;
using ZolWDoc::Glyph;
using ZolWDoc::PointMm;

namespace {

const ZolWDoc::VectorFont &font(const char *name)
{
    static const StrokeFonts all;
    const ZolWDoc::VectorFont *const found = all.find(QLatin1String(name));
    if (!found) qFatal("no font %s", name);
    return *found;
}

const char *const kLetterFonts[] = {
    "Hershey Roman Simplex", "Hershey Roman Duplex",   "Hershey Roman Triplex",     "Hershey Sans",
    "Hershey Sans Bold",     "Hershey Times",          "Hershey Times Bold",        "Hershey Times Italic",
    "Hershey Cursive",       "Hershey Script Simplex", "Hershey Script Complex",    "Hershey Gothic English",
    "Hershey Gothic German", "Hershey Gothic Italian", "Hershey Times Bold Italic",
};

/// The height of the lowest and highest point of the strokes from `first` on, in units of a font's grid.
std::pair<int, int> spanOf(const Glyph &glyph, size_t first = 0)
{
    double low = 1e9, high = -1e9;
    for (size_t i = first; i < glyph.strokes.size(); ++i)
        for (const PointMm &p : glyph.strokes[i]) low = std::min(low, p.y), high = std::max(high, p.y);
    return {qRound(low * 21), qRound(high * 21)};
}

} // namespace

class tst_StrokeFonts : public QObject {
    Q_OBJECT
private slots:
    void aCapitalIsOneLetterHigh()
    {
        for (const char *name : kLetterFonts) {
            const ZolWDoc::VectorFont &f = font(name);
            const Glyph capital = f.glyph('E'), blank = f.glyph(' ');
            QVERIFY2(spanOf(capital).second == 21 && capital.advance > 0.5 && capital.advance < 1.6, name);
            QVERIFY2(blank.strokes.empty() && blank.advance > 0, name);
        }
        QCOMPARE(font("Hershey Roman Simplex").glyph('I').strokes,
                 (std::vector<std::vector<PointMm>>{{{4 / 21.0, 1}, {4 / 21.0, 0}}}));
    }
    void everyLetterOfTheFourLanguagesIsThere()
    {
        const QString letters = QStringLiteral(
            "áéíóöőúüűÁÉÍÓÖŐÚÜŰăâîșțşţĂÂÎȘȚŞŢàảãạằẳẵắặầẩẫấậđèẻẽẹêềểễếệìỉĩịòỏõọôồổỗốộơờởỡớợ"
            "ùủũụưừửữứựỳỷỹýỵÀẢÃẠẰẲẴẮẶẦẨẪẤẬĐÈẺẼẸÊỀỂỄẾỆÌỈĨỊÒỎÕỌÔỒỔỖỐỘƠỜỞỠỚỢÙỦŨỤƯỪỬỮỨỰỲỶỸÝỴ");
        for (const char *name : kLetterFonts) {
            std::vector<qint32> codes;
            for (const auto &e : font(name).entries()) codes.push_back(e.code);
            QVERIFY2(std::ranges::is_sorted(codes), name);
            for (const QChar c : letters) {
                QVERIFY2(std::ranges::binary_search(codes, qint32(c.unicode())), name);
                const QChar plain = c == u'đ' ? u'd' : c == u'Đ' ? u'D' : c.decomposition().at(0);
                const Glyph whole = font(name).glyph(c.unicode());
                QVERIFY(!whole.strokes.empty());
                if (plain.unicode() < 128) QCOMPARE(whole.advance, font(name).glyph(plain.unicode()).advance);
            }
        }
    }
    void accentsStandWhereTheyBelong()
    {
        const std::tuple<const char *, char16_t, size_t, int, int> rows[] = { // strokes kept, lowest, highest
            {"ő", u'o', 1, 16, 20},             // two lines over a small letter
            {"Ű", u'U', 1, 23, 27},             // and over a capital
            {"í", u'i', 1, 16, 20},             // instead of the dot
            {"ị", u'i', 2, -4, -2},             // with the dot, which stays
            {"ș", u's', 1, -6, -2},             // apart from the letter
            {"ţ", u't', 2, -5, 1},              // hanging on it
            {"ế", u'e', 1, 16, 26},             // one over the other
            {"ặ", u'a', 2, -4, 20},             // above and below
            {"ơ", u'o', 1, 12, 17},             // at the shoulder
            {"đ", u'd', 2, 17, 17}};            // across the stem
        const ZolWDoc::VectorFont &f = font("Hershey Roman Simplex");
        for (const auto &[letter, plain, kept, low, high] : rows) {
            const Glyph whole = f.glyph(QString(letter)[0].unicode()), bare = f.glyph(plain);
            QVERIFY2(whole.strokes.size() > kept, letter);
            for (size_t i = 0; i < kept; ++i)
                QVERIFY2(std::ranges::count(bare.strokes, whole.strokes[i]), letter);
            tests::same(letter, spanOf(whole, kept).first, low);
            tests::same(letter, spanOf(whole, kept).second, high);
        }
    }
    void signsKeepTheCodesOfTheirFile()
    {
        const ZolWDoc::VectorFont &signs = font("Hershey Markers");
        QVERIFY(!signs.glyph('A').strokes.empty() && signs.glyph(0xe1).strokes.empty());
        QCOMPARE(signs.entries().at(1).name, "Hershey Markers 65");
        QVERIFY(!StrokeFonts().find("rowmans")); // the name of a file is no font
    }
};
QVDC_TEST(tst_StrokeFonts)
#include "tst_StrokeFonts.moc"
