#pragma once

#include "facade/contract/Records.h"

#include <QPainterPath>

namespace QV_DOC_CONTROLS {

/// The outline of a symbol's character, y downwards, its reference point at the origin: where the text-align
/// number says, on the cell that the face's own ascent and descent make, in whole pixels. The record's
/// weight, slant and lines are not applied, nor is its width factor, on purpose.
///
/// `height`: negative = of the letter's em square, positive = of the cell, 0 = nothing is drawn. A face that
/// this machine lacks is replaced by one of its family; a character that the face lacks is its sign for that.
QPainterPath trueTypeGlyph(const ZolWDoc::tSid &symbol, int height);

} // namespace QV_DOC_CONTROLS
