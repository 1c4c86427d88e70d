#include "window/Scene.h"

#include "window/LineMarks.h"
#include "window/Outlines.h"
#include "window/SceneBuilder.h"

#include <cmath>
#include <limits>

namespace refhost {
namespace {

constexpr double kFar = std::numeric_limits<double>::infinity();

double distance(QPointF p, QPointF a, QPointF b)
{
    const QPointF ab = b - a;
    const double square = QPointF::dotProduct(ab, ab);
    const double t = square > 0 ? std::clamp(QPointF::dotProduct(p - a, ab) / square, 0.0, 1.0) : 0.0;
    const QPointF d = p - (a + t * ab);
    return std::hypot(d.x(), d.y());
}

double distance(QPointF p, const QPolygonF &line)
{
    double least = line.isEmpty() ? kFar : distance(p, line.front(), line.front());
    for (qsizetype i = 0; i + 1 < line.size(); ++i)
        least = std::min(least, distance(p, line[i], line[i + 1]));
    return least;
}

QRectF united(const std::vector<QRectF> &boxes)
{
    QRectF all;
    for (const QRectF &box : boxes) all = all.isNull() ? box : all.united(box);
    return all;
}

/// The values between which all but a share at either end lie.
std::pair<double, double> middleOf(const std::vector<QRectF> &boxes, double share,
                                   double (*value)(const QRectF &))
{
    std::vector<double> values;
    for (const QRectF &box : boxes) values.push_back(value(box));
    std::ranges::sort(values);
    const size_t cut = size_t(share * double(values.size()));
    return {values[cut], values[values.size() - 1 - cut]};
}

bool crosses(const QRectF &r, const QPolygonF &line)
{
    if (std::ranges::any_of(line, [&r](QPointF p) { return r.contains(p); })) return true;
    const QLineF sides[] = {{r.topLeft(), r.topRight()}, {r.topRight(), r.bottomRight()},
                            {r.bottomRight(), r.bottomLeft()}, {r.bottomLeft(), r.topLeft()}};
    for (qsizetype i = 0; i + 1 < line.size(); ++i)
        for (const QLineF &side : sides)
            if (QLineF(line[i], line[i + 1]).intersects(side, nullptr) == QLineF::BoundedIntersection)
                return true;
    return false;
}

} // namespace

Scene::Scene(Resources resources, std::vector<Element> elements)
    : m_resources(std::move(resources)), m_elements(std::move(elements)), m_origin(originOf(m_elements))
{
    SceneBuilder built(m_resources, m_elements, m_origin);
    m_batches = std::move(built.batches);
    m_texts = std::move(built.texts);
    m_boxes = std::move(built.boxes);
    m_textAt = std::move(built.textAt);
}

bool Scene::shown(int layer) const { return layer < 0 || m_resources.layers.rows()[size_t(layer)].Visible; }

std::vector<QRectF> Scene::boxesOf(bool onlyShown) const
{
    std::vector<QRectF> boxes;
    for (size_t i = 0; i < m_elements.size(); ++i) {
        const QRectF &box = m_boxes[i];
        if (box.isNull() || (onlyShown && !shown(m_resources.layers.indexOf(m_elements[i].layId)))) continue;
        const bool isText = m_textAt[i].first >= 0; // its reach is a large estimate
        boxes.push_back(isText ? QRectF(box.center(), QSizeF(1e-6, 1e-6)) : box);
    }
    return boxes.empty() && onlyShown ? boxesOf(false) : boxes;
}

QRectF Scene::bounds() const { return united(boxesOf(true)); }

QRectF Scene::mainBounds() const
{
    constexpr double share = 0.02, margin = 0.15, speck = 20;
    const std::vector<QRectF> boxes = boxesOf(true);
    const QRectF all = united(boxes);
    if (boxes.empty()) return all;
    const auto [left, right] = middleOf(boxes, share, [](const QRectF &r) { return r.center().x(); });
    const auto [low, high] = middleOf(boxes, share, [](const QRectF &r) { return r.center().y(); });
    const double reach = std::max({(right - left) * margin, (high - low) * margin, 1e-6});
    const QRectF most =
        QRectF(QPointF(left, low), QPointF(right, high)).adjusted(-reach, -reach, reach, reach);
    return std::max(all.width() / most.width(), all.height() / most.height()) > speck ? most & all : all;
}

const Pattern &Scene::patternOf(const Chunk &chunk, const ZolWDoc::tPenStyle &type) const
{
    if (!chunk.pattern)
        chunk.pattern = std::make_unique<Pattern>(madePattern(chunk.lines, type, m_resources));
    return *chunk.pattern;
}

const QPainterPath &Scene::pathOf(const TextItem &t) const
{
    if (t.path.isEmpty()) {
        const QString &text = m_elements[size_t(t.element)].text;
        const QPainterPath shape = textShape(text, m_resources.textTypes.find(t.txdId), t.align);
        t.path = placed(t.at, t.rotation, t.height, t.height).map(shape);
        t.inked = t.path.controlPointRect();
    }
    return t.path;
}

double Scene::distanceTo(int element, QPointF local) const
{
    const auto [tile, place] = m_textAt[size_t(element)];
    const ElementKind kind = m_elements[size_t(element)].kind;
    if (tile >= 0 || kind == ElementKind::Symbol) {
        const QPainterPath path = outlineOf(element);
        return path.contains(local) ? 0 : distance(local, path.toFillPolygon());
    }
    double least = kFar;
    for (const QPolygonF &line : outlinesOf(m_elements[size_t(element)], m_origin))
        least = std::min(least, distance(local, line));
    return least;
}

int Scene::elementAt(QPointF local, double tolerance) const
{
    int nearest = -1;
    double least = tolerance;
    const QRectF near(local - QPointF(tolerance, tolerance), local + QPointF(tolerance, tolerance));
    for (size_t i = 0; i < m_elements.size(); ++i) {
        if (!m_boxes[i].intersects(near) || !shown(m_resources.layers.indexOf(m_elements[i].layId))) continue;
        const double d = distanceTo(int(i), local);
        if (d <= least) nearest = int(i), least = d; // of equals the one drawn last, which lies above
    }
    return nearest;
}

std::vector<int> Scene::elementsIn(const QRectF &local, bool wholly) const
{
    std::vector<int> inside;
    for (size_t i = 0; i < m_elements.size(); ++i) {
        if (!m_boxes[i].intersects(local) || !shown(m_resources.layers.indexOf(m_elements[i].layId)))
            continue;
        const bool boxed = m_textAt[i].first >= 0 || m_elements[i].kind == ElementKind::Symbol;
        const std::vector<QPolygonF> lines = boxed ? std::vector<QPolygonF>{outlineOf(int(i)).toFillPolygon()}
                                                   : outlinesOf(m_elements[i], m_origin);
        const bool in =
            std::ranges::all_of(lines, [&](const QPolygonF &l) { return local.contains(l.boundingRect()); });
        if (in ||
            (!wholly && std::ranges::any_of(lines, [&](const QPolygonF &l) { return crosses(local, l); })))
            inside.push_back(int(i));
    }
    return inside;
}

QPainterPath Scene::outlineOf(int element) const
{
    QPainterPath path;
    const auto [tile, place] = m_textAt[size_t(element)];
    if (tile >= 0) {
        const TextItem &t = m_texts[size_t(tile)].items[size_t(place)];
        const QPainterPath shape =
            textShape(m_elements[size_t(element)].text, m_resources.textTypes.find(t.txdId), t.align);
        path.addPolygon(placed(t.at, t.rotation, t.height, t.height).map(QPolygonF(shape.boundingRect())));
    } else if (m_elements[size_t(element)].kind == ElementKind::Symbol) {
        path.addRect(m_boxes[size_t(element)]);
    } else {
        for (const QPolygonF &line : outlinesOf(m_elements[size_t(element)], m_origin)) path.addPolygon(line);
    }
    return path;
}

} // namespace refhost
