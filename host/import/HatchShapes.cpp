#include "import/HatchShapes.h"

#include <algorithm>
#include <numbers>

namespace refhost {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// The groups of a hatch, one after the other.
class HatchReading {
public:
    explicit HatchReading(const DxfPairs &pairs) : m_pairs(pairs) {}
    Hatch hatch()
    {
        while (m_at < m_pairs.size()) {
            const int code = m_pairs[m_at].code;
            if (code == 70) m_hatch.solid = number() == 1;
            else if (code == 30) m_hatch.elevation = number();
            else if (code == 91) loops(wholeOf(number()));
            else if (code == 78) families(wholeOf(number()));
            else if (code == 450) m_hatch.gradient = number() != 0;
            else ++m_at;
        }
        return std::move(m_hatch);
    }
private:
    double number() { return numberOfText(m_pairs[m_at++].value); }
    bool at(int code) const { return m_at < m_pairs.size() && m_pairs[m_at].code == code; }
    double numberIf(int code, double fallback = 0) { return at(code) ? number() : fallback; }
    Vec2 pointIf(int code)
    {
        const double x = numberIf(code);
        return {x, numberIf(code + 10)};
    }
    void loops(int n)
    {
        for (int i = 0; i < n && at(92); ++i) {
            const int flags = wholeOf(number());
            std::vector<Vec2> ring = flags & 2 ? polyline() : edges();
            if (at(97)) sources();
            if (ring.size() > 1 && length(ring.front() - ring.back()) == 0) ring.pop_back();
            if (ring.size() > 2) m_hatch.rings.push_back(std::move(ring));
        }
    }
    void sources()
    {
        ++m_at;
        while (at(330)) ++m_at;
    }
    std::vector<Vec2> polyline()
    {
        numberIf(72);
        numberIf(73);
        const int n = wholeOf(numberIf(93));
        std::vector<Vertex> line;
        for (int i = 0; i < n && at(10); ++i) {
            const Vec2 p = pointIf(10);
            line.push_back(vertexAt(p, numberIf(42)));
        }
        return flattened(line, true);
    }
    std::vector<Vec2> edges()
    {
        std::vector<Vec2> ring;
        const int n = wholeOf(numberIf(93));
        for (int i = 0; i < n && at(72); ++i) {
            std::vector<Vec2> edge = edgeOf(wholeOf(number()));
            // Edges follow each other, but single ones may be given from end to begin.
            if (!ring.empty() && !edge.empty()
                && length(edge.back() - ring.back()) < length(edge.front() - ring.back()))
                std::ranges::reverse(edge);
            ring.insert(ring.end(), edge.begin(), edge.end());
        }
        return ring;
    }
    std::vector<Vec2> edgeOf(int type)
    {
        if (type == 2 || type == 3) return arc(type == 3);
        if (type == 4) return spline();
        const Vec2 from = pointIf(10);
        return {from, pointIf(11)};
    }
    std::vector<Vec2> arc(bool ellipse)
    {
        EllipseArc e{.centre = pointIf(10)};
        if (ellipse) {
            e.u = pointIf(11);
            e.v = Vec2{-e.u.y, e.u.x} * numberIf(40);
        } else {
            const double r = numberIf(40);
            e.u = {r, 0}, e.v = {0, r};
        }
        e.from = numberIf(50) * kDegree, e.to = numberIf(51) * kDegree;
        if (e.to < e.from) e.to += 2 * std::numbers::pi;
        // A clockwise edge counts its angles downwards.
        if (numberIf(73, 1) == 0) e.v = e.v * -1;
        return e.flattened();
    }
    std::vector<Vec2> spline()
    {
        Spline s;
        s.degree = wholeOf(numberIf(94));
        numberIf(73);
        numberIf(74);
        numberIf(95);
        numberIf(96);
        while (at(40)) s.knots.push_back(number());
        while (at(10)) {
            s.control.push_back(pointIf(10));
            if (at(42)) s.weights.push_back(number());
        }
        if (at(97)) {
            ++m_at;
            while (at(11)) s.fit.push_back(pointIf(11));
            while (at(12) || at(13)) pointIf(m_pairs[m_at].code);
        }
        return s.flattened();
    }
    void families(int n)
    {
        for (int i = 0; i < n && at(53); ++i) {
            HatchFamily f;
            f.angle = number() * kDegree;
            f.base.x = numberIf(43), f.base.y = numberIf(44);
            f.offset.x = numberIf(45), f.offset.y = numberIf(46);
            numberIf(79);
            while (at(49)) f.dashes.push_back(number());
            m_hatch.families.push_back(std::move(f));
        }
    }
    const DxfPairs &m_pairs;
    size_t m_at = 0;
    Hatch m_hatch;
};

Element lineBetween(Vec2 a, Vec2 b)
{
    Element e;
    e.vertices = {vertexAt(a), vertexAt(b)};
    return e;
}

/// Draws one family in coordinates in which its lines run along x.
class FamilyDrawing {
public:
    FamilyDrawing(const Hatch &hatch, const HatchFamily &family, size_t most, std::vector<Element> &out)
        : m_family(family), m_most(most), m_out(out), m_back{turned(family.angle)}
    {
        m_back.origin = family.base;
        const Affine in = turned(-family.angle);
        for (const auto &ring : hatch.rings) {
            m_rings.emplace_back();
            for (Vec2 p : ring) m_rings.back().push_back(in.vector(p - family.base));
        }
        m_offset = in.vector(family.offset);
        for (double d : family.dashes) m_period += std::abs(d);
    }
    bool draw()         // false: too many lines
    {
        const double pitch = std::abs(m_offset.y);
        double low = 1e300, high = -1e300;
        for (const auto &ring : m_rings)
            for (Vec2 p : ring) low = std::min(low, p.y), high = std::max(high, p.y);
        const double first = std::ceil(low / pitch), rows = std::floor(high / pitch) - first;
        if (!(pitch > 0) || !(rows < double(m_most))) return false;
        for (int i = 0; i <= int(rows); ++i) {
            const double k = first + i;
            if (!row(k * pitch, (m_offset.y < 0 ? -k : k) * m_offset.x)) return false;
        }
        return true;
    }
private:
    bool row(double y, double begin)
    {
        std::vector<double> cuts;
        for (const auto &ring : m_rings)
            for (size_t i = 0; i < ring.size(); ++i) {
                const Vec2 a = ring[i], b = ring[(i + 1) % ring.size()];
                if ((a.y <= y) != (b.y <= y)) cuts.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
            }
        std::ranges::sort(cuts);
        for (size_t i = 0; i + 1 < cuts.size(); i += 2)
            if (!span(cuts[i], cuts[i + 1], y, begin)) return false;
        return true;
    }
    bool span(double from, double to, double y, double begin)
    {
        if (!(m_period > 0)) return piece(from, to, y);
        const double dashes = ((to - from) / m_period + 2) * double(m_family.dashes.size());
        if (!(dashes < double(m_most))) return false;
        double x = begin + std::floor((from - begin) / m_period) * m_period;
        for (size_t i = 0; x < to && double(i) < dashes; ++i) {
            const double d = m_family.dashes[i % m_family.dashes.size()], end = x + std::abs(d);
            const bool seen = d > 0 ? end > from : d == 0 && x >= from;
            if (seen && !piece(std::max(x, from), std::min(end, to), y)) return false;
            x = end;
        }
        return true;
    }
    bool piece(double from, double to, double y)
    {
        m_out.push_back(lineBetween(m_back.point({from, y}), m_back.point({to, y})));
        return m_out.size() <= m_most;
    }
    const HatchFamily &m_family;
    size_t m_most;
    std::vector<Element> &m_out;
    Affine m_back;
    std::vector<std::vector<Vec2>> m_rings;
    Vec2 m_offset;
    double m_period = 0;
};

Element closedLine(const std::vector<Vec2> &ring)
{
    Element e;
    e.closed = true;
    for (Vec2 p : ring) e.vertices.push_back(vertexAt(p));
    return e;
}

} // namespace

Hatch hatchOf(const DxfPairs &pairs) { return HatchReading(pairs).hatch(); }

std::vector<Element> hatchShapes(const Hatch &hatch, size_t mostLines, bool &simplified)
{
    std::vector<Element> out;
    simplified = false;
    if (hatch.rings.empty()) return out;
    if (hatch.solid) {
        Element fill;
        fill.kind = ElementKind::Fill;
        for (const auto &ring : hatch.rings) {
            fill.rings.push_back(int(fill.vertices.size()));
            for (Vec2 p : ring) fill.vertices.push_back(vertexAt(p));
        }
        if (fill.rings.size() == 1) fill.rings.clear();
        return {std::move(fill)};
    }
    simplified = hatch.families.empty();
    for (const HatchFamily &f : hatch.families)
        simplified = simplified || !FamilyDrawing(hatch, f, mostLines, out).draw();
    if (simplified || out.empty()) {
        simplified = true;
        out.clear();
        for (const auto &ring : hatch.rings) out.push_back(closedLine(ring));
    }
    return out;
}

} // namespace refhost
