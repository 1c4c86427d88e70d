#pragma once

#include "facade/contract/DrawingObjects.h"

#include <map>

namespace refhost {

/// The characters of a file of strokes by their codes, blanks included; empty = it cannot be read. A capital
/// is one letter height.
std::map<qint32, ZolWDoc::Glyph> readStrokeFile(const QString &path);

} // namespace refhost
