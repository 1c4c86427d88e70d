#include "fonts/Accents.h"
#include "fonts/StrokeFonts.h"
#include "support/Registry.h"

#include <QTest>

#include <algorithm>

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
    void accentsStandWhereTheyBelong_data()
    {
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QChar>("plain");
        QTest::addColumn<int>("kept");          // strokes of the plain letter
        QTest::addColumn<int>("low");
        QTest::addColumn<int>("high");
        const auto row = [](const char16_t *letter, char16_t plain, int kept, int low, int high) {
            QTest::addRow("U+%04X", uint(letter[0]))
                << QString::fromUtf16(letter) << QChar(plain) << kept << low << high;
        };
        row(u"ő", u'o', 1, 16, 20);             // two lines over a small letter
        row(u"Ű", u'U', 1, 23, 27);             // and over a capital
        row(u"í", u'i', 1, 16, 20);             // instead of the dot
        row(u"ị", u'i', 2, -4, -2);             // with the dot, which stays
        row(u"ș", u's', 1, -6, -2);             // apart from the letter
        row(u"ţ", u't', 2, -5, 1);              // hanging on it
        row(u"ế", u'e', 1, 16, 26);             // one over the other
        row(u"ặ", u'a', 2, -4, 20);             // above and below
        row(u"ơ", u'o', 1, 12, 17);             // at the shoulder
        row(u"đ", u'd', 2, 17, 17);             // across the stem
    }
    void accentsStandWhereTheyBelong()
    {
        QFETCH(QString, letter);
        QFETCH(QChar, plain);
        QFETCH(int, kept);
        const ZolWDoc::VectorFont &f = font("Hershey Roman Simplex");
        const Glyph whole = f.glyph(letter[0].unicode()), bare = f.glyph(plain.unicode());
        QVERIFY(int(whole.strokes.size()) > kept);
        for (int i = 0; i < kept; ++i)
            QVERIFY(std::ranges::find(bare.strokes, whole.strokes[size_t(i)]) != bare.strokes.end());
        QTEST(spanOf(whole, size_t(kept)).first, "low");
        QTEST(spanOf(whole, size_t(kept)).second, "high");
    }
    void signsKeepTheCodesOfTheirFile()
    {
        const ZolWDoc::VectorFont &signs = font("Hershey Markers");
        QVERIFY(!signs.glyph('A').strokes.empty());
        QVERIFY(signs.glyph(0xe1).strokes.empty());
        QCOMPARE(signs.entries().at(1).name, QStringLiteral("Hershey Markers 65"));
        QVERIFY(!StrokeFonts().find(QStringLiteral("rowmans"))); // the name of a file is no font
    }
};
QVDC_TEST(tst_StrokeFonts)
#include "tst_StrokeFonts.moc"
