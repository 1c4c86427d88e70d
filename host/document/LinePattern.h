#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <span>
#include <vector>

/// Dashes and places along a line. Plain geometry: lengths of the line, the pattern and the rule are in one
/// unit.
namespace refhost {

using Polyline = std::vector<ZolWDoc::PointMm>;

double lengthOf(const Polyline &);

/// The strokes of a pattern (dash, gap, dash, ...), which starts anew at the beginning of the line. A dash of
/// length 0 is a dot: two equal points. The whole line where the pattern is empty, not usable, or too fine to
/// be seen.
std::vector<Polyline> dashesOf(const Polyline &line, std::span<const double> pattern);

/// Where one copy of a symbol stands.
struct Place {
    ZolWDoc::PointMm at;
    double angle = 0;       ///< degrees anticlockwise, the line's direction plus the rule's own turn
};

/// The places that the rule names, on a line or, when first and last point are the same, around a closed one.
///
/// Divisions lie between the segments, so they leave out the ends of an open line; a closed line is divided
/// at its beginning too. Copies at one place follow the line at their distance: centred on inner places,
/// inwards from ends. A symbol that would stand beyond an end stands on the prolongation of the line. Unknown
/// rules name no place.
std::vector<Place> placesOf(const Polyline &line, const ZolWDoc::tPenStyleSi &rule);

} // namespace refhost
