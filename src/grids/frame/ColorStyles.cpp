#include "grids/frame/ColorStyles.h"

#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

void buildColorStyles(Grid &grid, ZolWDoc::ZOLW_Doc &doc)
{
    const ZolWDoc::PenColorTable pens = doc.penColors().read();
    const ZolWDoc::Palette palette = doc.penColors().palette();
    GridStyles &styles = grid.formatStyles();
    styles.clear();
    for (int n = 0; n <= 255; ++n) {
        const int index = n == 0 ? -1 : pens.pen(n).ScrColor;
        const quint32 value = index < 0 || index > 255 ? 0 : palette[size_t(index)] & 0xFFFFFF;
        styles.set(colorStyleName(n),
                   {QColor::fromRgb(value), value == 0 ? QColor(255, 255, 255) : QColor()});
    }
    styles.set(QStringLiteral("OddRow"), {});
    styles.set(QStringLiteral("Grayed"), {QColor(), QColor(), true});
}

} // namespace QV_DOC_CONTROLS
