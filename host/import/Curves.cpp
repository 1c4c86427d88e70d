#include "import/Curves.h"

#include <algorithm>
#include <numbers>

namespace refhost {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTurn = 2 * kPi;
constexpr double kDegree = kPi / 180;

int stepsFor(double sweep)
{
    return std::max(1, int(std::ceil(std::abs(sweep) / (2 * std::acos(1 - kChord)))));
}

/// Anticlockwise sweep from `from` to `to`; a whole turn where they are the same.
double sweepOf(double from, double to)
{
    const double sweep = std::fmod(to - from, kTurn);
    return sweep <= 1e-12 ? sweep + kTurn : sweep;
}

Vec2 onSpline(const Spline &s, size_t span, double t)
{
    const size_t p = size_t(s.degree);
    std::vector<Vec2> points(p + 1);
    std::vector<double> weights(p + 1);
    for (size_t j = 0; j <= p; ++j) {
        const size_t i = span - p + j;
        weights[j] = s.weights.size() == s.control.size() ? s.weights[i] : 1;
        points[j] = s.control[i] * weights[j];
    }
    for (size_t r = 1; r <= p; ++r)
        for (size_t j = p; j >= r; --j) {
            const double low = s.knots[span - p + j], high = s.knots[span + 1 + j - r];
            const double a = high > low ? (t - low) / (high - low) : 0;
            points[j] = points[j - 1] * (1 - a) + points[j] * a;
            weights[j] = weights[j - 1] * (1 - a) + weights[j] * a;
        }
    return weights[p] != 0 ? points[p] * (1 / weights[p]) : points[p];
}

/// Halves a piece until its middle lies on its chord.
struct Halving {
    const Spline &spline;
    size_t span;
    double tolerance;
    std::vector<Vec2> &out;
    void add(double t0, Vec2 a, double t1, Vec2 b, int depth)
    {
        const double t = (t0 + t1) / 2;
        const Vec2 middle = onSpline(spline, span, t), half = (a + b) * 0.5;
        if (depth > 10 || (depth > 2 && length(middle - half) <= tolerance)) return out.push_back(b);
        add(t0, a, t, middle, depth + 1);
        add(t, middle, t1, b, depth + 1);
    }
};

/// A smooth line through points; drawings give these alone only where there are no control points.
std::vector<Vec2> throughPoints(const std::vector<Vec2> &p)
{
    std::vector<Vec2> out;
    for (size_t i = 0; i + 1 < p.size(); ++i) {
        const Vec2 before = i > 0 ? p[i - 1] : p[i], after = i + 2 < p.size() ? p[i + 2] : p[i + 1];
        for (int k = 0; k < 8; ++k) {
            const double t = k / 8.0;
            const Vec2 a = p[i], b = p[i + 1], d1 = (b - before) * 0.5, d2 = (after - a) * 0.5;
            out.push_back(a * (2 * t * t * t - 3 * t * t + 1) + d1 * (t * t * t - 2 * t * t + t)
                          + b * (3 * t * t - 2 * t * t * t) + d2 * (t * t * t - t * t));
        }
    }
    if (!p.empty()) out.push_back(p.back());
    return out;
}

} // namespace

Affine planeOf(double nx, double ny, double nz, double elevation)
{
    const double n = std::sqrt(nx * nx + ny * ny + nz * nz);
    if (n == 0 || (nx == 0 && ny == 0 && nz > 0)) return {};
    nx /= n, ny /= n, nz /= n;
    // Close to the world's axis the first axis is taken across the world's y, else across its z.
    const bool upright = std::abs(nx) < 1 / 64.0 && std::abs(ny) < 1 / 64.0;
    double ax = upright ? nz : -ny, ay = upright ? 0 : nx, az = upright ? -nx : 0;
    const double a = std::sqrt(ax * ax + ay * ay + az * az);
    ax /= a, ay /= a, az /= a;
    return {{ax, ay}, {ny * az - nz * ay, nz * ax - nx * az}, {nx * elevation, ny * elevation}};
}

std::vector<Vertex> arcVertices(Vec2 c, double r, double from, double to)
{
    const double sweep = sweepOf(from, to);
    const int pieces = sweep > kPi ? 2 : 1;     // a bulge of a whole turn would be infinite
    std::vector<Vertex> out;
    for (int i = 0; i <= pieces; ++i) {
        const double a = from + sweep * i / pieces;
        out.push_back(
            {c.x + r * std::cos(a), c.y + r * std::sin(a), i < pieces ? std::tan(sweep / pieces / 4) : 0});
    }
    return out;
}

std::vector<Vertex> circleVertices(Vec2 c, double r) { return {{c.x - r, c.y, 1}, {c.x + r, c.y, 1}}; }

void appendFlat(std::vector<Vec2> &points, const Vertex &a, const Vertex &b)
{
    const Vec2 p = pointOf(a), q = pointOf(b), chord = q - p;
    if (a.bulge != 0 && length(chord) > 0) {
        const double sweep = 4 * std::atan(a.bulge);
        const double k = (1 - a.bulge * a.bulge) / (4 * a.bulge);
        const Vec2 centre = (p + q) * 0.5 + Vec2{-chord.y, chord.x} * k;
        const int n = stepsFor(sweep);
        for (int i = 1; i < n; ++i) points.push_back(centre + turned(sweep * i / n).vector(p - centre));
    }
    points.push_back(q);
}

std::vector<Vec2> flattened(std::span<const Vertex> line, bool closed)
{
    std::vector<Vec2> out;
    if (line.empty()) return out;
    out.push_back(pointOf(line.front()));
    for (size_t i = 1; i < line.size(); ++i) appendFlat(out, line[i - 1], line[i]);
    if (closed && line.size() > 1) {
        appendFlat(out, line.back(), line.front());
        out.pop_back();
    }
    return out;
}

std::vector<Vec2> EllipseArc::flattened() const
{
    const double sweep = to == from ? kTurn : std::clamp(to - from, -kTurn, kTurn);
    const int n = stepsFor(sweep);
    std::vector<Vec2> out;
    for (int i = 0; i <= n; ++i) {
        const double t = from + sweep * i / n;
        out.push_back(centre + u * std::cos(t) + v * std::sin(t));
    }
    return out;
}

Element EllipseArc::element() const
{
    const double t = std::atan2(2 * dot(u, v), dot(u, u) - dot(v, v)) / 2;
    const Vec2 big = u * std::cos(t) + v * std::sin(t), small = v * std::cos(t) - u * std::sin(t);
    Element e;
    e.kind = ElementKind::Ellipse;
    e.vertices = {vertexAt(centre), vertexAt(big)};
    e.ratio = length(big) > 0 ? length(small) / length(big) : 1;
    const bool whole = from == to || std::abs(std::abs(to - from) - kTurn) < 1e-9;
    if (whole) return e;
    const bool leftTurn = cross(big, small) >= 0;
    e.from = leftTurn ? from - t : t - to;
    e.to = leftTurn ? to - t : t - from;
    return e;
}

EllipseArc ellipseOf(const Element &e)
{
    const Vec2 u = pointOf(e.vertices.at(1));
    return {pointOf(e.vertices.at(0)), u, Vec2{-u.y, u.x} * e.ratio, e.from, e.to};
}

bool Spline::sound() const
{
    return degree >= 1 && degree <= 25 && control.size() > size_t(degree)
           && knots.size() == control.size() + size_t(degree) + 1 && std::ranges::is_sorted(knots);
}

std::vector<Vec2> Spline::flattened() const
{
    if (!sound()) return throughPoints(fit.empty() ? control : fit);
    Vec2 low = control.front(), high = low;
    for (Vec2 p : control)
        low = {std::min(low.x, p.x), std::min(low.y, p.y)},
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    std::vector<Vec2> out{onSpline(*this, size_t(degree), knots[size_t(degree)])};
    for (size_t span = size_t(degree); span < control.size(); ++span) {
        const double t0 = knots[span], t1 = knots[span + 1];
        if (!(t1 > t0)) continue;
        const double tolerance = std::max(length(high - low) * kChord / 4, 1e-12);
        Halving{*this, span, tolerance, out}.add(t0, out.back(), t1, onSpline(*this, span, t1), 0);
    }
    return out;
}

namespace {

/// Of a vector, 0 to 360 degrees.
double directionOf(Vec2 v)
{
    const double degrees = std::atan2(v.y, v.x) / kDegree;
    return degrees < -1e-9 ? degrees + 360 : std::max(degrees, 0.0);
}

void mapText(Element &e, const Affine &map)
{
    const double a = e.rotation * kDegree;
    const Vec2 along = map.vector({std::cos(a), std::sin(a)}), up = map.vector({-std::sin(a), std::cos(a)});
    e.size *= map.similar() ? length(up) : std::abs(map.determinant()) / std::max(length(along), 1e-300);
    const bool mirrored = map.determinant() < 0;
    if (!mirrored || up.y < 0) {
        e.rotation = directionOf(along);
        // Upside down: what stood on the base line now hangs from it.
        if (mirrored) e.align = (e.align & ~24) | ((e.align & 24) == 0 ? 24 : 0);
        return;
    }
    e.rotation = directionOf({up.y, -up.x});
    if ((e.align & 6) != 6) e.align ^= 2;
}

void mapSymbol(Element &e, const Affine &map)
{
    const double a = e.rotation * kDegree;
    const Affine whole = map * turned(a) * scaled(e.scale, std::abs(e.scale));
    const double size = std::sqrt(std::abs(whole.determinant()));
    const bool mirrored = whole.determinant() < 0;
    const Vec2 axis = mirrored ? whole.x * -1 : whole.x;
    e.scale = mirrored ? -size : size;
    e.rotation = directionOf(axis);
}

void mapLine(Element &e, const Affine &map)
{
    const bool curved = std::ranges::any_of(e.vertices, [](const Vertex &v) { return v.bulge != 0; });
    if (curved && !map.similar()) {
        std::vector<Vertex> flat;
        for (Vec2 p : flattened(e.vertices, e.closed)) flat.push_back(vertexAt(p));
        e.vertices = std::move(flat);
    }
    const double turn = map.determinant() < 0 ? -1 : 1;
    for (Vertex &v : e.vertices) v = vertexAt(map.point(pointOf(v)), v.bulge * turn);
}

bool wholeCircle(const Element &e)
{
    return e.kind == ElementKind::Line && e.closed && e.vertices.size() == 2
           && std::abs(e.vertices[0].bulge) == 1 && e.vertices[0].bulge == e.vertices[1].bulge;
}

} // namespace

Element mapped(const Element &shape, const Affine &map)
{
    if (map.identity()) return shape;
    Element e = shape;
    if (wholeCircle(e) && !map.similar()) {
        const Vec2 a = pointOf(e.vertices[0]), u = (pointOf(e.vertices[1]) - a) * 0.5;
        e = EllipseArc{map.point(a + u), map.vector(u), map.vector({-u.y, u.x})}.element();
    } else if (e.kind == ElementKind::Ellipse) {
        const EllipseArc arc = ellipseOf(e);
        e = EllipseArc{map.point(arc.centre), map.vector(arc.u), map.vector(arc.v), arc.from, arc.to}
                .element();
    } else {
        if (e.kind == ElementKind::Text) mapText(e, map);
        if (e.kind == ElementKind::Symbol) mapSymbol(e, map);
        mapLine(e, map);
    }
    return e;
}

std::vector<std::vector<Vec2>> strokesOf(const Element &e)
{
    switch (e.kind) {
    case ElementKind::Point: return {{pointOf(e.vertices.at(0)), pointOf(e.vertices.at(0))}};
    case ElementKind::Ellipse: return {ellipseOf(e).flattened()};
    case ElementKind::Line: {
        auto points = flattened(e.vertices, e.closed);
        if (e.closed && points.size() > 1) points.push_back(points.front());
        return {std::move(points)};
    }
    case ElementKind::Fill: {
        std::vector<std::vector<Vec2>> all;
        const std::vector<int> begins = e.rings.empty() ? std::vector<int>{0} : e.rings;
        for (size_t i = 0; i < begins.size(); ++i) {
            const size_t from = size_t(begins[i]),
                         to = i + 1 < begins.size() ? size_t(begins[i + 1]) : e.vertices.size();
            auto ring = flattened(std::span(e.vertices).subspan(from, to - from), true);
            if (!ring.empty()) ring.push_back(ring.front());
            all.push_back(std::move(ring));
        }
        return all;
    }
    case ElementKind::Text:
    case ElementKind::Symbol: break;
    }
    return {};
}

} // namespace refhost
