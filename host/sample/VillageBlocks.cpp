#include "sample/VillageBlocks.h"

#include <algorithm>

namespace refhost::village {
namespace {

constexpr double kMiddle = 0.5; // t at which the gardens of two fronts meet, on the average

} // namespace

Spot Plot::at(double across, double deep) const
{
    const Spot in = unit(between(backLeft, backRight, 0.5) - between(frontLeft, frontRight, 0.5));
    return frontLeft + front() * across + in * deep;
}

Spot Block::at(double s, double t) const
{
    Spot p{0, (bottom(0) + top(0)) / 2};
    for (int i = 0; i < 8; ++i) {                   // the sides bend: approach the place that is on both
        const double l = left(p.v) + leftHalf, r = right(p.v) - rightHalf;
        p.u = l + (r - l) * s;
        const double lo = bottom(p.u) + bottomHalf, hi = top(p.u) - topHalf;
        p.v = lo + (hi - lo) * t;
    }
    return p;
}

Spot Block::back(double s, bool top_) const
{
    if (frontTop != frontBottom) return at(s, top_ ? 0 : 1);
    return at(s, kMiddle + 0.05 * std::sin(7 * s + leftHalf * 3 + plotWidth) + 0.02 * std::sin(23 * s));
}

std::vector<double> Block::cuts(Dice &dice, bool top_) const
{
    const double length = lengthOf(corner(1, top_) - corner(0, top_));
    std::vector<double> widths;
    double sum = 0;
    while (sum < length - plotWidth * 0.6) {
        const double kind = dice.unit();
        const double w = plotWidth * (kind < 0.2    ? dice.in(0.62, 0.8)
                                      : kind > 0.85 ? dice.in(1.25, 1.6)
                                                    : dice.in(0.85, 1.15));
        widths.push_back(w);
        sum += w;
    }
    std::vector<double> at{0};
    for (double w : widths) at.push_back(std::min(1.0, at.back() + w / sum));
    at.back() = 1;
    return at;
}

std::vector<Block> blocks()
{
    constexpr double lane = kHalfLane, end = 0;
    return {
        {westEnd, churchLane, end, lane, upperStreet, northEdge, kHalfUpper, 0, true, false, 19},
        {churchLane, eastLane, lane, lane, upperStreet, northEdge, kHalfUpper, 0, true, false, 18},
        {eastLane, eastEnd, lane, end, upperStreet, northEdge, kHalfUpper, 0, true, false, 21},
        {westEnd, churchLane, end, lane, mainStreet, upperStreet, kHalfMain, kHalfUpper, true, true, 18},
        {churchLane, eastLane, lane, lane, mainStreet, upperStreet, kHalfMain, kHalfUpper, true, true, 17},
        {eastLane, eastEnd, lane, end, mainStreet, upperStreet, kHalfMain, kHalfUpper, true, true, 20},
        {westEnd, westLane, end, lane, lowerStreet, mainStreet, kHalfLower, kHalfMain, true, true, 20},
        {westLane, churchLane, lane, lane, lowerStreet, mainStreet, kHalfLower, kHalfMain, true, true, 17},
        {churchLane, schoolLane, lane, lane, lowerStreet, mainStreet, kHalfLower, kHalfMain, true, true, 18},
        {schoolLane, eastLane, lane, lane, lowerStreet, mainStreet, kHalfLower, kHalfMain, true, true, 19},
        {eastLane, eastEnd, lane, end, lowerStreet, mainStreet, kHalfLower, kHalfMain, true, true, 21},
        {westEnd, fieldLane, end, lane, brook, lowerStreet, kHalfBrook, kHalfLower, false, true, 19},
        {fieldLane, eastEnd, lane, end, brook, lowerStreet, kHalfBrook, kHalfLower, false, true, 20},
    };
}

} // namespace refhost::village
