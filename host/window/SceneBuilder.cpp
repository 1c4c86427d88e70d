#include "window/SceneBuilder.h"

#include "window/Outlines.h"

#include <QTransform>

#include <cmath>

namespace refhost {
namespace {

constexpr double kElementsPerTile = 50;
constexpr qsizetype kLongLine = 24; // points: longer lines are cut, so that each part has its own tile
constexpr int kMostTilesPerSide = 64;
constexpr double kLetterMm = 2.5;            // of texts that know neither size nor text type
constexpr double kWidestLetter = 1.6;        // letter heights that one character can take

bool isFinite(const Element &e)
{
    return std::ranges::all_of(e.vertices,
                               [](const Vertex &v) { return std::isfinite(v.x) && std::isfinite(v.y); });
}

QRectF boxOf(const std::vector<QPolygonF> &outlines)
{
    constexpr double least = 1e-6; // empty rectangles neither unite nor intersect
    QRectF box;
    for (const QPolygonF &p : outlines) {
        QRectF r = p.boundingRect();
        r.setSize({std::max(r.width(), least), std::max(r.height(), least)});
        box = box.isNull() ? r : box.united(r);
    }
    return box;
}

bool isPlain(const ZolWDoc::tPenStyle &type)
{
    const bool bare = std::ranges::all_of(type.Slots, [](qint16 nr) { return nr == 0; });
    return type.Pattern.empty() && type.PenDown && bare;
}

double areaOf(const QPolygonF &ring)
{
    double sum = 0;
    for (qsizetype i = 0; i + 1 < ring.size(); ++i)
        sum += ring[i].x() * ring[i + 1].y() - ring[i + 1].x() * ring[i].y();
    return sum / 2;
}

/// Outer rings anticlockwise and holes clockwise: fills that overlap in one path do not cut each other out.
std::vector<QPolygonF> woundFor(std::vector<QPolygonF> rings)
{
    const std::vector<QPolygonF> all = rings;
    for (size_t i = 0; i < rings.size(); ++i) {
        bool hole = false;
        for (size_t k = 0; k < all.size(); ++k)
            if (k != i && all[k].containsPoint(all[i].front(), Qt::OddEvenFill)) hole = !hole;
        if ((areaOf(rings[i]) < 0) != hole) std::ranges::reverse(rings[i]);
    }
    return rings;
}

void addItem(Chunk &chunk, Item item)
{
    item.path.setFillRule(Qt::WindingFill);
    chunk.path.setFillRule(Qt::WindingFill);
    chunk.path.addPath(item.path);
    chunk.largest = std::max({chunk.largest, item.box.width(), item.box.height()});
    chunk.items.push_back(std::move(item));
}

double median(std::vector<double> &values)
{
    const auto middle = values.begin() + qsizetype(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

QPointF originOf(const std::vector<Element> &elements)
{
    std::vector<double> xs, ys;
    for (const Element &e : elements)
        if (!e.vertices.empty() && isFinite(e)) xs.push_back(e.vertices[0].x), ys.push_back(e.vertices[0].y);
    return xs.empty() ? QPointF() : QPointF(std::round(median(xs)), std::round(median(ys)));
}

QTransform placed(QPointF at, double rotation, double xScale, double yScale)
{
    QTransform t;
    t.translate(at.x(), at.y());
    t.rotate(rotation);
    t.scale(xScale, yScale);
    return t;
}

SceneBuilder::SceneBuilder(const Resources &resources, const std::vector<Element> &elements, QPointF origin)
    : boxes(elements.size()), textAt(elements.size(), {-1, -1}), m_resources(resources), m_elements(elements),
      m_origin(origin)
{
    for (size_t i = 0; i < elements.size(); ++i) {
        if (!isFinite(elements[i])) continue;
        boxes[i] = boxOf(outlinesOf(elements[i], origin));
        m_all = m_all.isNull() ? boxes[i] : m_all.united(boxes[i]);
    }
    m_tilesPerSide =
        std::clamp(int(std::sqrt(double(elements.size()) / kElementsPerTile)), 1, kMostTilesPerSide);
    for (size_t i = 0; i < elements.size(); ++i)
        if (!boxes[i].isNull()) add(int(i));
    for (auto &[key, chunks] : m_chunks) {
        Batch &batch = batches.emplace_back();
        batch.key = key;
        for (auto &[tile, chunk] : chunks) batch.chunks.push_back(std::move(chunk));
    }
    for (auto &[tile, items] : m_textTiles) {
        for (size_t i = 0; i < items.items.size(); ++i)
            textAt[size_t(items.items[i].element)] = {int(texts.size()), int(i)};
        texts.push_back(std::move(items));
    }
}

void SceneBuilder::add(int index)
{
    const Element &e = m_elements[size_t(index)];
    const Look look = m_resources.lookOf(e);
    const std::vector<QPolygonF> outlines = outlinesOf(e, m_origin);
    BatchKey key{.layer = m_resources.layers.indexOf(e.layId), .pen = std::clamp<int>(look.pen, 0, 255)};
    QRectF &box = boxes[size_t(index)];
    switch (e.kind) {
    case ElementKind::Line:
    case ElementKind::Ellipse:
        if (const ZolWDoc::tPenStyle *type = m_resources.lineTypes.find(look.penStyleId)) {
            key.width = double(type->Size) * m_resources.metresPerMm;
            key.lineType = isPlain(*type) ? -1 : type->iPenStyleId;
        }
        return addLines(outlines, key);
    case ElementKind::Fill:
        key.pass = Pass::Fills, key.filled = true;
        return addLines(outlines, key);
    case ElementKind::Point: return addPoint(outlines[0].front(), key);
    case ElementKind::Symbol: box = addSymbol(e, outlines[0].front(), key); return;
    case ElementKind::Text: box = addText(index, outlines[0].front(), look); return;
    }
}

void SceneBuilder::addLines(const std::vector<QPolygonF> &outlines, BatchKey key)
{
    if (!key.filled && key.lineType < 0 && outlines.front().size() > kLongLine)
        return addInParts(outlines.front(), key);
    const QRectF box = boxOf(outlines);
    Chunk &chunk = chunkFor(key, box);
    QPainterPath path;
    for (const QPolygonF &line : key.filled ? woundFor(outlines) : outlines) {
        path.addPolygon(line);
        if (key.lineType >= 0) chunk.lines.push_back(line);
    }
    addItem(chunk, {box, path});
}

void SceneBuilder::addInParts(const QPolygonF &line, const BatchKey &key)
{
    for (qsizetype from = 0; from + 1 < line.size(); from += kLongLine - 1) {
        const QPolygonF part = line.mid(from, kLongLine);
        addLines({part}, key);
    }
}

void SceneBuilder::addPoint(QPointF at, BatchKey key)
{
    key.pass = Pass::Symbols, key.width = 0, key.lineType = -1;
    chunkFor(key, QRectF(at, QSizeF(1e-6, 1e-6))).points.append(at);
}

QRectF SceneBuilder::addSymbol(const Element &e, QPointF at, BatchKey key)
{
    const SymbolShape &shape = shapeOfSymbol(e.sidId);
    if (shape.path.isEmpty()) { // a symbol that is not there still marks its place
        addPoint(at, key);
        return QRectF(at, QSizeF(1e-6, 1e-6));
    }
    const double unit = m_resources.metresPerMm * (e.scale == 0 ? 1 : e.scale);
    const QPainterPath path = placed(at, e.rotation, unit, std::abs(unit)).map(shape.path);
    const double half = shape.width * std::abs(unit) / 2 + 1e-6;
    const QRectF box = path.controlPointRect().adjusted(-half, -half, half, half);
    key.pass = Pass::Symbols;
    key.filled = !shape.stroked;
    key.width = shape.stroked ? shape.width * m_resources.metresPerMm : 0;
    addItem(chunkFor(key, box), {box, path});
    return box;
}

QRectF SceneBuilder::addText(int index, QPointF at, const Look &look)
{
    const Element &e = m_elements[size_t(index)];
    const ZolWDoc::tTxd *type = m_resources.textTypes.find(look.txdId);
    const double typeMm = type && type->Size_mm > 0 ? double(type->Size_mm) : kLetterMm;
    TextItem item{.at = at,
                  .rotation = e.rotation,
                  .layer = m_resources.layers.indexOf(e.layId),
                  .pen = std::clamp<int>(look.pen, 0, 255),
                  .txdId = look.txdId,
                  .align = e.align,
                  .element = index};
    item.height = e.size > 0 ? e.size : typeMm * m_resources.metresPerMm;
    qsizetype longest = 0, rows = 0;
    for (const QStringView row : QStringView(e.text).split(u'\n'))
        longest = std::max(longest, row.size()), ++rows;
    const double stretch = type ? std::max({double(type->XwFact), double(type->YwFact), 1.0}) : 1.0;
    const double rowStep = type ? std::max(double(type->RowDist), 2.0) : 2.0;
    item.reach = item.height * stretch * (double(longest) * kWidestLetter + double(rows) * rowStep + 1);
    const QRectF box(at - QPointF(item.reach, item.reach), at + QPointF(item.reach, item.reach));
    TextTile &tile = m_textTiles[tileOf(QRectF(at, QSizeF(0, 0)))];
    tile.box = tile.items.empty() ? box : tile.box.united(box);
    tile.items.push_back(std::move(item));
    return box;
}

Chunk &SceneBuilder::chunkFor(const BatchKey &key, const QRectF &box)
{
    auto &chunks = m_chunks[key];
    const auto [at, isNew] = chunks.try_emplace(tileOf(box));
    Chunk &chunk = at->second;
    chunk.box = isNew ? box : chunk.box.united(box);
    return chunk;
}

int SceneBuilder::tileOf(const QRectF &box) const
{
    const double w = std::max(m_all.width() / m_tilesPerSide, 1e-9),
                 h = std::max(m_all.height() / m_tilesPerSide, 1e-9);
    if (box.width() > 2 * w || box.height() > 2 * h) return -1;
    const auto column = [this](double at, double tile) {
        return std::clamp(int(at / tile), 0, m_tilesPerSide - 1);
    };
    return column(box.center().y() - m_all.top(), h) * m_tilesPerSide +
           column(box.center().x() - m_all.left(), w);
}

const SymbolShape &SceneBuilder::shapeOfSymbol(qint16 id)
{
    const auto known = m_shapes.constFind(id);
    if (known != m_shapes.constEnd()) return *known;
    const ZolWDoc::tSid *symbol = m_resources.symbols.find(id);
    return *m_shapes.insert(id, symbol ? shapeOf(*symbol, m_resources.glyphs.value(id)) : SymbolShape{});
}

} // namespace refhost
