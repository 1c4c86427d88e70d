#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

/// The ground that the sample village stands on. Village coordinates: u along the streets, v across them,
/// metres.
namespace refhost::village {

struct Spot {
    double u = 0, v = 0;
    Spot operator+(Spot o) const { return {u + o.u, v + o.v}; }
    Spot operator-(Spot o) const { return {u - o.u, v - o.v}; }
    Spot operator*(double f) const { return {u * f, v * f}; }
};
inline double lengthOf(Spot s) { return std::hypot(s.u, s.v); }
inline Spot unit(Spot s) { return s * (1 / lengthOf(s)); }
inline Spot leftOf(Spot s) { return {-s.v, s.u}; }
inline Spot between(Spot a, Spot b, double t) { return a + (b - a) * t; }

/// Own numbers: the standard library's distributions differ from one platform to the next.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_state(seed) {}
    double unit();                                  ///< [0, 1)
    double in(double a, double b) { return a + (b - a) * unit(); }
    int below(int n) { return int(unit() * n); }
    bool chance(double p) { return unit() < p; }
private:
    std::uint64_t m_state;
};

/// A line given by a function: v of u for the streets along the valley and the brook, u of v for the cross
/// streets.
using Course = double (*)(double);
double northEdge(double u);
double upperStreet(double u);
double mainStreet(double u);
double lowerStreet(double u);
double brook(double u);
double westLane(double v);
double churchLane(double v);
double schoolLane(double v);
double eastLane(double v);
double fieldLane(double v);                         ///< over the brook to the fields
double westEnd(double v);
double eastEnd(double v);

inline constexpr double kHalfUpper = 5, kHalfMain = 8, kHalfLower = 5.5, kHalfLane = 4.5, kHalfBrook = 4;
inline constexpr double kBridgeAt = 128;            ///< u of the road over the brook

struct Place {
    double x = 0, y = 0;                            ///< easting and northing
};
Place placeOf(Spot);                                ///< rounded to the centimetre
Spot spotOf(Place);                                 ///< back, without rounding
double turnOf(Spot direction);                      ///< degrees anticlockwise from east
double heightAt(Place);                             ///< metres above the Baltic

} // namespace refhost::village
