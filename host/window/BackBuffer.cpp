#include "window/BackBuffer.h"

#include <QPainter>

#include <cmath>

namespace refhost {

void BackBuffer::moveBy(QPoint delta)
{
    if (m_pixmap.isNull()) return;
    const double ratio = m_pixmap.devicePixelRatio(), dx = delta.x() * ratio, dy = delta.y() * ratio;
    // At a ratio like 1.25 a whole pixel is no whole device pixel: moving the picture would blur it.
    if (dx != std::round(dx) || dy != std::round(dy)) return invalidate();
    const QRect all(QPoint(0, 0), m_pixmap.deviceIndependentSize().toSize());
    m_pixmap.scroll(int(dx), int(dy), m_pixmap.rect());
    m_stale.translate(delta);
    m_stale |= QRegion(all) - QRegion(all.translated(delta));
    m_stale &= all;
}

void BackBuffer::paint(QPainter &to, const Scene &scene, const Viewport &view, const PaintStyle &style,
                       double ratio)
{
    const QSize wanted = (QSizeF(view.size) * ratio).toSize();
    if (m_pixmap.size() != wanted || m_pixmap.devicePixelRatio() != ratio) {
        m_pixmap = QPixmap(wanted);
        m_pixmap.setDevicePixelRatio(ratio);
        m_stale = QRegion(QRect(QPoint(0, 0), view.size));
    }
    if (!m_stale.isEmpty()) {
        QPainter p(&m_pixmap);
        for (const QRect &r : m_stale) renderTo(p, scene, view, style, QRectF(r));
        m_stale = {};
    }
    to.drawPixmap(QPoint(0, 0), m_pixmap);
}

} // namespace refhost
