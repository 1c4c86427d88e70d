#pragma once

#include "kit/paper/SheetPainter.h"
#include "paper/SampleSheet.h"

#include "support/QtClasses.h"

namespace tests {

constexpr double kMmPerUnit = 25.4 / QV_DOC_CONTROLS::kUnitsPerInch;

inline QPageLayout sheetOf(double widthMm, double heightMm, double marginMm = 10)
{
    const QPageSize size(QSizeF(widthMm, heightMm), QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    QPageLayout layout(size, QPageLayout::Portrait, {}, QPageLayout::Millimeter);
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins({marginMm, marginMm, marginMm, marginMm});
    return layout;
}

constexpr double kPixelsPerUnit = 0.16;

/// A page on white, as a printer would get it.
inline QImage pictureOf(const QV_DOC_CONTROLS::SheetPainter &sheet, int page)
{
    QImage image((sheet.paperSize() * kPixelsPerUnit).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(kPixelsPerUnit, kPixelsPerUnit);
    sheet.paintPage(painter, page);
    return image;
}

/// The inside of a cell on the first page, in pixels: without the lines around it.
inline QRect insideOf(const QV_DOC_CONTROLS::SheetLayout &layout, int row, int column)
{
    const auto &edges = layout.strip(0).edges;
    double top = layout.bodyTop();
    for (int r = 0; r < row; ++r) top += layout.rowHeight(r);
    const QRectF cell(QPointF(edges[size_t(column)], top),
                      QPointF(edges[size_t(column) + 1], top + layout.rowHeight(row)));
    const QRectF pixels(cell.topLeft() * kPixelsPerUnit, cell.size() * kPixelsPerUnit);
    return pixels.toAlignedRect().adjusted(3, 3, -3, -3);
}

inline int darkestIn(const QImage &image, const QRect &area)
{
    int darkest = 255;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    return darkest;
}
inline int brightestIn(const QImage &image, const QRect &area)
{
    QImage turned = image;
    turned.invertPixels();
    return 255 - darkestIn(turned, area);
}

} // namespace tests
