#pragma once

#include "facade/contract/DrawingObjects.h"

#include <map>

namespace refhost {

/// Adds the letters with accents that can be made of a font's plain letters and strokes of our own: those of
/// Hungarian, Romanian and Vietnamese and of their neighbours. Letters that are there stay.
///
/// Accents stand over the top of the letter, the second one over the first; the dot of an i or j gives way
/// to them.
void addAccented(std::map<qint32, ZolWDoc::Glyph> &letters);

} // namespace refhost
