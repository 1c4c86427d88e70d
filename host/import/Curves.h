#pragma once

#include "document/Elements.h"
#include "import/Affine.h"

#include <span>
#include <vector>

/// Curves as drawings give them, brought into the shapes that elements have. One unit throughout.
namespace refhost {

constexpr double kChord = 0.001;        ///< sagitta of flattened curves, relative to the radius or the extent

inline Vec2 pointOf(const Vertex &v) { return {v.x, v.y}; }
inline Vertex vertexAt(Vec2 p, double bulge = 0) { return {p.x, p.y, bulge}; }

/// Radians, anticlockwise.
std::vector<Vertex> arcVertices(Vec2 centre, double radius, double from, double to);
std::vector<Vertex> circleVertices(Vec2 centre, double radius);     ///< two half circles, to be closed

/// Appends the segment from `a` to `b`, without `a` itself, as straight pieces.
void appendFlat(std::vector<Vec2> &points, const Vertex &a, const Vertex &b);
/// A closed line's first point is not repeated.
std::vector<Vec2> flattened(std::span<const Vertex> line, bool closed);

/// An ellipse or a part of one, in either direction.
struct EllipseArc {
    Vec2 centre, u, v;          ///< half axes; any two conjugate ones
    double from = 0, to = 0;    ///< parameters between which it runs, radians; equal = the whole ellipse
    std::vector<Vec2> flattened() const;
    Element element() const;    ///< an ellipse by its principal axes
};
EllipseArc ellipseOf(const Element &);

struct Spline {
    int degree = 3;
    bool closed = false;
    std::vector<double> knots, weights;
    std::vector<Vec2> control, fit;
    bool sound() const;                     ///< knots and control points belong together
    std::vector<Vec2> flattened() const;   ///< through the fit points where there are no sound control points
};

/// What can be drawn of `shape` under the map: circles become ellipses and arcs chords where it is not
/// similar. Turns, sizes and alignments of texts follow; mirrored texts stay readable in the same place.
Element mapped(const Element &shape, const Affine &map);

/// The whole element as strokes of straight pieces; nothing for texts and symbols.
std::vector<std::vector<Vec2>> strokesOf(const Element &);

} // namespace refhost
