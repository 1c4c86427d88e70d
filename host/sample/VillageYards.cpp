#include "sample/VillageBlocks.h"
#include "sample/VillageDraft.h"

#include <algorithm>

namespace refhost::village {
namespace {

constexpr double kGardenAt = 38;         // metres from the street: yard before, garden behind

struct Landmark {
    double u;                            ///< on the main street
    bool north;
    const char16_t *name;
    double width, depth;                 ///< metres
    double setBack;
    bool church = false;
};
constexpr Landmark kLandmarks[] = {
    {-38, true, u"r.k. templom", 10, 24, 9, true},
    {22, true, u"községháza", 13, 11, 6},
    {64, true, u"posta", 9, 10, 3},
    {-112, true, u"művelődési ház", 12, 20, 7},
    {8, false, u"élelmiszerbolt", 12, 14, 4},
    {150, false, u"általános iskola", 15, 26, 8},
    {-150, false, u"orvosi rendelő", 11, 12, 5},
};

std::vector<Spot> rectangle(const Plot &p, double across, double deep, double width, double depth)
{
    // right angles whatever the parcel's shape: the house follows the street
    const Spot a = p.at(across, deep), e = p.front();
    const Spot in = p.at(0, 1) - p.at(0, 0);
    Spot n = leftOf(e);
    if (n.u * in.u + n.v * in.v < 0) n = n * -1;
    return {a, a + e * width, a + e * width + n * depth, a + n * depth};
}

Spot centreOf(const std::vector<Spot> &ring)
{
    Spot sum;
    for (const Spot &s : ring) sum = sum + s;
    return sum * (1.0 / double(ring.size()));
}

void building(Draft &d, qint16 layer, qint16 fillPen, const std::vector<Spot> &ring)
{
    if (fillPen > 0) d.fill(205, ring).penColorId = fillPen;
    d.line(layer, ring, true);
}

const Landmark *landmarkOn(const Plot &p)
{
    const double from = std::min(p.frontLeft.u, p.frontRight.u), to = std::max(p.frontLeft.u, p.frontRight.u);
    const Spot middle = between(p.frontLeft, p.frontRight, 0.5);
    const double side = middle.v - mainStreet(middle.u);
    if (std::abs(side) > kHalfMain + 3) return nullptr;
    for (const Landmark &l : kLandmarks)
        if (l.u >= from && l.u < to && l.north == (side > 0)) return &l;
    return nullptr;
}

void landmark(Draft &d, const Plot &p, const Landmark &l)
{
    const double width = std::min(l.width, p.width() - 1.5);
    const auto ring = rectangle(p, (p.width() - width) / 2, l.setBack, width, l.depth);
    building(d, 203, 16, ring);
    if (l.church) {
        const auto tower = rectangle(p, p.width() / 2 - 2.6, l.setBack - 4.5, 5.2, 4.5);
        building(d, 203, 16, tower);
        d.symbol(203, 43, centreOf(tower), Draft::upright(p.front()));
        d.symbol(203, 44, p.at(p.width() / 2 + 5, 2.2), Draft::upright(p.front()));
    }
    const Spot at = centreOf(ring);
    d.text(203, 6, at, QString::fromUtf16(l.name), p.front());
    for (double across : {1.8, p.width() - 1.8}) d.symbol(403, 11, p.at(across, 2.5));
}

/// The two shapes of village houses: the long one along a side of the yard, the square one across it.
std::vector<Spot> dwelling(Draft &d, const Plot &p)
{
    const bool longHouse = d.dice.chance(0.55);
    if (longHouse) {
        const double width = d.dice.in(5.6, 7.2), depth = d.dice.in(12, 19);
        return rectangle(p, d.dice.in(0.6, 1.2), d.dice.in(0, 1.5), std::min(width, p.width() - 5), depth);
    }
    const double side = std::min(d.dice.in(9, 11), p.width() - 3.6), setBack = d.dice.in(3.5, 6);
    auto ring = rectangle(p, d.dice.in(1.2, std::max(1.4, p.width() - side - 3)), setBack, side,
                          side * d.dice.in(0.9, 1.1));
    if (d.dice.chance(0.5)) return ring;
    const Spot e = unit(ring[1] - ring[0]), n = unit(ring[3] - ring[0]); // a porch or a veranda
    const double out = d.dice.in(2, 3.2), half = lengthOf(ring[1] - ring[0]) * 0.55;
    return {ring[0], ring[1], ring[2], ring[3] + e * half, ring[3] + e * half + n * out, ring[3] + n * out};
}

void fences(Draft &d, const Plot &p, double deepest)
{
    const double gate = p.width() * d.dice.in(0.68, 0.8);
    d.line(206, {p.at(0.2, 0), p.at(gate, 0)});
    d.line(206, {p.at(gate + 3.4, 0), p.at(std::max(gate + 3.6, p.width() - 0.2), 0)});
    if (d.dice.chance(0.6))
        d.line(206, {between(p.frontLeft, p.backLeft, 0),
                     between(p.frontLeft, p.backLeft, std::min(1.0, deepest / p.depth()))});
}

void garden(Draft &d, const Plot &p, double from)
{
    const double share = from / p.depth();
    if (share < 0.85) {
        const Spot a = between(p.frontLeft, p.backLeft, share), b = between(p.frontRight, p.backRight, share);
        d.line(103, {a, b});
        if (d.dice.chance(0.3)) {
            d.text(104, 2, p.at(p.width() - 2.6, from - 4), QStringLiteral("a"), p.front());
            d.text(104, 2, p.at(p.width() - 2.6, from + 3), QStringLiteral("b"), p.front());
        }
    }
    const int trees = 1 + d.dice.below(4);
    for (int i = 0; i < trees; ++i) {
        const double deep = d.dice.in(std::min(from + 2, p.depth() * 0.8), p.depth() * 0.95),
                     t = deep / p.depth();
        const Spot at = between(between(p.frontLeft, p.backLeft, t), between(p.frontRight, p.backRight, t),
                                d.dice.in(0.15, 0.85));
        d.symbol(403, d.dice.chance(0.75) ? 13 : 14, at, 0, std::round(d.dice.in(8, 13)) / 10);
    }
}

void outbuildings(Draft &d, const Plot &p, double from)
{
    if (p.depth() < from + 12 || !d.dice.chance(0.82)) return;
    const double width = d.dice.in(3.6, 5.5), depth = d.dice.in(5, 11);
    building(d, 202, 0,
             rectangle(p, d.dice.in(0.6, 1), from + d.dice.in(1, 4), std::min(width, p.width() - 3), depth));
    if (p.depth() < kGardenAt + 6 || p.width() < 13 || !d.dice.chance(0.3)) return;
    const double barn = std::min(p.width() - 6, d.dice.in(7, 10));
    building(d, 202, 0, rectangle(p, p.width() - barn - 1.5, kGardenAt - 7.5, barn, 6));
}

} // namespace

void furnish(Draft &d, const Plot &p)
{
    if (const Landmark *l = landmarkOn(p)) return landmark(d, p, *l);
    if (d.dice.chance(0.06)) return fences(d, p, p.depth());   // an empty plot
    const std::vector<Spot> house = dwelling(d, p);
    building(d, 201, 15, house);
    d.text(204, 3, centreOf({house[0], house[1], house[2], house[3]}), QString::number(p.house), p.front());
    double rear = 0;                                           // of the house, from the street
    const Spot in = unit(p.at(0, 1) - p.at(0, 0));
    for (const Spot &s : house)
        rear = std::max(rear, (s - p.frontLeft).u * in.u + (s - p.frontLeft).v * in.v);
    outbuildings(d, p, rear);
    fences(d, p, std::min(p.depth(), kGardenAt));
    garden(d, p, std::min(p.depth() * 0.7, kGardenAt));
    if (d.dice.chance(0.13)) d.symbol(207, 27, p.at(p.width() - 3, d.dice.in(10, 16)));
    if (d.dice.chance(0.15))
        d.symbol(403, d.dice.chance(0.5) ? 11 : 12, p.at(p.width() - 2.2, d.dice.in(3, 8)));
}

} // namespace refhost::village
