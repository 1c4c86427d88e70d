#pragma once

#include "document/Elements.h"
#include "import/Curves.h"
#include "import/DxfScan.h"

namespace refhost {

/// One family of parallel lines of a pattern hatch, in drawing units.
struct HatchFamily {
    double angle = 0;           ///< radians
    Vec2 base, offset;          ///< a point of one line, and from it to the next line
    std::vector<double> dashes; ///< as of line types; empty = through
};
struct Hatch {
    bool solid = false, gradient = false;
    double elevation = 0;
    std::vector<std::vector<Vec2>> rings;
    std::vector<HatchFamily> families;
};
/// The reader takes seed points for boundaries and drops the pattern, so hatches are read from their groups.
Hatch hatchOf(const DxfPairs &);

/// A fill, or the lines of the pattern cut at the boundary. Where the pattern is missing or would be more
/// than `mostLines` lines, the boundary as closed lines: then `simplified` is set.
std::vector<Element> hatchShapes(const Hatch &, size_t mostLines, bool &simplified);

} // namespace refhost
