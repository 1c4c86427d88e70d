#pragma once

#include "window/Resources.h"
#include "window/SceneParts.h"

#include <span>

namespace refhost {

/// A drawing ready to be painted: the document's records, copied, and their geometry in batches by layer, pen
/// and width. Coordinates are metres relative to origin(), a point amid the drawing, so that nothing is lost
/// to large eastings and northings. Without a widget and without the document.
class Scene {
public:
    Scene() = default;
    Scene(Resources, std::vector<Element>);

    const Resources &resources() const { return m_resources; }
    const std::vector<Element> &elements() const { return m_elements; }
    QPointF origin() const { return m_origin; }
    QPointF toLocal(double x, double y) const { return {x - m_origin.x(), y - m_origin.y()}; }
    QPointF toWorld(QPointF local) const { return local + m_origin; }

    QRectF bounds() const;                           ///< of what is visible; of everything when nothing is
    QRectF mainBounds() const; ///< without a few runaways that would make the rest a speck
    bool shown(int layer) const;                     ///< layer: an index; what is on no layer is shown
    const std::vector<Batch> &batches() const { return m_batches; }
    const std::vector<TextTile> &texts() const { return m_texts; }
    const Pattern &patternOf(const Chunk &, const ZolWDoc::tPenStyle &) const; ///< made on first use
    const QPainterPath &pathOf(const TextItem &) const;              ///< made on first use

    int elementAt(QPointF local,
                  double tolerance) const; ///< index of the nearest shown one, -1 = none so near
    std::vector<int> elementsIn(const QRectF &local, bool wholly) const;
    QPainterPath outlineOf(int element) const;              ///< for marking it as selected

private:
    double distanceTo(int element, QPointF local) const;
    std::vector<QRectF> boxesOf(bool onlyShown) const;   ///< of everything when nothing is shown
    Resources m_resources;
    std::vector<Element> m_elements;
    QPointF m_origin;
    std::vector<Batch> m_batches;
    std::vector<TextTile> m_texts;
    std::vector<QRectF> m_boxes;                     ///< per element
    std::vector<std::pair<int, int>> m_textAt;       ///< per element: tile and place in it, or -1
};

} // namespace refhost
