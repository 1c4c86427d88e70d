#include "sample/VillageDraft.h"

namespace refhost::village {
namespace {

struct Main {
    Course course;
    bool isStreet;                       ///< v of u, else u of v
    double from, to;                     ///< along the course
    double half;                         ///< half the width of the public ground
};
const Main kMains[] = {
    {upperStreet, true, -352, 356, 5},   {mainStreet, true, -372, 374, 8},
    {lowerStreet, true, -350, 352, 5.5}, {westLane, false, -118, -8, 4.5},
    {churchLane, false, -118, 112, 4.5}, {schoolLane, false, -118, -8, 4.5},
    {eastLane, false, -118, 112, 4.5},
};

std::vector<Spot> run(const Main &m, double from, double to, double offset)
{
    return m.isStreet ? along(m.course, from, to, offset, 24) : across(m.course, from, to, offset, 24);
}

Spot spotOn(const Main &m, double at, double offset) { return run(m, at, at + 0.5, offset).front(); }

double turnAt(const Main &m, double at)
{
    return Draft::upright(spotOn(m, at + 4, 0) - spotOn(m, at - 4, 0));
}

double vergeOf(const Main &m) { return m.half - 1.8; }   // between pavement and parcels

void pipes(Draft &d, const Main &m)
{
    d.line(501, run(m, m.from, m.to, vergeOf(m)));
    d.line(502, run(m, m.from, m.to, -vergeOf(m)));
    for (double at = m.from + 14; at < m.to - 10; at += d.dice.in(70, 110))
        d.symbol(507, 24, spotOn(m, at, -vergeOf(m)), turnAt(m, at));
    for (double at = m.from + 40; at < m.to - 10; at += d.dice.in(110, 150))
        d.symbol(507, 23, spotOn(m, at, -m.half + 0.8), turnAt(m, at));
    double before = m.from + 6;          // sewers run straight from manhole to manhole
    d.symbol(506, 21, spotOn(m, before, 1.1), turnAt(m, before));
    for (double at = before + 44; at < m.to; at += d.dice.in(38, 50)) {
        d.line(503, {spotOn(m, before, 1.1), spotOn(m, at, 1.1)});
        d.symbol(506, 21, spotOn(m, at, 1.1), turnAt(m, at));
        before = at;
    }
}

void wires(Draft &d, const Main &m)
{
    const double side = m.half - 0.7;
    double before = m.from + 3;
    d.symbol(508, 25, spotOn(m, before, side));
    for (double at = before + 35; at < m.to; at += d.dice.in(31, 39)) {
        d.line(504, {spotOn(m, before, side), spotOn(m, at, side)});
        d.symbol(508, d.dice.chance(0.35) ? 26 : 25, spotOn(m, at, side), turnAt(m, at));
        before = at;
    }
}

/// House connections: short pieces from the main to the front of the parcels.
void connections(Draft &d, const Main &m)
{
    for (double at = m.from + 12; at < m.to - 8; at += d.dice.in(15, 22)) {
        if (d.dice.chance(0.7)) d.line(501, {spotOn(m, at, vergeOf(m)), spotOn(m, at, m.half + 1.5)});
        if (d.dice.chance(0.7))
            d.line(502, {spotOn(m, at + 2.5, -vergeOf(m)), spotOn(m, at + 2.5, -m.half - 1.5)});
    }
}

} // namespace

void draftUtilities(Draft &d)
{
    for (const Main &m : kMains) {
        pipes(d, m);
        wires(d, m);
        if (m.isStreet) connections(d, m);
    }
    d.line(505, run(kMains[1], kMains[1].from, kMains[1].to, -4.6));
    d.line(505, run(kMains[4], kMains[4].from, kMains[4].to, -3.6));
}

} // namespace refhost::village
