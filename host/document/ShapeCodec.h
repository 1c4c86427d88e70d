#pragma once

#include "document/Elements.h"

#include "facade/contract/DrawingObjects.h"

#include <QByteArray>

namespace refhost {

/// Geometry as bytes: a header of flags, then only what differs from the defaults; little-endian doubles,
/// exact.
QByteArray shapeBytes(const Element &);
bool readShape(const QByteArray &, Element &);      ///< false = damaged

QByteArray strokeBytes(const ZolWDoc::Glyph &);     ///< the strokes alone
bool readStrokes(const QByteArray &, ZolWDoc::Glyph &);

} // namespace refhost
