#pragma once

#include "window/ScenePainter.h"

#include "support/QtClasses.h"

namespace tests {

/// Tables with two layers (1 plain, 2 "by layer"), pens 1 white and 2 red, a dashed line type and a text
/// type.
inline refhost::Resources smallTables(bool secondVisible = true)
{
    refhost::Resources r;
    r.layers = {{{.LayId = 1, .gNr = 10, .Name = "A", .PenStyleId = 5, .PenColorId = 2, .TxdId = 3},
                 {.LayId = 2, .gNr = 20, .Name = "B", .Visible = secondVisible, .PenStyleId = 6,
                  .ScrColor = 4, .TxdId = 4, .ElByLayer = true, .TxByLayer = true}}};
    r.lineTypes = {
        {{.iPenStyleId = 5, .PenStyleNr = 1}, {.iPenStyleId = 6, .PenStyleNr = 2, .Pattern = {3, 2}}}};
    r.textTypes = {{{.TxdId = 3, .Size_mm = 2}, {.TxdId = 4, .Size_mm = 4}}};
    r.palette[1] = 0xFF0000, r.palette[7] = 0xFFFFFF, r.palette[8] = 0x808080, r.palette[250] = 0x202020;
    r.pens.pen(1).ScrColor = 7;
    r.pens.pen(2) = {1, 250};
    r.pens.pen(3).ScrColor = 250;
    r.pens.pen(4).ScrColor = 8;
    r.metresPerMm = 1;
    return r;
}

inline refhost::Element line(double x1, double y1, double x2, double y2, qint16 layer = 1)
{
    return {.kind = refhost::ElementKind::Line, .layId = layer, .vertices = {{x1, y1}, {x2, y2}}};
}

/// The scene on an image, one pixel a metre times `zoom`, about `centre` (local).
inline QImage imageOf(const refhost::Scene &scene, QSize size, QPointF centre, double zoom,
                      QColor background = Qt::white)
{
    QImage image(size, QImage::Format_RGB32);
    refhost::Viewport view;
    view.size = size;
    view.centre = centre;
    view.pxPerMetre = zoom;
    QPainter p(&image);
    renderTo(p, scene, view, {background});
    return image;
}

/// How many pixels of the row or column are not the background's.
inline int inked(const QImage &image, int row, QColor background = Qt::white)
{
    int n = 0;
    for (int x = 0; x < image.width(); ++x) n += image.pixelColor(x, row) != background;
    return n;
}

} // namespace tests
