#include "sample/VillageDraft.h"

namespace refhost::village {
namespace {

struct Lane {
    Course course;
    double from, to;               ///< v, from the street below to the street above
    const char16_t *name;
    double nameAt;                 ///< v
};
const Lane kLanes[] = {
    {westLane, -126, 0, u"Kert utca", -62},
    {churchLane, -126, 122, u"Templom köz", 62},
    {schoolLane, -126, 0, u"Iskola utca", -66},
    {eastLane, -126, 122, u"Arany János utca", 60},
};
struct Street {
    Course course;
    double half, paved;            ///< metres: half the width of the parcel and of the pavement
    const char16_t *name;
};
const Street kStreets[] = {
    {upperStreet, kHalfUpper, 2.5, u"Petőfi Sándor utca"},
    {mainStreet, kHalfMain, 3.5, u"Kossuth Lajos utca"},
    {lowerStreet, kHalfLower, 2.75, u"Rákóczi Ferenc utca"},
};
constexpr double kFrom = -378, kTo = 380, kLanePaved = 2.2, kCorner = 4, kRoadEnd = -330;

/// Where the lane meets the street: v for the lane's own course.
double meeting(const Lane &lane, Course street)
{
    double v = street(0);
    for (int i = 0; i < 6; ++i) v = street(lane.course(v));
    return v;
}

bool meets(const Lane &lane, Course street, bool above)
{
    const double v = meeting(lane, street);
    return above ? v > lane.from - 40 && v < lane.to - 40 : v > lane.from + 40 && v < lane.to + 40;
}

/// The main street goes on as a road to both sides of the sheet.
constexpr double kRoadFrom = -428, kRoadTo = 424;

/// One edge of the pavement, open where lanes join on that side.
void edge(Draft &d, const Street &s, bool above)
{
    const double offset = above ? s.paved : -s.paved;
    const bool isRoad = s.paved > 3;
    double from = isRoad ? kRoadFrom : kFrom;
    const auto piece = [&](double to) {
        if (to - from < 1) return;
        d.line(301, along(s.course, from, to, offset));
        if (isRoad) d.line(304, along(s.course, from, to, offset + (above ? 0.15 : -0.15)));
    };
    for (const Lane &lane : kLanes) {
        if (!meets(lane, s.course, above)) continue;
        const double u = lane.course(meeting(lane, s.course));
        piece(u - kLanePaved - kCorner);
        from = u + kLanePaved + kCorner;
    }
    piece(isRoad ? kRoadTo : kTo);
}

/// The rounded corners where a lane leaves a street: above it (side 1) or below (side -1).
void corners(Draft &d, const Lane &lane, const Street &s, int side)
{
    const double v = meeting(lane, s.course), u = lane.course(v), out = s.paved + kCorner;
    for (int hand : {-1, 1}) {
        const double onStreet = u + hand * (kLanePaved + kCorner);
        const Spot a = along(s.course, onStreet, onStreet + 1, side * s.paved).front();
        const Spot b{lane.course(v + side * out) + hand * kLanePaved, v + side * out};
        d.arc(301, a, b, side * hand * -0.41);
    }
}

void street(Draft &d, const Street &s)
{
    edge(d, s, true);
    edge(d, s, false);
    d.line(302, s.paved > 3 ? along(s.course, kRoadFrom, kRoadTo) : along(s.course, kFrom, kTo));
    for (double u : {-300.0, -30.0, 200.0, 330.0}) {
        const Spot at{u, s.course(u) - 0.9};
        d.text(305, 4, at, QString::fromUtf16(s.name),
               Spot{u + 20, s.course(u + 20)} - Spot{u - 20, s.course(u - 20)});
    }
    if (s.paved < 3) return;
    for (double side : {-1.0, 1.0})
        for (double from = kFrom + 8; from < kTo - 60; from += 95)
            d.line(303, along(s.course, from, from + 78, side * (s.half - 1)));
}

void lane(Draft &d, const Lane &l)
{
    const Street *below = &kStreets[2], *above = l.to > 100 ? &kStreets[0] : &kStreets[1];
    const double from = meeting(l, below->course), to = meeting(l, above->course);
    const double cross = l.to > 100 ? meeting(l, mainStreet) : to;
    const double gap = kStreets[1].paved + kCorner, last = above->paved + kCorner;
    for (double side : {-kLanePaved, kLanePaved}) {
        d.line(301, across(l.course, from + below->paved + kCorner, cross - gap, side));
        if (cross != to) d.line(301, across(l.course, cross + gap, to - last, side));
    }
    d.line(302, across(l.course, from, to));
    corners(d, l, *below, 1);
    corners(d, l, *above, -1);
    if (cross != to) corners(d, l, kStreets[1], 1), corners(d, l, kStreets[1], -1);
    const double at = l.nameAt;
    d.text(305, 4, {l.course(at), at}, QString::fromUtf16(l.name),
           Spot{l.course(at + 9), at + 9} - Spot{l.course(at - 9), at - 9});
}

/// The road over the brook to the fields.
void fieldRoad(Draft &d)
{
    const Course course = fieldLane;
    const double top = lowerStreet(kBridgeAt) - kStreets[2].paved, bank = brook(fieldLane(brook(kBridgeAt)));
    for (double side : {-1.9, 1.9}) {
        d.line(301, across(course, bank - 7, kRoadEnd, side));
        d.line(301, across(course, top, bank + 7, side));
        d.line(306, across(course, bank + 7.5, bank - 7.5, side * 1.45));
    }
    for (double v : {bank + 7.5, bank - 7.5})
        for (double side : {-1.0, 1.0})
            d.line(306,
                   {{course(v) + side * 2.76, v}, {course(v) + side * 4.4, v + (v > bank ? 1.6 : -1.6)}});
    d.text(306, 6, {kBridgeAt + 12, bank + 9}, QStringLiteral("híd"));
    d.text(305, 4, {course(-190), -196}, QStringLiteral("Malom utca"), {0.06, 1});
    d.line(302, across(course, lowerStreet(kBridgeAt), kRoadEnd));
}

} // namespace

void draftStreets(Draft &d)
{
    for (const Street &s : kStreets) street(d, s);
    for (const Lane &l : kLanes) lane(d, l);
    fieldRoad(d);
}

} // namespace refhost::village
