#include "import/GroupShapes.h"

#include <algorithm>

namespace refhost {

double numberAt(const DxfPairs &pairs, int code, double fallback)
{
    const std::string *const value = valueAt(pairs, code);
    return value ? numberOfText(*value, fallback) : fallback;
}

const std::string *valueAt(const DxfPairs &pairs, int code)
{
    const auto found = std::ranges::find(pairs, code, &DxfPair::code);
    return found == pairs.end() ? nullptr : &found->value;
}

Element line(std::vector<Vec2> points, bool closed)
{
    Element e;
    e.closed = closed;
    e.vertices.reserve(points.size());
    for (Vec2 p : points) e.vertices.push_back(vertexAt(p));
    return e;
}

Element fill(std::vector<Vec2> points)
{
    Element e = line(std::move(points));
    e.kind = ElementKind::Fill;
    return e;
}

std::vector<Element> multilineShapes(const DxfPairs &pairs)
{
    std::vector<std::vector<Vec2>> lines;
    Vec2 vertex, miter;
    size_t element = 0;
    bool first = false;
    for (const DxfPair &p : pairs) {
        const double v = p.code >= 10 && p.code < 60 ? numberOfText(p.value) : 0;
        switch (p.code) {
        case 11: vertex.x = v, element = 0; break;
        case 21: vertex.y = v; break;
        case 13: miter.x = v; break;
        case 23: miter.y = v; break;
        case 74: first = true; break;
        case 41:                // the first one is the distance from the vertex, the others are cuts
            if (!std::exchange(first, false)) break;
            if (lines.size() <= element) lines.emplace_back();
            lines[element++].push_back(vertex + miter * v);
            break;
        default: break;
        }
    }
    const bool closed = wholeOf(numberAt(pairs, 71)) & 2;
    std::vector<Element> out;
    for (auto &points : lines)
        if (points.size() > 1) out.push_back(line(std::move(points), closed));
    return out;
}

LeaderText leaderTextOf(const DxfPairs &pairs)
{
    LeaderText out;
    enum { Outside, Context, Leader, LeaderLine } where = Outside;
    std::vector<std::vector<Vec2>> lines;
    Vec2 landing, direction;
    const auto endLeader = [&] {
        for (auto &points : lines) {
            points.push_back(landing);
            if (length(direction) > 0) points.push_back(landing + direction);
            out.lines.push_back(line(std::move(points)));
        }
        lines.clear();
    };
    for (const DxfPair &p : pairs) {
        const double v = p.code < 60 ? numberOfText(p.value) : 0;
        if (p.code == 300 && where == Outside) where = Context;
        else if (p.code == 302) where = Leader, direction = {};
        else if (p.code == 304 && where == Leader) where = LeaderLine, lines.emplace_back();
        else if (p.code == 305) where = Leader;
        else if (p.code == 303 && where == Leader) endLeader(), where = Context;
        else if (p.code == 301) where = Outside;
        else if (where == Context && p.code == 304) out.text = p.value;
        else if (where == Context && p.code == 12) out.place.x = v;
        else if (where == Context && p.code == 22) out.place.y = v;
        else if (where == Context && p.code == 13) out.along.x = v;
        else if (where == Context && p.code == 23) out.along.y = v;
        else if (where == Context && p.code == 41) out.height = v;
        else if (where == Context && p.code == 170) out.justification = wholeOf(numberOfText(p.value, 1));
        else if (where == Leader && p.code == 10) landing.x = v;
        else if (where == Leader && p.code == 20) landing.y = v;
        else if (where == Leader && p.code == 11) direction.x = v;
        else if (where == Leader && p.code == 21) direction.y = v;
        else if (where == Leader && p.code == 40) direction = direction * v;
        else if (where == LeaderLine && p.code == 10) lines.back().push_back({v, 0});
        else if (where == LeaderLine && p.code == 20 && !lines.back().empty()) lines.back().back().y = v;
    }
    return out;
}

std::vector<Element> Mesh::edges() const
{
    std::vector<Element> out;
    const auto at = [&](int i) { return vertices[size_t(i)]; };
    for (const auto &face : faces)
        for (size_t i = 0; i < face.size(); ++i) {
            const int a = face[i], b = std::abs(face[(i + 1) % face.size()]);
            if (a > 0 && b > 0 && size_t(a) <= vertices.size() && size_t(b) <= vertices.size() && a != b)
                out.push_back(line({at(a - 1), at(b - 1)}));
        }
    if (!faces.empty() || m < 1 || n < 1 || double(m) * n > double(vertices.size())) return out;
    for (int i = 0; i < m; ++i) {
        std::vector<Vec2> points;
        for (int j = 0; j < n; ++j) points.push_back(at(i * n + j));
        if (n > 1) out.push_back(line(std::move(points), closedN));
    }
    for (int j = 0; j < n; ++j) {
        std::vector<Vec2> points;
        for (int i = 0; i < m; ++i) points.push_back(at(i * n + j));
        if (m > 1) out.push_back(line(std::move(points), closedM));
    }
    return out;
}

} // namespace refhost
