#include "sample/VillageGround.h"

#include <numbers>

namespace refhost::village {
namespace {

constexpr double kTurn = -11.3 * std::numbers::pi / 180;   // of the valley against east
constexpr Place kCentre{650426.38, 239868.74};

double rounded(double metres) { return std::round(metres * 100) / 100; }

} // namespace

double Dice::unit()
{
    m_state += 0x9E3779B97F4A7C15ull;
    std::uint64_t z = m_state;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return double((z ^ (z >> 31)) >> 11) * 0x1.0p-53;
}

double northEdge(double u) { return 224 + 11 * std::sin(u / 130 + 0.4) + 5 * std::sin(u / 47); }
double upperStreet(double u) { return 122 + 15 * std::sin(u / 150 + 0.6) + 3 * std::sin(u / 57); }
double mainStreet(double u) { return 17 * std::sin(u / 165 - 0.4) + 4 * std::sin(u / 71 + 1); }
double lowerStreet(double u) { return -126 + 13 * std::sin(u / 140 + 2.1) + 3 * std::sin(u / 66); }
double brook(double u) { return -238 + 15 * std::sin(u / 105 + 1) + 6 * std::sin(u / 39); }
double westLane(double v) { return -238 + 0.14 * v + 2 * std::sin(v / 30); }
double churchLane(double v) { return -66 - 0.1 * v + 3 * std::sin(v / 37); }
double schoolLane(double v) { return kBridgeAt + 0.07 * (v + 130) + 2.5 * std::sin((v + 130) / 41); }
double eastLane(double v) { return 268 - 0.13 * v + 2 * std::sin(v / 33); }
double fieldLane(double v) { return kBridgeAt + 0.06 * (v + 130); }
double westEnd(double v) { return -366 - 0.02 * v; }
double eastEnd(double v) { return 370 - 0.03 * v; }

Place placeOf(Spot s)
{
    const double c = std::cos(kTurn), d = std::sin(kTurn);
    return {rounded(kCentre.x + c * s.u - d * s.v), rounded(kCentre.y + d * s.u + c * s.v)};
}

Spot spotOf(Place p)
{
    const double c = std::cos(kTurn), d = std::sin(kTurn), x = p.x - kCentre.x, y = p.y - kCentre.y;
    return {c * x + d * y, -d * x + c * y};
}

double turnOf(Spot direction)
{
    return (std::atan2(direction.v, direction.u) + kTurn) * 180 / std::numbers::pi;
}

double heightAt(Place p)
{
    const Spot s = spotOf(p);
    const double fromBrook = s.v - brook(s.u);
    const double slope = fromBrook > 0 ? 0.026 * fromBrook : -0.045 * fromBrook;
    const double swell =
        1.6 * std::sin(s.u / 110 + 0.8) * std::cos(s.v / 140) + 0.7 * std::sin((s.u + s.v) / 61);
    return 142.4 - 0.006 * s.u + slope + swell * std::min(1.0, std::abs(fromBrook) / 60);
}

} // namespace refhost::village
