#pragma once

#include "window/ScreenColors.h"
#include "window/Scene.h"
#include "window/Viewport.h"

class QPainter;

namespace refhost {

struct PaintStyle {
    QColor background = Qt::white;
    Colors colors = Colors::Screen;
};

/// Paints the part of the scene that the viewport shows and that lies in `clip` (screen pixels; empty =
/// everything), background included. Shared by the window, pictures and tests.
void renderTo(QPainter &, const Scene &, const Viewport &, const PaintStyle &, const QRectF &clip = {});

/// The whole scene on a surface of that size.
void renderTo(QPainter &, const Scene &, QSize size, double dpi, const PaintStyle &);

} // namespace refhost
