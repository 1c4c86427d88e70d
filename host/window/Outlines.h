#pragma once

#include "document/Elements.h"

#include <QPolygonF>

namespace refhost {

/// The geometry of an element as straight pieces, in metres relative to `origin`. Arcs are cut so finely that
/// nothing is seen of it at any sensible magnification. A closed line repeats its first point. One polygon
/// per ring of a fill, one point for points, texts and symbols.
std::vector<QPolygonF> outlinesOf(const Element &, QPointF origin);

} // namespace refhost
