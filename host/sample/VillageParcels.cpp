#include "sample/VillageBlocks.h"
#include "sample/VillageDraft.h"

#include <algorithm>

namespace refhost::village {
namespace {

constexpr double kNumberAt = 46;         // metres from the street: behind the outbuildings

/// Numbers of parcels, house numbers and boundary points run through the whole village.
struct Register {
    int parcel = 1;
    int boundaryPoint = 1;
};

QString nextParcel(Register &r, Dice &dice)
{
    const int nr = r.parcel++;
    return dice.chance(0.22) ? QStringLiteral("%1/%2").arg(nr).arg(1 + dice.below(4)) : QString::number(nr);
}

void boundaryPoint(Draft &d, Register &r, Spot at)
{
    d.symbol(105, 4, at);
    if (r.boundaryPoint <= 240) d.point(105, QString::number(1000 + r.boundaryPoint), at);
    ++r.boundaryPoint;
}

/// The numbers along one front: the parcel's own lines, then what stands on it.
void parcel(Draft &d, Register &r, const Plot &plot)
{
    d.line(101, {plot.frontLeft, plot.frontRight});
    boundaryPoint(d, r, plot.frontLeft);
    const double deep = std::min(kNumberAt, plot.depth() - 7) / plot.depth();
    const Spot at = between(between(plot.frontLeft, plot.frontRight, 0.5),
                            between(plot.backLeft, plot.backRight, 0.5), deep);
    d.text(102, 1, at, nextParcel(r, d.dice), plot.front());
    furnish(d, plot);
}

/// Parcels side by side along one front of the block.
void row(Draft &d, Register &r, const Block &b, bool top)
{
    const std::vector<double> cuts = top ? b.topCuts : b.bottomCuts;
    int house = top ? 2 : 1; // even numbers on one side of a street, odd ones on the other
    for (size_t i = 0; i + 1 < cuts.size(); ++i) {
        Plot plot{b.corner(cuts[i], top), b.corner(cuts[i + 1], top), b.back(cuts[i], top),
                  b.back(cuts[i + 1], top)};
        if (top) std::swap(plot.frontLeft, plot.frontRight), std::swap(plot.backLeft, plot.backRight);
        plot.house = house;
        house += 2;
        parcel(d, r, plot);
        if (i > 0) {
            d.line(101, {b.corner(cuts[i], top), b.back(cuts[i], top)});
            boundaryPoint(d, r, b.back(cuts[i], top));
        }
    }
}

/// The line at which the gardens meet, with a vertex wherever a parcel of either side ends.
void backLine(Draft &d, const Block &b)
{
    std::vector<double> cuts = b.topCuts;
    cuts.insert(cuts.end(), b.bottomCuts.begin(), b.bottomCuts.end());
    std::ranges::sort(cuts);
    std::vector<Spot> course;
    for (double s : cuts)
        if (course.empty() || lengthOf(b.back(s, b.frontTop) - course.back()) > 0.05)
            course.push_back(b.back(s, b.frontTop));
    d.line(101, course);
}

void ends(Draft &d, const Block &b)
{
    for (double s : {0.0, 1.0}) {
        std::vector<Spot> side;
        for (int i = 0; i <= 4; ++i) side.push_back(b.at(s, i / 4.0));
        d.line(101, side);
    }
}

} // namespace

void draftParcels(Draft &d)
{
    Register r;
    for (Block b : blocks()) {
        if (b.frontTop) b.topCuts = b.cuts(d.dice, true);
        if (b.frontBottom) b.bottomCuts = b.cuts(d.dice, false);
        if (b.frontTop) row(d, r, b, true);
        if (b.frontBottom) row(d, r, b, false);
        backLine(d, b);
        ends(d, b);
    }
}

} // namespace refhost::village
