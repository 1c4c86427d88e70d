#include "sample/VillageDraft.h"

namespace refhost::village {
namespace {

constexpr double kFrom = -368, kTo = 372, kBank = 1.8, kFieldEnd = -340, kBridgeHalf = 4.2;
const double kOver = fieldLane(brook(kBridgeAt));      // u where the road crosses the brook

} // namespace

void draftBrook(Draft &d)
{
    for (double side : {-1.0, 1.0}) {
        d.line(401, along(brook, kFrom, kOver - kBridgeHalf, side * kBank, 12));
        d.line(401, along(brook, kOver + kBridgeHalf, kTo, side * kBank, 12));
    }
    for (double u = kFrom + 12; u < kTo - 70; u += 84) { // the banks' upper edges, ticks down to the water
        if (std::abs(u + 30 - kOver) < 40) continue;
        d.line(408, along(brook, u, u + 60, kBank + 1.9, 8));
        d.line(408, along(brook, u + 68, u + 8, kBank + 1.9, 8));
    }
    for (double u : {-262.0, 20.0, 262.0}) {
        const Spot ahead{u + 12, brook(u + 12)}, behind{u - 12, brook(u - 12)};
        d.text(402, 5, {u, brook(u) + 6.6}, QStringLiteral("Malom-patak"), ahead - behind);
    }
    for (double u = kFrom + 20; u < kTo; u += d.dice.in(9, 26)) {
        const double side = d.dice.chance(0.5) ? 1 : -1;
        if (std::abs(u - kOver) < 12) continue;
        d.symbol(403, d.dice.chance(0.7) ? 11 : 14, {u, brook(u) + side * d.dice.in(6.4, 9)}, 0,
                 std::round(d.dice.in(8, 14)) / 10);
    }
}

namespace {

/// Arable land and vineyards above the gardens.
void northFields(Draft &d)
{
    const auto rim = [](double u) { return northEdge(u) + 4; };    // a field track lies between
    constexpr double kNorthTo = 350;
    int nr = 41;
    d.line(106, along(rim, kFrom, kNorthTo));
    for (double u = kFrom; u < kNorthTo - 20; ++nr) {
        const double to = std::min(kNorthTo, u + d.dice.in(34, 66));
        const double depth = 44 + 9 * std::sin(to / 60) - 0.03 * to;
        d.line(106, {{to, rim(to)}, {to + 3, rim(to) + depth}});
        d.line(106, {{u + 3, rim(u) + 44 + 9 * std::sin(u / 60) - 0.03 * u}, {to + 3, rim(to) + depth}});
        const Spot middle{(u + to) / 2, rim((u + to) / 2) + depth * 0.5};
        d.text(102, 1, middle, QStringLiteral("0%1").arg(nr), {1, 0});
        const bool vines = d.dice.chance(0.35);
        d.text(104, 2, middle + Spot{0, -5}, vines ? QStringLiteral("szőlő") : QStringLiteral("szántó"),
               {1, 0});
        for (double row = u + 5; vines && row < to - 4; row += 5)
            for (double v : {6.0, 12.0, 18.0, 30.0, 36.0}) d.symbol(403, 16, {row + 1, rim(row) + v});
        u = to;
    }
}

} // namespace

void draftFields(Draft &d)
{
    northFields(d);
    const auto bank = [](double u) { return brook(u) - kHalfBrook; };
    d.line(106, along(brook, kFrom, kOver - 6, -kHalfBrook));
    d.line(106, along(brook, kOver + 6, kTo, -kHalfBrook));
    int nr = 12;
    const char16_t *kinds[] = {u"szántó", u"szántó", u"rét", u"legelő", u"szántó"};
    for (double u = kFrom; u < kTo - 20;) {
        const double width = d.dice.in(38, 74), to = std::min(kTo, u + width);
        const bool road = u < fieldLane(-250) && to > fieldLane(-250);
        const double end = road ? fieldLane(-250) - kHalfLane : to;
        const Spot top{end, bank(end)}, foot{end + d.dice.in(-3, 3) - 4, kFieldEnd};
        d.line(106, {top, foot});
        const Spot middle{(u + end) / 2 - 2, -298};
        d.text(102, 1, middle, QStringLiteral("0%1/%2").arg(nr).arg(1 + d.dice.below(9)), {1, 0});
        const char16_t *kind = kinds[d.dice.below(5)];
        d.text(104, 2, middle + Spot{0, -6}, QString::fromUtf16(kind), {1, 0});
        if (kind[0] != u's')
            for (int i = 0; i < 5; ++i)
                d.symbol(403, 15, middle + Spot{d.dice.in(-16, 16), d.dice.in(-30, 22)});
        ++nr;
        u = road ? fieldLane(-250) + kHalfLane : to;
        if (road) d.line(106, {{u, bank(u)}, {u - 4, kFieldEnd}});
    }
}

} // namespace refhost::village
