#include "fonts/GlyphPainter.h"

#include <QPainter>
#include <QPolygonF>

namespace QV_DOC_CONTROLS {
namespace {

QPolygonF placed(const std::vector<ZolWDoc::PointMm> &stroke, const GlyphPlace &place)
{
    QPolygonF line;
    line.reserve(qsizetype(stroke.size()) + 1);
    for (const ZolWDoc::PointMm &p : stroke)
        line.append(place.origin + QPointF(p.x, -p.y) * place.height);
    return line;
}

} // namespace

void drawGlyph(QPainter &painter, const ZolWDoc::Glyph &glyph, const GlyphPlace &place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(place.color, place.penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const auto &stroke : glyph.strokes) {
        const QPolygonF line = placed(stroke, place);
        if (line.size() == 1) painter.drawPoint(line.first());
        else painter.drawPolyline(line);
    }
    painter.restore();
}

QRectF boundsOf(const ZolWDoc::Glyph &glyph, const GlyphPlace &place)
{
    QPolygonF all;
    for (const auto &stroke : glyph.strokes) all += placed(stroke, place);
    if (all.isEmpty()) return {};
    const double half = place.penWidth / 2;
    return all.boundingRect().adjusted(-half, -half, half, half);
}

} // namespace QV_DOC_CONTROLS
