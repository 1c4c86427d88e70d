#include "sample/VillageDraft.h"
#include "sample/VillageSheet.h"

#include <map>
#include <optional>

namespace refhost::village {
namespace {

constexpr double kStep = 12.5;           // metres between the nodes of the height grid
constexpr int kMainEvery = 5;            // metres: every fifth contour is a main one

/// An edge of the grid: from a node to its right (0) or upper (1) neighbour.
struct Edge {
    int column = 0, row = 0, up = 0;
    auto operator<=>(const Edge &) const = default;
};
Place nodeAt(int column, int row) { return {kSheet.west + column * kStep, kSheet.south + row * kStep}; }

/// Where the contour crosses the edge; the nodes lie on different sides of it.
Place crossing(const Edge &e, double height)
{
    const Place a = nodeAt(e.column, e.row),
                b = e.up ? nodeAt(e.column, e.row + 1) : nodeAt(e.column + 1, e.row);
    const double ha = heightAt(a), hb = heightAt(b), t = (height - ha) / (hb - ha);
    const auto round = [](double v) { return std::round(v * 100) / 100; };
    return {round(a.x + (b.x - a.x) * t), round(a.y + (b.y - a.y) * t)};
}

using Links = std::multimap<Edge, Edge>;

/// The pieces of one contour: which edges of a cell it joins.
Links linksOf(double height)
{
    Links links;
    const int columns = int((kSheet.east - kSheet.west) / kStep),
              rows = int((kSheet.north - kSheet.south) / kStep);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c) {
            const auto above = [&](int dc, int dr) { return heightAt(nodeAt(c + dc, r + dr)) > height; };
            std::vector<Edge> cut;
            if (above(0, 0) != above(1, 0)) cut.push_back({c, r, 0});
            if (above(1, 0) != above(1, 1)) cut.push_back({c + 1, r, 1});
            if (above(0, 1) != above(1, 1)) cut.push_back({c, r + 1, 0});
            if (above(0, 0) != above(0, 1)) cut.push_back({c, r, 1});
            for (size_t i = 0; i + 1 < cut.size(); i += 2) {
                links.emplace(cut[i], cut[i + 1]);
                links.emplace(cut[i + 1], cut[i]);
            }
        }
    return links;
}

/// Takes the link that leads on from `at` out of the links, in both directions.
std::optional<Edge> follow(Links &links, const Edge &at)
{
    const auto on = links.find(at);
    if (on == links.end()) return {};
    const Edge next = on->second;
    links.erase(on);
    const auto [first, last] = links.equal_range(next);
    for (auto back = first; back != last; ++back)
        if (back->second == at) {
            links.erase(back);
            break;
        }
    return next;
}

std::vector<std::vector<Edge>> chainsOf(Links links)
{
    std::vector<std::vector<Edge>> chains;
    while (!links.empty()) {
        auto start = links.begin();
        for (auto i = links.begin(); i != links.end(); ++i)
            if (links.count(i->first) == 1) { start = i; break; }   // an open end, if there is one
        std::vector<Edge> chain{start->first};
        while (const auto next = follow(links, chain.back())) chain.push_back(*next);
        chains.push_back(std::move(chain));
    }
    return chains;
}

void contour(Draft &d, int height)
{
    const bool main = height % kMainEvery == 0;
    for (const std::vector<Edge> &chain : chainsOf(linksOf(height + 1e-4))) {
        if (chain.size() < 4) continue;
        std::vector<Place> course;
        for (const Edge &e : chain) course.push_back(crossing(e, height + 1e-4));
        d.lineAt(main ? 404 : 405, course);
        if (!main || chain.size() < 16) continue;
        for (size_t i = 10; i + 2 < course.size(); i += 32) {
            const Spot direction = spotOf(course[i + 1]) - spotOf(course[i - 1]);
            d.textAt(406, 7, course[i], QString::number(height), Draft::upright(direction));
        }
    }
}

void spotHeight(Draft &d, Spot at)
{
    const Place p = placeOf(at);
    d.symbolAt(407, 5, p);
    d.textAt(407, 8, {p.x + 0.8, p.y + 0.3}, QString::number(heightAt(p), 'f', 2).replace(u'.', u','));
}

} // namespace

void draftRelief(Draft &d)
{
    for (int height = 138; height < 170; ++height) contour(d, height);
    for (Course street : {upperStreet, mainStreet, lowerStreet})
        for (double u = -360; u < 370; u += d.dice.in(20, 32)) spotHeight(d, {u, street(u) - 1.8});
    for (Course lane : {westLane, churchLane, schoolLane, eastLane})
        for (double v = -105; v < -15; v += d.dice.in(20, 30)) spotHeight(d, {lane(v) + 0.6, v});
    for (double u = -350; u < 370; u += d.dice.in(28, 52)) {
        spotHeight(d, {u, brook(u) - d.dice.in(14, 60)});
        spotHeight(d, {u + 9, northEdge(u) - d.dice.in(8, 30)});
    }
}

} // namespace refhost::village
