#include "import/DxfObjects.h"

#include "import/HatchShapes.h"

#include <algorithm>
#include <numbers>

namespace refhost {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr size_t kMostHatchLines = 4000;
constexpr int kMostArray = 100000;              // inserts of one array
constexpr double kRowPitch = 5 / 3.0;           // from base line to base line, in letter heights
enum Align { Left = 0, Right = 2, Centre = 6, Top = 0, Bottom = 8, Base = 24 };

bool sameDepth(std::span<const PolylineVertex> vertices)
{
    return std::ranges::all_of(vertices, [&](const PolylineVertex &v) { return v.z == vertices.front().z; });
}

} // namespace

void DxfObjects::setPlane(Vec3 normal)
{
    m_normal = normal;
    const double n = std::sqrt(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z);
    if (n == 0) m_normal = {0, 0, 1};
}

void DxfObjects::arc(Vec3 c, double radius, double from, double to)
{
    Element e;
    e.vertices = arcVertices(c.flat(), radius, from, to);
    addOn(plane(c.z), std::move(e));
}

void DxfObjects::circle(Vec3 c, double radius)
{
    Element e;
    e.vertices = circleVertices(c.flat(), radius);
    e.closed = true;
    addOn(plane(c.z), std::move(e));
}

/// Centre and axis are in the world; the short axis is across the long one in the ellipse's plane.
void DxfObjects::ellipse(Vec3 c, Vec3 axis, double ratio, double from, double to)
{
    const double n = std::sqrt(m_normal.x * m_normal.x + m_normal.y * m_normal.y + m_normal.z * m_normal.z);
    const Vec3 z{m_normal.x / n, m_normal.y / n, m_normal.z / n};
    const Vec2 v{z.y * axis.z - z.z * axis.y, z.z * axis.x - z.x * axis.z};
    const bool whole = std::abs(to - from - 2 * kPi) < 1e-9;
    if (to < from) to += 2 * kPi;
    m_builder.add(EllipseArc{c.flat(), axis.flat(), v * ratio, whole ? 0 : from, whole ? 0 : to}.element());
}

void DxfObjects::polyline(const PolylineFacts &p)
{
    if (p.wide || std::ranges::any_of(p.vertices, &PolylineVertex::wide)) m_builder.note(Loss::Widths);
    const bool mesh = p.flags & 16, faces = p.flags & 64, spatial = p.flags & 8;
    if (mesh || faces) {
        Mesh grid{.m = p.m, .n = p.n, .closedM = (p.flags & 1) != 0, .closedN = (p.flags & 32) != 0};
        for (const PolylineVertex &v : p.vertices) {
            if ((v.flags & 192) == 128)
                grid.faces.emplace_back(std::begin(v.face), std::find(v.face, v.face + 4, 0));
            else grid.vertices.push_back({v.x, v.y});
        }
        return addAll(grid.edges());
    }
    Element e;
    e.closed = p.flags & 1;
    // Of a smoothed line only its result is drawn, not the frame that was smoothed.
    const bool smoothed = std::ranges::any_of(p.vertices,
                                              [](const PolylineVertex &v) { return v.flags & 8; });
    for (const PolylineVertex &v : p.vertices)
        if (!smoothed || !(v.flags & 16)) e.vertices.push_back(vertexAt({v.x, v.y}, spatial ? 0 : v.bulge));
    if (e.vertices.empty()) return;
    if (e.vertices.size() == 1) {
        e.kind = ElementKind::Point;
        e.closed = false, e.vertices.front().bulge = 0;
    }
    if (spatial && !sameDepth(p.vertices)) m_builder.note(Loss::Depths);
    if (spatial) return m_builder.add(std::move(e));
    addOn(plane(p.light ? p.elevation : p.vertices.front().z), std::move(e));
}

void DxfObjects::spline(const Spline &s)
{
    std::vector<Vec2> points = s.flattened();
    if (points.size() < 2) return;
    m_builder.note(Loss::Splines);
    const bool meets = s.closed
                       && length(points.front() - points.back()) < 1e-9 * (1 + length(points.front()));
    if (meets) points.pop_back();
    m_builder.add(line(std::move(points), s.closed));
}

void DxfObjects::corners(const Vec3 (&c)[4])
{
    std::vector<Vec2> points{c[0].flat(), c[1].flat(), c[3].flat(), c[2].flat()};
    if (length(points[2] - points[3]) == 0) points.pop_back();
    addOn(plane(c[0].z), fill(std::move(points)));
}

void DxfObjects::face(const Vec3 (&c)[4], int hiddenEdges)
{
    std::vector<Vec2> points{c[0].flat(), c[1].flat(), c[2].flat(), c[3].flat()};
    if (length(points[2] - points[3]) == 0) points.pop_back();
    if ((hiddenEdges & 15) == 0) return m_builder.add(line(std::move(points), true));
    for (size_t i = 0; i < points.size(); ++i)
        if (!(hiddenEdges >> i & 1)) m_builder.add(line({points[i], points[(i + 1) % points.size()]}));
}

void DxfObjects::insert(const QString &block, Vec3 at, Vec2 scale, double angle, int columns, int rows,
                        Vec2 spacing)
{
    const Affine foot = plane(at.z) * shifted(at.flat()) * turned(angle);
    columns = std::max(columns, 1), rows = std::max(rows, 1);
    if (double(columns) * rows > kMostArray) columns = rows = 1;
    const Affine size = scaled(scale.x != 0 ? scale.x : 1, scale.y != 0 ? scale.y : 1);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c)
            m_builder.insert(block, foot * shifted({c * spacing.x, r * spacing.y}) * size);
}

Element DxfObjects::textElement(const PlainText &plain, double height) const
{
    Element e;
    e.kind = ElementKind::Text;
    e.text = plain.text;
    e.size = plain.height > 0 ? plain.height : height * plain.heightFactor;
    return e;
}

void DxfObjects::text(const RowText &t)
{
    const PlainText plain = plainOfText(m_builder.text(t.text), m_builder.letters());
    if (plain.text.trimmed().isEmpty()) return;
    if (plain.changes) m_builder.note(Loss::MixedTexts);
    const int base = m_builder.styleOf(m_builder.text(t.style));
    const int style = m_builder.variantOf(base, plain, t.widthFactor, false);
    Element e = textElement(plain, t.height);
    const bool between = t.horizontal == 3 || t.horizontal == 5;    // from the first point to the second one
    const bool moved = t.aligned && !between && (t.horizontal != 0 || t.vertical != 0);
    Vec2 at = (moved ? t.alignment : t.insertion).flat();
    double angle = t.angle;
    if (between && t.aligned) {
        const Vec2 d = t.alignment.flat() - t.insertion.flat();
        if (length(d) > 0) angle = std::atan2(d.y, d.x);
    }
    const bool middle = t.horizontal == 4 || (!between && t.vertical == 2);
    if (middle) at = at + Vec2{std::sin(angle), -std::cos(angle)} * (e.size / 2);
    e.align = (t.horizontal == 1 || t.horizontal == 4 ? Centre : t.horizontal == 2 ? Right : Left)
              | (middle || between || t.vertical == 0 ? Base : t.vertical == 1 ? Bottom : Top);
    e.rotation = angle * 180 / kPi;
    e.vertices = {vertexAt(at)};
    const Affine on = plane(t.insertion.z);
    const Affine turnedOver = t.generation & 4 ? scaled(1, -1) : Affine();
    const Affine written = t.generation & 2 ? scaled(-1, 1) : Affine();
    if (on.determinant() < 0 || (t.generation & 6)) m_builder.note(Loss::MirroredTexts);
    const Affine own = shifted(at) * turned(angle) * written * turnedOver * turned(-angle)
                       * shifted(Vec2{} - at);
    addOn(on * own, std::move(e), style);
}

void DxfObjects::text(const BlockText &t)
{
    const PlainText plain = plainOfMText(m_builder.text(t.text), m_builder.letters());
    if (plain.text.trimmed().isEmpty()) return;
    if (plain.changes) m_builder.note(Loss::MixedTexts);
    const int style = m_builder.variantOf(m_builder.styleOf(m_builder.text(t.style)), plain, 0, false);
    Element e = textElement(plain, t.height);
    e.text = wrapped(plain.text, t.width / std::max(m_builder.style(style).widthFactor, 0.1), e.size);
    const double rows = double(e.text.count(u'\n'));
    const double all = e.size * (1 + rows * kRowPitch * (t.lineSpacing > 0 ? t.lineSpacing : 1));
    const int column = (t.attachment - 1) % 3, row = (t.attachment - 1) / 3;
    const double angle = std::atan2(t.along.y, t.along.x);
    // Rows are hung up at the first one: its top is known, whatever stands below.
    const double up = row == 1 ? all / 2 : row == 2 ? all : 0;
    const Vec2 at = t.insertion.flat() + Vec2{-std::sin(angle), std::cos(angle)} * up;
    e.vertices = {vertexAt(at)};
    e.align = (column == 1 ? Centre : column == 2 ? Right : Left) | Top;
    e.rotation = angle * 180 / kPi;
    if (plain.color >= 0) m_builder.setColor(plain.color);
    m_builder.add(std::move(e), style);
}

void DxfObjects::hatch(const DxfPairs &pairs)
{
    const Hatch h = hatchOf(pairs);
    bool simplified = false;
    std::vector<Element> shapes = hatchShapes(h, kMostHatchLines, simplified);
    if (simplified) m_builder.note(Loss::HatchPatterns);
    if (h.gradient) m_builder.note(Loss::Gradients);
    const Affine on = plane(h.elevation);
    for (Element &e : shapes) addOn(on, std::move(e));
}

void DxfObjects::leaderText(const DxfPairs &pairs)
{
    LeaderText l = leaderTextOf(pairs);
    addAll(std::move(l.lines));
    BlockText t;
    t.insertion = {l.place.x, l.place.y, 0};
    t.along = l.along;
    t.height = l.height;
    t.attachment = l.justification == 2 ? 2 : l.justification == 3 ? 3 : 1;
    t.text = std::move(l.text);
    if (t.height > 0) text(t);
}

} // namespace refhost
