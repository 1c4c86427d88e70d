#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

namespace refhost {

/// Which part of a drawing is seen, and how large. Drawing coordinates are local metres (see Scene::origin),
/// y upwards; screen coordinates are device-independent pixels, y downwards.
class Viewport {
public:
    QSize size{1, 1};
    double dpi = 96;                            ///< pixels per inch of the screen
    QPointF centre;                             ///< the local point in the middle
    double pxPerMetre = 1;

    QPointF toScreen(QPointF local) const;
    QPointF toLocal(QPointF screen) const;
    QRectF localRect(const QRectF &screen) const;
    QRectF visible() const { return localRect(QRectF(QPointF(0, 0), QSizeF(size))); }
    QTransform transform() const;               ///< local to screen

    void pan(QPointF screenDelta);              ///< the drawing follows the delta
    void zoomAt(QPointF screen, double factor); ///< the point under `screen` stays there
    void fit(const QRectF &local, double margin = 0.04); ///< margin: share of the size left free on each side
    double scale() const;                       ///< denominator: 1 : scale on this screen
};

} // namespace refhost
