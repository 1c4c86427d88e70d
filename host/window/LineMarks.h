#pragma once

#include "window/Resources.h"
#include "window/SceneParts.h"

namespace refhost {

/// Dashes and symbols of lines of one type, in place. `lines` are local metres.
Pattern madePattern(const std::vector<QPolygonF> &lines, const ZolWDoc::tPenStyle &, const Resources &);

double meanDashMm(
    const ZolWDoc::tPenStyle &); ///< mean length of dashes and gaps, paper millimetres; 0 = continuous
double reachOf(const ZolWDoc::tPenStyle &,
               const Resources &); ///< how far its symbols stand out, metres; 0 = has none

} // namespace refhost
