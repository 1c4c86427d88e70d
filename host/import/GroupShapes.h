#pragma once

#include "document/Elements.h"
#include "import/Curves.h"
#include "import/DxfScan.h"

/// Shapes of objects that the reader does not deliver, from the groups of the file.
namespace refhost {

double numberAt(const DxfPairs &, int code, double fallback = 0);       ///< the first group of that code
const std::string *valueAt(const DxfPairs &, int code);                 ///< null when there is none

std::vector<Element> multilineShapes(const DxfPairs &);                 ///< each of its parallel lines

/// A text with its leader lines.
struct LeaderText {
    std::vector<Element> lines;
    std::string text;
    Vec2 place, along{1, 0};
    double height = 0;
    int justification = 1;      ///< 1 left, 2 centre, 3 right
};
LeaderText leaderTextOf(const DxfPairs &);

/// What a mesh of vertices shows: its edges.
struct Mesh {
    std::vector<Vec2> vertices;
    std::vector<std::vector<int>> faces;    ///< 1-based; negative: the edge that begins there is not shown
    int m = 0, n = 0;                       ///< of a grid of vertices
    bool closedM = false, closedN = false;
    std::vector<Element> edges() const;
};

Element line(std::vector<Vec2> points, bool closed = false);
Element fill(std::vector<Vec2> points);

} // namespace refhost
