#include "fonts/SymbolDrawing.h"

#include "fonts/GlyphPainter.h"
#include "fonts/TrueTypeGlyph.h"
#include "fonts/VectorFonts.h"
#include "kit/forms/Contrast.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kTrueType = 0, kVector = 1;               // tSid::Type
constexpr int kCircle = 1, kRectangle = 2, kEllipse = 3; // tSid::ProtType

struct LineSet {
    double spacing;                             ///< millimetres
    QRgb color;
};
constexpr LineSet kGrid[] = {{1, 0x808080}, {5, 0x00c800}, {10, 0x00ff00}}; // the later over the earlier

double rounded(double value) { return std::nearbyint(value); } // halves to even
QPointF middleOf(QSize surface) { return {surface.width() / 2.0, surface.height() / 2.0}; }
QPoint middlePixel(QSize surface)
{
    return {int(rounded(surface.width() / 2.0)), int(rounded(surface.height() / 2.0))};
}

/// For lines that count pixels by their centres.
struct OnPixels {
    explicit OnPixels(QPainter &p) : painter(p)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.translate(0.5, 0.5);
    }
    ~OnPixels() { painter.restore(); }
    QPainter &painter;
};

} // namespace

void SymbolDrawing::paint(QPainter &painter, QSize surface) const
{
    painter.save();
    painter.setClipRect(QRect({}, surface), Qt::IntersectClip);
    painter.fillRect(QRect({}, surface), background);
    if (isComplete()) {
        if (grid) paintGrid(painter, surface);
        if (record->Type == kTrueType) paintTrueType(painter, surface);
        if (record->Type == kVector) paintStrokes(painter, surface);
        if (marker) paintMarker(painter, surface);
    }
    if (frame) {
        const OnPixels lines(painter);
        painter.setPen(QPen(blackOrWhiteOn(background), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(0, 0, surface.width() - 1, surface.height() - 1);
    }
    painter.restore();
}

bool SymbolDrawing::isComplete() const { return record && (record->Type != kVector || glyph); }

QPixmap SymbolDrawing::picture(QSize surface, double ratio) const
{
    QPixmap picture(surface * ratio);
    if (picture.isNull()) return picture;
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    paint(painter, surface);
    return picture;
}

/// Lines closer than two pixels would be a surface, and are left out.
void SymbolDrawing::paintGrid(QPainter &painter, QSize surface) const
{
    const QPoint middle = middlePixel(surface);
    for (const LineSet &set : kGrid) {
        const double step = set.spacing * scale();
        if (!(step >= 2)) continue;
        const int last = int(std::max(surface.width(), surface.height()) / step);
        for (int i = -last; i <= last; ++i) {
            const int away = int(rounded(i * step));
            painter.fillRect(middle.x() + away, 0, 1, surface.height(), QColor(set.color));
            painter.fillRect(0, middle.y() + away, surface.width(), 1, QColor(set.color));
        }
    }
}

void SymbolDrawing::paintTrueType(QPainter &painter, QSize surface) const
{
    constexpr double most = 1e7;                // pixels; beyond it outlines are nothing but rounding errors
    const double size = rounded(-double(record->Size_mm) * scale());
    const double height = rounded(size * double(record->YwFact));
    if (!(std::abs(height) <= most)) return;
    const QPointF middle = middleOf(surface);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rounded(double(record->MoveXmm) * scale() + middle.x()),
                      rounded(middle.y() - double(record->MoveYmm) * scale()));
    painter.fillPath(trueTypeGlyph(*record, int(height)), color);
    painter.restore();
}

void SymbolDrawing::paintStrokes(QPainter &painter, QSize surface) const
{
    const OnPixels lines(painter);
    const QPointF shift(double(record->MoveXmm), -double(record->MoveYmm));
    drawGlyph(painter, *glyph, {.origin = middlePixel(surface) + shift * scale(),
                               .height = double(record->Size_mm) * scale(),
                               .penWidth = rounded(record->Weight / 100.0 * scale()),
                               .color = color});
}

void SymbolDrawing::paintMarker(QPainter &painter, QSize surface) const
{
    const OnPixels lines(painter);
    const QPointF middle = middlePixel(surface);
    const double pen = record->ProtType == kRectangle ? 1 : 1.5; // a curve of one pixel would fade
    painter.setPen(QPen(QColor(255, 0, 0), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double x = record->ProtXmm * scale(), y = record->ProtYmm * scale();
    switch (record->ProtType) {
    case kCircle: return painter.drawEllipse(middle, rounded(x), rounded(x));
    case kEllipse: // here the second size is the ratio of height to width
        return painter.drawEllipse(middle, rounded(x), rounded(x * record->ProtYmm));
    case kRectangle: {
        const QPointF from(rounded(middle.x() - x / 2), rounded(middle.y() - y / 2));
        const QPointF to(rounded(middle.x() + x / 2), rounded(middle.y() + y / 2));
        return painter.drawRect(QRectF(from, to));
    }
    default: return;
    }
}

std::optional<ZolWDoc::Glyph> vectorGlyphOf(const ZolWDoc::tSid &symbol, const ZolWDoc::ZOLW_Doc *doc)
{
    if (symbol.Type != kVector) return {};
    const ZolWDoc::VectorFont *const font = vectorFont(doc, symbol.Facename);
    return font ? std::optional(font->glyph(symbol.Code)) : std::nullopt;
}

} // namespace QV_DOC_CONTROLS
