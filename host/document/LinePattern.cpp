#include "document/LinePattern.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

using ZolWDoc::Placement;
using ZolWDoc::PointMm;
using ZolWDoc::tPenStyleSi;

namespace refhost {
namespace {

constexpr double kMostStrokes = 100'000;    // finer than this is a full line at any scale, and would not end
constexpr double kMostPlaces = 20'000;
constexpr double kSame = 1e-9;              // share of a segment or division that counts as nothing

double distance(PointMm a, PointMm b) { return std::hypot(b.x - a.x, b.y - a.y); }
PointMm between(PointMm a, PointMm b, double t) { return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t}; }

/// A line measured from its beginning.
class Path {
public:
    explicit Path(const Polyline &line)
    {
        for (const PointMm &p : line) {
            if (!m_points.empty() && distance(m_points.back(), p) == 0) continue;
            m_at.push_back(m_points.empty() ? 0 : m_at.back() + distance(m_points.back(), p));
            m_points.push_back(p);
        }
    }
    bool empty() const { return m_points.size() < 2; }
    double length() const { return m_at.back(); }
    bool closed() const { return m_points.size() > 3 && m_points.front() == m_points.back(); }

    /// Index of the segment at a distance; beyond the ends the first or last one.
    size_t segmentAt(double s) const
    {
        const auto after = std::upper_bound(m_at.begin() + 1, m_at.end() - 1, s);
        return size_t(after - m_at.begin()) - 1;
    }
    PointMm pointAt(double s) const
    {
        const size_t i = segmentAt(s);
        return between(m_points[i], m_points[i + 1], (s - m_at[i]) / (m_at[i + 1] - m_at[i]));
    }
    double directionAt(double s) const  ///< radians
    {
        const size_t i = segmentAt(s);
        return std::atan2(m_points[i + 1].y - m_points[i].y, m_points[i + 1].x - m_points[i].x);
    }
    Polyline part(double from, double to) const
    {
        Polyline line{pointAt(from)};
        for (size_t i = segmentAt(from) + 1; i + 1 < m_points.size() && m_at[i] < to; ++i)
            line.push_back(m_points[i]);
        line.push_back(pointAt(to));
        return line;
    }
private:
    Polyline m_points;
    std::vector<double> m_at;       // distance of each point from the beginning
};

/// One place before its copies are made; `lean` is -0.5 to centre them, 0 forwards, -1 backwards.
struct Anchor {
    double at;
    double lean;
};

std::vector<Anchor> divisions(const Path &path, double segment)
{
    std::vector<Anchor> all;
    const double length = path.length();
    if (!(segment > 0) || length / segment > kMostPlaces) return all;
    for (int k = path.closed() ? 0 : 1; k * segment < length - segment * kSame; ++k)
        all.push_back({k * segment, -0.5});
    return all;
}

std::vector<Anchor> anchorsOf(const Path &path, const tPenStyleSi &rule)
{
    const Anchor start{0, 0}, end{path.length(), -1};
    switch (Placement(rule.Align)) {
    case Placement::DistrByLength: return divisions(path, rule.DistrLength);
    case Placement::DistrByNr: return divisions(path, rule.DistrNr > 0 ? path.length() / rule.DistrNr : 0);
    case Placement::MidPoint: return {{path.length() / 2, -0.5}};
    case Placement::EndPoints: return {start, end};
    case Placement::EndPointSrc: return {start};
    case Placement::EndPointDst: return {end};
    }
    return {};
}

Place placeAt(const Path &path, double s, const tPenStyleSi &rule)
{
    const PointMm on = path.pointAt(s);
    const double direction = path.directionAt(s), c = std::cos(direction), n = std::sin(direction);
    return {{on.x + rule.OffsetX * c - rule.OffsetY * n, on.y + rule.OffsetX * n + rule.OffsetY * c},
            direction * 180 / std::numbers::pi + rule.Rotation};
}

} // namespace

double lengthOf(const Polyline &line)
{
    double sum = 0;
    for (size_t i = 1; i < line.size(); ++i) sum += distance(line[i - 1], line[i]);
    return sum;
}

std::vector<Polyline> dashesOf(const Polyline &line, std::span<const double> pattern)
{
    const Path path(line);
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
    const bool usable = std::ranges::all_of(pattern, [](double v) { return v >= 0; }) && period > 0
                        && std::isfinite(period);
    if (path.empty() || !usable || pattern.size() < 2
        || path.length() / period * double(pattern.size()) > kMostStrokes)
        return {line};
    std::vector<Polyline> dashes;
    // An odd pattern goes on with its roles exchanged, as dash and gap take turns.
    double at = 0;
    for (size_t i = 0; at < path.length(); ++i) {
        const double end = at + pattern[i % pattern.size()];
        if (i % 2 == 0) dashes.push_back(path.part(at, std::min(end, path.length())));
        at = end;
    }
    return dashes;
}

std::vector<Place> placesOf(const Polyline &line, const tPenStyleSi &rule)
{
    std::vector<Place> places;
    const Path path(line);
    if (path.empty()) return places;
    const int copies = std::max<int>(rule.Multi, 1);
    const auto anchors = anchorsOf(path, rule);
    if (double(anchors.size()) * copies > kMostPlaces) return places;
    for (const Anchor &a : anchors)
        for (int i = 0; i < copies; ++i) {
            const double along = a.lean == -0.5 ? i - (copies - 1) / 2.0 : a.lean < 0 ? -i : i;
            places.push_back(placeAt(path, a.at + along * rule.MultiDist, rule));
        }
    return places;
}

} // namespace refhost
