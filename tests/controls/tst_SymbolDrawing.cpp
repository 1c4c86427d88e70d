#include "fonts/SymbolDrawing.h"
#include "support/Registry.h"
#include "support/StrokeFont.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <cmath>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tSid;

namespace {

constexpr QSize kSurface(600, 501);
constexpr int kNoGlyph = 9;                     // a type of symbol that has none

tSid letter(float size, quint8 align = 30)
{
    return {.Code = 0xd5, .Align = align, .Size_mm = size, .YwFact = 1,
            .Facename = "DejaVu Sans", .CharSet = 238};
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

void near(const QRectF &box, const QRectF &whole, double slack)
{
    const QRectF expected = whole & QRectF({}, kSurface);
    double off = 0;
    for (const auto &[a, b] : {std::pair(box.left(), expected.left()), {box.top(), expected.top()},
                               {box.right(), expected.right()}, {box.bottom(), expected.bottom()}})
        off = std::max(off, std::abs(a - b));
    QVERIFY2(off <= slack, qPrintable(QDebug::toString(box) + QDebug::toString(expected)));
}

/// Three magnifications on two devices, the second of which has a scaled screen.
std::vector<View> views()
{
    std::vector<View> all;
    for (const double zoom : {0.7, 3.0, 11.5})
        for (const View &v : {View{zoom, 3.78}, View{zoom, 5.31, 2}}) all.push_back(v);
    return all;
}

} // namespace

class tst_SymbolDrawing : public QObject {
    Q_OBJECT
private slots:
    void aLetterStandsOnItsPointAtItsSize()
    {
        const QString o = "Ő";
        for (const View &v : views())
            for (const quint8 align : {0, 6, 2, 8, 14, 10, 24, 30, 26}) {
                const double mm = v.zoom * v.pixelsPerMm;
                tSid s = letter(4, align);
                s.YwFact = 1.25f, s.MoveXmm = 0.75f, s.MoveYmm = -1.5f;
                QFont font(s.Facename);
                font.setPixelSize(int(std::nearbyint(std::nearbyint(4 * mm) * 1.25)));
                font.setHintingPreference(QFont::PreferNoHinting);
                const QFontMetricsF m(font);
                const int across = align & 6, down = align & 24;
                const double left = -m.horizontalAdvance(o) * (across == 6 ? 0.5 : across == 2 ? 1 : 0);
                const double base = down == 24 ? 0 : down == 8 ? -m.descent() : m.ascent();
                QPainterPath path;
                path.addText(300 + 0.75 * mm + left, 250.5 + 1.5 * mm + base, font, o);
                near(boxOf(imageOf(s, v), inked), path.boundingRect(), 1.6); // three roundings
            }
    }

    void strokesHaveTheirWidthAndPlace()
    {
        const tests::StrokeFontHost fonts;
        const tSid s{.Code = 'N', .Size_mm = 4, .Facename = fonts.name(), .Weight = 45, .MoveXmm = 2,
                     .MoveYmm = 1, .Type = 1};
        for (const View &v : views()) {
            const double mm = v.zoom * v.pixelsPerMm, half = std::nearbyint(0.45 * mm) / 2;
            const QPointF origin(300.5 + 2 * mm, 250.5 - 1 * mm);
            const QRectF strokes(origin + QPointF(-1, -4) * mm, origin + QPointF(3, 1) * mm);
            near(boxOf(imageOf(s, v), inked), strokes.adjusted(-half, -half, half, half), 1);
        }
    }

    void theMarkerCoversItsPixels()
    {
        struct Row {
            quint8 type;
            double x, y, halfWidth, halfHeight; // millimetres
        };
        for (const View &v : views()) {
            const double mm = v.zoom * v.pixelsPerMm;
            for (const Row &r :
                 {Row{1, 3, 1, 3, 3}, {2, 3, 2, 1.5, 1}, {3, 3, 0.5, 3, 1.5}, {3, 3, 1, 3, 3}}) {
                const double right = std::nearbyint(r.halfWidth * mm),
                             down = std::nearbyint(r.halfHeight * mm);
                const QRectF expected(300 - right, 250 - down, 2 * right + 1, 2 * down + 1); // around a pixel
                near(boxOf(imageOf(marked(r.type, r.x, r.y), v), red), expected, 0.5);
            }
            QCOMPARE(imageOf(marked(3, 3, 1), v), imageOf(marked(1, 3, 0), v));
            for (const quint8 type : {0, 4}) QVERIFY(boxOf(imageOf(marked(type, 3, 3), v), red).isEmpty());
        }
    }

    void heightsAreRoundedTwiceToEven()
    {
        struct Row {
            float size, factor, same;           // whole pixels, 0 = no glyph
        };
        for (const Row &r :
             {Row{0.5f, 1, 0}, {20.5f, 1, 20}, {21.5f, 1, 22}, {50.4f, 0.25f, 12}, {30, 0, 0}}) {
            tSid s = letter(r.size);
            s.YwFact = r.factor;
            QCOMPARE(imageOf(s), imageOf(letter(r.same)));
            QCOMPARE(boxOf(imageOf(s), inked).isEmpty(), r.same == 0);
        }
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
        const QImage image = rgbOf(d.picture(odd, 1));
        QCOMPARE(image, image.mirrored(true, true));
        const auto across = [&](double mm) { return image.pixelColor(100 + qRound(mm * 11.34), 3); };
        QCOMPARE(across(0), QColor(0, 255, 0));
        QCOMPARE(across(-5), QColor(0, 200, 0));
        QCOMPARE(across(8), QColor(128, 128, 128));
        QCOMPARE(across(8.5), QColor(0, 0, 0));
        d.zoom = 0.5;                           // lines of 1 mm would be a surface
        QVERIFY(boxOf(rgbOf(d.picture(odd, 1)), grey).isEmpty());
        QCOMPARE(pixelsPerCentimetre(1280, 0), 40.0); // a device that does not know its size
        QCOMPARE(pixelsPerCentimetre(1280, 256), 50.0);
    }
};
QVDC_TEST(tst_SymbolDrawing)
#include "tst_SymbolDrawing.moc"
