#pragma once

#include <cmath>

namespace refhost {

struct Vec2 {
    double x = 0, y = 0;
};
inline Vec2 operator+(Vec2 a, Vec2 b) { return {a.x + b.x, a.y + b.y}; }
inline Vec2 operator-(Vec2 a, Vec2 b) { return {a.x - b.x, a.y - b.y}; }
inline Vec2 operator*(Vec2 a, double f) { return {a.x * f, a.y * f}; }
inline double dot(Vec2 a, Vec2 b) { return a.x * b.x + a.y * b.y; }
inline double cross(Vec2 a, Vec2 b) { return a.x * b.y - a.y * b.x; }
inline double length(Vec2 a) { return std::hypot(a.x, a.y); }

/// A plane map: the images of the two axes and of the origin.
struct Affine {
    Vec2 x{1, 0}, y{0, 1}, origin;

    Vec2 vector(Vec2 v) const { return x * v.x + y * v.y; }
    Vec2 point(Vec2 p) const { return vector(p) + origin; }
    double determinant() const { return cross(x, y); }
    bool identity() const
    {
        return x.x == 1 && x.y == 0 && y.x == 0 && y.y == 1 && origin.x == 0 && origin.y == 0;
    }
    /// Keeps angles (mirrored or not), within what drawings hold of their factors.
    bool similar() const
    {
        const double a = dot(x, x), b = dot(y, y);
        return a > 0 && std::abs(a - b) <= 1e-6 * (a + b) && std::abs(dot(x, y)) <= 1e-6 * (a + b);
    }
};
/// First `inner`, then `outer`.
inline Affine operator*(const Affine &outer, const Affine &inner)
{
    return {outer.vector(inner.x), outer.vector(inner.y), outer.point(inner.origin)};
}
inline Affine shifted(Vec2 by) { return {{1, 0}, {0, 1}, by}; }
inline Affine scaled(double sx, double sy) { return {{sx, 0}, {0, sy}, {}}; }
inline Affine turned(double radians)
{
    const double c = std::cos(radians), s = std::sin(radians);
    return {{c, s}, {-s, c}, {}};
}

/// The plane of an object's own coordinate system, looked at from above: its normal decides the axes by the
/// arbitrary axis rule, its elevation shifts tilted planes.
Affine planeOf(double nx, double ny, double nz, double elevation);

} // namespace refhost
