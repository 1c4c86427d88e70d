#pragma once

#include "facade/contract/DrawingObjects.h"

#include <QColor>
#include <QRectF>

class QPainter;

namespace QV_DOC_CONTROLS {

/// Where and how a character of strokes is drawn; lengths are those of the painter, whose y goes downwards.
struct GlyphPlace {
    QPointF origin;       ///< of the glyph: the left end of its base line
    double height = 0;    ///< of a letter: what one unit of the glyph becomes
    double penWidth = 0;  ///< 0 = as thin as the device can
    QColor color;
};
/// Draws the strokes with round ends and joints over what is there; a stroke of one point is a dot. The
/// painter's state stays.
void drawGlyph(QPainter &painter, const ZolWDoc::Glyph &glyph, const GlyphPlace &place);

/// What the strokes cover when drawn there, their width included; null when there are none.
QRectF boundsOf(const ZolWDoc::Glyph &glyph, const GlyphPlace &place);

} // namespace QV_DOC_CONTROLS
