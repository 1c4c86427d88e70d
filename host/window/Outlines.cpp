#include "window/Outlines.h"

#include <cmath>
#include <numbers>

namespace refhost {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kSagitta = 0.002;             // metres by which a chord may miss its arc
constexpr int kLeastPerTurn = 48, kMostPerTurn = 720;

int piecesOf(double radius, double angle)
{
    const double half = radius > kSagitta ? std::acos(1 - kSagitta / radius) : kPi / 4;
    const double perTurn =
        std::clamp(kPi / std::max(half, 1e-6), double(kLeastPerTurn), double(kMostPerTurn));
    return std::max(1, int(std::ceil(perTurn * std::abs(angle) / (2 * kPi))));
}

/// Appends the arc from the last point of `to` to `end`, without its first point.
void appendArc(QPolygonF &to, QPointF end, double bulge)
{
    const QPointF start = to.back(), chord = end - start;
    const double length = std::hypot(chord.x(), chord.y());
    if (length == 0 || !std::isfinite(bulge)) return to.append(end);
    const double angle = 4 * std::atan(bulge);
    const double away =
        (1 - bulge * bulge) / (4 * bulge); // of the centre from the chord, in chords, to the left
    const QPointF centre = (start + end) / 2 + QPointF(-chord.y(), chord.x()) * away;
    const double radius = std::hypot(start.x() - centre.x(), start.y() - centre.y());
    const double from = std::atan2(start.y() - centre.y(), start.x() - centre.x());
    const int n = piecesOf(radius, angle);
    for (int i = 1; i < n; ++i)
        to.append(centre + radius * QPointF(std::cos(from + angle * i / n), std::sin(from + angle * i / n)));
    to.append(end);
}

/// The vertices [first, last) as one polygon.
QPolygonF pathOf(const Element &e, size_t first, size_t last, bool closed)
{
    QPolygonF path;
    for (size_t i = first; i < last; ++i) {
        const QPointF p(e.vertices[i].x, e.vertices[i].y);
        const double bulge = i > first ? e.vertices[i - 1].bulge : 0;
        if (bulge != 0) appendArc(path, p, bulge);
        else path.append(p);
    }
    if (!closed || path.size() < 2) return path;
    if (const double bulge = e.vertices[last - 1].bulge; bulge != 0) appendArc(path, path.front(), bulge);
    else if (path.front() != path.back()) path.append(path.front());
    return path;
}

QPolygonF ellipseOf(const Element &e)
{
    if (e.vertices.size() < 2) return {};
    const QPointF centre(e.vertices[0].x, e.vertices[0].y), major(e.vertices[1].x, e.vertices[1].y);
    const QPointF minor = QPointF(-major.y(), major.x()) * e.ratio;
    double sweep = std::fmod(e.to - e.from, 2 * kPi);
    if (sweep <= 0) sweep += 2 * kPi; // equal parameters are the whole ellipse
    const int n = piecesOf(std::hypot(major.x(), major.y()), sweep);
    QPolygonF path;
    for (int i = 0; i <= n; ++i) {
        const double t = e.from + sweep * i / n;
        path.append(centre + std::cos(t) * major + std::sin(t) * minor);
    }
    return path;
}

std::vector<QPolygonF> ringsOf(const Element &e)
{
    std::vector<QPolygonF> rings;
    std::vector<int> starts = e.rings.empty() ? std::vector<int>{0} : e.rings;
    starts.push_back(int(e.vertices.size()));
    for (size_t i = 0; i + 1 < starts.size(); ++i) {
        const int from = std::clamp(starts[i], 0, int(e.vertices.size()));
        const int to = std::clamp(starts[i + 1], from, int(e.vertices.size()));
        if (to - from > 1) rings.push_back(pathOf(e, size_t(from), size_t(to), true));
    }
    return rings;
}

std::vector<QPolygonF> worldOutlines(const Element &e)
{
    if (e.vertices.empty()) return {};
    switch (e.kind) {
    case ElementKind::Line: return {pathOf(e, 0, e.vertices.size(), e.closed)};
    case ElementKind::Ellipse: return {ellipseOf(e)};
    case ElementKind::Fill: return ringsOf(e);
    case ElementKind::Point:
    case ElementKind::Text:
    case ElementKind::Symbol: break;
    }
    return {QPolygonF{QPointF(e.vertices[0].x, e.vertices[0].y)}};
}

} // namespace

std::vector<QPolygonF> outlinesOf(const Element &e, QPointF origin)
{
    std::vector<QPolygonF> all = worldOutlines(e);
    for (QPolygonF &p : all) p.translate(-origin);
    return all;
}

} // namespace refhost
