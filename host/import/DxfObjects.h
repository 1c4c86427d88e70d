#pragma once

#include "import/DrawingBuilder.h"
#include "import/GroupShapes.h"

namespace refhost {

/// A place in space.
struct Vec3 {
    double x = 0, y = 0, z = 0;
    Vec2 flat() const { return {x, y}; }
};

/// A single-row text as the file gives it. Angles in radians.
struct RowText {
    Vec3 insertion, alignment;
    bool aligned = false;       ///< the alignment point counts
    double height = 0, widthFactor = 1, angle = 0;
    int generation = 0, horizontal = 0, vertical = 0;
    std::string text, style;
};
/// A text of several rows.
struct BlockText {
    Vec3 insertion;
    Vec2 along{1, 0};
    double height = 0, width = 0, lineSpacing = 1;
    int attachment = 1;         ///< 1..9, by rows from the top left
    std::string text, style;
};
struct PolylineFacts {
    int flags = 0, m = 0, n = 0;
    bool light = false;         ///< LWPOLYLINE: all in the plane of its own
    double elevation = 0;
    bool wide = false;
    std::vector<PolylineVertex> vertices;
};

/// Turns the objects of a file into shapes, whoever read them. Every call is for the object that the builder
/// has open.
class DxfObjects {
public:
    explicit DxfObjects(DrawingBuilder &builder) : m_builder(builder) {}
    void setPlane(Vec3 normal);         ///< of the object's own coordinate system
    void arc(Vec3 centre, double radius, double from, double to);   ///< radians
    void circle(Vec3 centre, double radius);
    void ellipse(Vec3 centre, Vec3 axis, double ratio, double from, double to);
    void polyline(const PolylineFacts &);
    void spline(const Spline &);
    void corners(const Vec3 (&)[4]);    ///< of a filled quadrangle, in the odd order of files
    void face(const Vec3 (&)[4], int hiddenEdges);
    void insert(const QString &block, Vec3 at, Vec2 scale, double angle, int columns, int rows, Vec2 spacing);
    void text(const RowText &);
    void text(const BlockText &);
    void hatch(const DxfPairs &);
    void leaderText(const DxfPairs &);
    void addAll(std::vector<Element> shapes) { for (Element &e : shapes) m_builder.add(std::move(e)); }
private:
    void addOn(const Affine &plane, Element e, int style = 0) { m_builder.add(mapped(e, plane), style); }
    Affine plane(double elevation) const { return planeOf(m_normal.x, m_normal.y, m_normal.z, elevation); }
    Element textElement(const PlainText &, double height) const;
    DrawingBuilder &m_builder;
    Vec3 m_normal{0, 0, 1};
};

} // namespace refhost
