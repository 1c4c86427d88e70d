#pragma once

#include "window/ScenePainter.h"

#include <QPixmap>
#include <QRegion>

namespace refhost {

/// The drawing as last painted. Panning moves the picture and paints only what comes into view.
class BackBuffer {
public:
    void invalidate() { m_pixmap = {}; }
    void moveBy(QPoint delta); ///< pixels; the viewport has been panned by the same delta
    void paint(QPainter &, const Scene &, const Viewport &, const PaintStyle &, double devicePixelRatio);
private:
    QPixmap m_pixmap;
    QRegion m_stale;                                ///< to be painted, in device-independent pixels
};

} // namespace refhost
