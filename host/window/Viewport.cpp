#include "window/Viewport.h"

#include <algorithm>

namespace refhost {
namespace {

constexpr double kLeastZoom = 1e-4,
                 kMostZoom = 1e5; // pixels per metre: a continent to a hundredth of a millimetre
constexpr double kMetresPerInch = 0.0254;

} // namespace

QPointF Viewport::toScreen(QPointF local) const
{
    return {size.width() / 2.0 + (local.x() - centre.x()) * pxPerMetre,
            size.height() / 2.0 - (local.y() - centre.y()) * pxPerMetre};
}

QPointF Viewport::toLocal(QPointF screen) const
{
    return {centre.x() + (screen.x() - size.width() / 2.0) / pxPerMetre,
            centre.y() - (screen.y() - size.height() / 2.0) / pxPerMetre};
}

QRectF Viewport::localRect(const QRectF &screen) const
{
    return QRectF(toLocal(screen.bottomLeft()), toLocal(screen.topRight())).normalized();
}

QTransform Viewport::transform() const
{
    const QPointF zero = toScreen({0, 0});
    return {pxPerMetre, 0, 0, -pxPerMetre, zero.x(), zero.y()};
}

void Viewport::pan(QPointF screenDelta)
{
    centre += QPointF(-screenDelta.x(), screenDelta.y()) / pxPerMetre;
}

void Viewport::zoomAt(QPointF screen, double factor)
{
    const QPointF before = toLocal(screen);
    pxPerMetre = std::clamp(pxPerMetre * factor, kLeastZoom, kMostZoom);
    centre += before - toLocal(screen);
}

void Viewport::fit(const QRectF &local, double margin)
{
    const double share = 1 - 2 * margin;
    const double w = std::max(local.width(), 1e-3),
                 h = std::max(local.height(), 1e-3); // a single point has no size
    centre = local.center();
    pxPerMetre =
        std::clamp(std::min(size.width() * share / w, size.height() * share / h), kLeastZoom, kMostZoom);
}

double Viewport::scale() const { return dpi / kMetresPerInch / pxPerMetre; }

} // namespace refhost
