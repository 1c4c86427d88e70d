#include "window/Lettering.h"

#include "rules/CharacterSet.h"

#include <QFont>
#include <QFontMetricsF>

#include <cmath>

namespace refhost {
namespace {

constexpr int kPixels = 100;           // outlines are taken at this size and scaled
constexpr double kRowDistance = 1.6;   // letter heights, for text types that name none
constexpr int kHorizontal = 6, kCentre = 6, kRight = 2, kVertical = 24, kBottom = 8, kBaseline = 24;

double orOne(double factor) { return factor == 0 ? 1 : factor; }

QFont fontOf(const QString &face, int weight, bool italic)
{
    QFont font(face);
    font.setPixelSize(kPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    if (weight > 0) font.setWeight(QFont::Weight(std::clamp(weight, 1, 1000)));
    font.setItalic(italic);
    return font;
}

double leftOf(int align, double width)
{
    switch (align & kHorizontal) {
    case kCentre: return -width / 2;
    case kRight: return -width;
    default: return 0;
    }
}

/// Largest distance of the path's own points from the origin.
double extentOf(const QPainterPath &path)
{
    const QRectF r = path.controlPointRect();
    return std::hypot(std::max(std::abs(r.left()), std::abs(r.right())),
                      std::max(std::abs(r.top()), std::abs(r.bottom())));
}

SymbolShape strokedShape(const ZolWDoc::tSid &s, const ZolWDoc::Glyph &glyph)
{
    SymbolShape shape;
    shape.stroked = true;
    shape.width = s.Weight / 100.0;
    for (const auto &stroke : glyph.strokes) {
        QPolygonF line;
        for (const ZolWDoc::PointMm &p : stroke)
            line.append({p.x * s.Size_mm + s.MoveXmm, p.y * s.Size_mm + s.MoveYmm});
        if (line.size() == 1) line.append(line.front()); // a dot
        shape.path.addPolygon(line);
    }
    shape.extent = extentOf(shape.path) + shape.width;
    return shape;
}

double baselineOf(int align, const QFontMetricsF &m)
{
    switch (align & kVertical) {
    case kBaseline: return 0;
    case kBottom: return -m.descent();
    default: return m.ascent();
    }
}

} // namespace

SymbolShape shapeOf(const ZolWDoc::tSid &s, const ZolWDoc::Glyph &vectorGlyph)
{
    if (s.Type == 1) return strokedShape(s, vectorGlyph);
    SymbolShape shape;
    if (s.Type != 0) return shape;
    QFont font = fontOf(s.Facename, 0, s.Italic);
    font.setUnderline(s.Underline);
    font.setStrikeOut(s.StrikeThrough);
    const QFontMetricsF metrics(font);
    const QChar shown = QV_DOC_CONTROLS::characterOf(s.Code, s.CharSet);
    if (shown.isNull()) return shape;
    const QString character(shown);
    QPainterPath glyph;
    glyph.addText(leftOf(s.Align, metrics.horizontalAdvance(character)), baselineOf(s.Align, metrics), font,
                  character);
    const double mm = s.Size_mm / kPixels;
    const QTransform place(mm * orOne(s.XwFact), 0, 0, -mm * orOne(s.YwFact), s.MoveXmm, s.MoveYmm);
    shape.path = place.map(glyph);
    shape.extent = extentOf(shape.path);
    return shape;
}

QPainterPath textShape(const QString &text, const ZolWDoc::tTxd *type, int align)
{
    static const ZolWDoc::tTxd plain;
    const ZolWDoc::tTxd &t = type ? *type : plain;
    QFont font = fontOf(t.Facename, t.Weight, t.Italic);
    font.setUnderline(t.Underline);
    font.setStrikeOut(t.StrikeThrough);
    const QFontMetricsF metrics(font);
    const double letter = metrics.capHeight() > 0 ? metrics.capHeight() : 0.7 * kPixels;
    const double rowStep = letter * (t.RowDist > 0 ? t.RowDist : kRowDistance);
    const QStringList rows = text.split(u'\n');
    const double last = double(rows.size() - 1);
    double first = 0; // baseline of the first row, downwards from the base point
    if ((align & kVertical) == kBaseline) first = -rowStep * std::clamp<double>(t.BaseRow - 1.0, 0, last);
    else if ((align & kVertical) == kBottom) first = -rowStep * last;
    else first = letter;
    QPainterPath path;
    for (qsizetype i = 0; i < rows.size(); ++i)
        path.addText(leftOf(align, metrics.horizontalAdvance(rows[i])), first + rowStep * double(i), font,
                     rows[i]);
    return QTransform::fromScale(orOne(t.XwFact) / letter, -orOne(t.YwFact) / letter).map(path);
}

} // namespace refhost
