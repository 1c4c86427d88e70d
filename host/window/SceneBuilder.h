#pragma once

#include "window/Resources.h"
#include "window/SceneParts.h"

#include "window/Lettering.h"

#include <QHash>

#include <map>

namespace refhost {

/// Sorts elements into batches and tiles; used once per scene.
class SceneBuilder {
public:
    SceneBuilder(const Resources &, const std::vector<Element> &, QPointF origin);

    std::vector<Batch> batches;
    std::vector<TextTile> texts;
    std::vector<QRectF> boxes;                     ///< of each element, local metres
    std::vector<std::pair<int, int>> textAt;       ///< of each element: tile and place in it, or -1

private:
    void add(int index);
    void addLines(const std::vector<QPolygonF> &, BatchKey);
    void addInParts(const QPolygonF &line, const BatchKey &);
    void addPoint(QPointF at, BatchKey);
    QRectF addSymbol(const Element &, QPointF at, BatchKey);
    QRectF addText(int index, QPointF at, const Look &);
    Chunk &chunkFor(const BatchKey &, const QRectF &box);
    int tileOf(const QRectF &box) const;           ///< -1 = too large for one tile
    const SymbolShape &shapeOfSymbol(qint16 id);

    const Resources &m_resources;
    const std::vector<Element> &m_elements;
    QPointF m_origin;
    QRectF m_all;
    int m_tilesPerSide = 1;
    std::map<BatchKey, std::map<int, Chunk>> m_chunks;
    std::map<int, TextTile> m_textTiles;
    QHash<qint16, SymbolShape> m_shapes;
};

QPointF originOf(const std::vector<Element> &); ///< whole metres amid the elements; survives single runaways
QTransform placed(QPointF at, double rotation, double xScale, double yScale);

} // namespace refhost
