#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <QPainterPath>

namespace refhost {

/// What one symbol looks like at scale 1, unturned: millimetres on paper about its insertion point, y
/// upwards.
struct SymbolShape {
    QPainterPath path;
    bool stroked = false;  ///< false: the path is filled
    double width = 0;      ///< of the strokes, millimetres
    double extent = 0;     ///< largest distance from the insertion point, millimetres
};
SymbolShape shapeOf(const ZolWDoc::tSid &, const ZolWDoc::Glyph &vectorGlyph);

/// A text in its text type, unturned, about its base point, y upwards, in units of the letter height; `align`
/// as in tTxd. The letter height is that of a capital.
QPainterPath textShape(const QString &text, const ZolWDoc::tTxd *type, int align);

} // namespace refhost
