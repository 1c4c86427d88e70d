#include "facade/services/Services.h"
#include "fonts/SymbolDrawing.h"
#include "support/Registry.h"
#include "support/StrokeFont.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QTest>

#include <cmath>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tSid;

namespace {

constexpr QSize kSurface(600, 501);
constexpr int kNoGlyph = 9;                     // a type of symbol that has none

tSid letter(float size, quint8 align = 30)
{
    return {.Code = 0xd5, .Align = align, .Size_mm = size, .YwFact = 1,
            .Facename = QStringLiteral("DejaVu Sans"), .CharSet = 238};
}
tSid marked(quint8 type, double x, double y)
{
    return {.ProtXmm = x, .ProtYmm = y, .ProtType = type, .Type = kNoGlyph};
}

struct View {
    double zoom = 1, pixelsPerMm = 1, ratio = 1;
};
SymbolDrawing drawing(const tSid &symbol, const View &view)
{
    SymbolDrawing d;
    d.record = symbol;
    d.glyph = vectorGlyphOf(symbol, nullptr);
    d.zoom = view.zoom;
    d.pixelsPerMm = view.pixelsPerMm;
    d.marker = symbol.Type == kNoGlyph;
    return d;
}
QImage rgbOf(const QPixmap &picture) { return picture.toImage().convertToFormat(QImage::Format_RGB32); }
QImage imageOf(const tSid &symbol, const View &view = {})
{
    return rgbOf(drawing(symbol, view).picture(kSurface, view.ratio));
}

/// Pixels of that look, in those that widgets count; the box covers them whole.
QRectF boxOf(const QImage &image, bool (*wanted)(QRgb))
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if (wanted(line[x])) box |= QRect(x, y, 1, 1);
    }
    const double ratio = image.devicePixelRatio();
    return {box.left() / ratio, box.top() / ratio, box.width() / ratio, box.height() / ratio};
}
bool inked(QRgb c) { return qGreen(c) > 100; }
bool red(QRgb c) { return c == 0xffff0000; }
bool grey(QRgb c) { return c == 0xff808080; }
bool anyLine(QRgb c) { return c != 0xff000000; }

void near(const QRectF &box, const QRectF &whole, double slack)
{
    const QRectF expected = whole & QRectF({}, kSurface);
    double off = 0;
    for (const auto &[a, b] : {std::pair(box.left(), expected.left()), {box.top(), expected.top()},
                               {box.right(), expected.right()}, {box.bottom(), expected.bottom()}})
        off = std::max(off, std::abs(a - b));
    QVERIFY2(off <= slack, qPrintable(QDebug::toString(box) + QDebug::toString(expected)));
}

void addViews()
{
    for (const double zoom : {0.7, 3.0, 11.5})
        for (const View &v : {View{zoom, 3.78}, View{zoom, 5.31, 2}})
            QTest::addRow("%g of %g", zoom, v.pixelsPerMm) << v.zoom << v.pixelsPerMm << v.ratio;
}
View fetched()
{
    QFETCH(double, zoom);
    QFETCH(double, pixelsPerMm);
    QFETCH(double, ratio);
    return {zoom, pixelsPerMm, ratio};
}

} // namespace

class tst_SymbolDrawing : public QObject {
    Q_OBJECT
private:
    static void views()
    {
        QTest::addColumn<double>("zoom");
        QTest::addColumn<double>("pixelsPerMm");
        QTest::addColumn<double>("ratio");
        addViews();
    }

private slots:
    void aLetterStandsOnItsPointAtItsSize_data() { views(); }
    void aLetterStandsOnItsPointAtItsSize()
    {
        const View v = fetched();
        const double mm = v.zoom * v.pixelsPerMm;
        for (const quint8 align : {0, 6, 2, 8, 14, 10, 24, 30, 26}) {
            tSid s = letter(4, align);
            s.YwFact = 1.25f, s.MoveXmm = 0.75f, s.MoveYmm = -1.5f;
            QFont font(s.Facename);
            font.setPixelSize(int(std::nearbyint(std::nearbyint(4 * mm) * 1.25)));
            font.setHintingPreference(QFont::PreferNoHinting);
            const QFontMetricsF metrics(font);
            QPainterPath path;
            const double width = metrics.horizontalAdvance(QStringLiteral("Ő"));
            const double left = (align & 6) == 6 ? -width / 2 : (align & 6) == 2 ? -width : 0;
            const double base = (align & 24) == 24  ? 0
                                : (align & 24) == 8 ? -metrics.descent()
                                                    : metrics.ascent();
            path.addText(300 + 0.75 * mm + left, 250.5 + 1.5 * mm + base, font, QStringLiteral("Ő"));
            near(boxOf(imageOf(s, v), inked), path.boundingRect(), 1.6); // three roundings
        }
    }

    void strokesHaveTheirWidthAndPlace_data() { views(); }
    void strokesHaveTheirWidthAndPlace()
    {
        const tests::StrokeFontHost fonts;
        const View v = fetched();
        const double mm = v.zoom * v.pixelsPerMm, pen = std::nearbyint(0.45 * mm);
        const tSid s{.Code = 'N', .Size_mm = 4, .Facename = fonts.name(), .Weight = 45, .MoveXmm = 2,
                     .MoveYmm = 1, .Type = 1};
        const QPointF origin(300.5 + 2 * mm, 250.5 - 1 * mm);
        const QRectF strokes(origin + QPointF(-1, -4) * mm, origin + QPointF(3, 1) * mm);
        near(boxOf(imageOf(s, v), inked), strokes.adjusted(-pen / 2, -pen / 2, pen / 2, pen / 2), 1);
    }

    void theMarkerCoversItsPixels_data() { views(); }
    void theMarkerCoversItsPixels()
    {
        const View v = fetched();
        const double mm = v.zoom * v.pixelsPerMm;
        struct Row {
            quint8 type;
            double x, y, halfWidth, halfHeight;
        };
        for (const Row &r : {Row{1, 3, 1, 3 * mm, 3 * mm},
                             {2, 3, 2, 1.5 * mm, mm},
                             {3, 3, 0.5, 3 * mm, 1.5 * mm},
                             {3, 3, 1, 3 * mm, 3 * mm}}) {
            const double right = std::nearbyint(r.halfWidth), down = std::nearbyint(r.halfHeight);
            const QRectF expected(300 - right, 250 - down, 2 * right + 1,
                                  2 * down + 1); // the middle is a pixel
            near(boxOf(imageOf(marked(r.type, r.x, r.y), v), red), expected, 0.5);
        }
        QCOMPARE(imageOf(marked(3, 3, 1), v), imageOf(marked(1, 3, 0), v));
        for (const quint8 type : {0, 4, 255}) QVERIFY(boxOf(imageOf(marked(type, 3, 3), v), red).isEmpty());
    }

    void heightsAreRoundedTwiceToEven_data()
    {
        QTest::addColumn<float>("size");
        QTest::addColumn<float>("factor");
        QTest::addColumn<float>("same"); // size in whole pixels, 0 = no glyph
        QTest::addRow("half") << 0.5f << 1.f << 0.f;
        QTest::addRow("down to even") << 20.5f << 1.f << 20.f;
        QTest::addRow("up to even") << 21.5f << 1.f << 22.f;
        QTest::addRow("before the factor") << 50.4f << 0.25f << 12.f; // 12.5
        QTest::addRow("no factor") << 30.f << 0.f << 0.f;
    }
    void heightsAreRoundedTwiceToEven()
    {
        QFETCH(float, size);
        QFETCH(float, factor);
        QFETCH(float, same);
        tSid s = letter(size);
        s.YwFact = factor;
        QCOMPARE(imageOf(s), imageOf(letter(same)));
        QCOMPARE(boxOf(imageOf(s), inked).isEmpty(), same == 0);
        QCOMPARE(boxOf(imageOf(marked(1, 5, 5)), red).size(), QSizeF(11, 11)); // without a glyph, too
    }

    void onlyWhatCountsIsApplied()
    {
        const QImage plain = imageOf(letter(40));
        tSid s = letter(40);
        s.Weight = 900, s.Italic = s.Underline = s.StrikeThrough = true, s.XwFact = 3;
        QCOMPARE(imageOf(s), plain);
        s = letter(40);
        s.Code = 0x150; // the same letter beyond the code page
        QCOMPARE(imageOf(s), plain);
        s.Type = kNoGlyph;
        QVERIFY(boxOf(imageOf(s), inked).isEmpty());
        s = letter(-40); // a cell is larger than its letter
        QVERIFY(boxOf(imageOf(s), inked).height() < boxOf(plain, inked).height());
    }

    void linesStandEvery1And5And10Millimetres()
    {
        SymbolDrawing d = drawing(marked(0, 0, 0), {3, 3.78});
        d.grid = true;
        constexpr QSize odd(201, 161);
        const QImage image = d.picture(odd, 1).toImage();
        QCOMPARE(image, image.mirrored(true, true));
        const auto across = [&](double mm) { return image.pixelColor(100 + qRound(mm * 11.34), 3); };
        QCOMPARE(across(0), QColor(0, 255, 0));
        QCOMPARE(across(-5), QColor(0, 200, 0));
        QCOMPARE(across(8), QColor(128, 128, 128));
        QCOMPARE(across(8.5), QColor(0, 0, 0));
        d.zoom = 0.5;                           // lines of 1 mm would be a surface
        QVERIFY(boxOf(rgbOf(d.picture(odd, 1)), grey).isEmpty());
        QVERIFY(!boxOf(rgbOf(d.picture(odd, 1)), anyLine).isEmpty());
        d.record.reset();
        QVERIFY(boxOf(rgbOf(d.picture(odd, 1)), anyLine).isEmpty());
    }

    void aDeviceWithoutSizeIs320MillimetresWide()
    {
        QCOMPARE(pixelsPerCentimetre(1280, 0), 40.0);
        QCOMPARE(pixelsPerCentimetre(1280, 256), 50.0);
    }
};
QVDC_TEST(tst_SymbolDrawing)
#include "tst_SymbolDrawing.moc"
