#include "grids/frame/ColorStyles.h"

#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

std::vector<quint32> screenColorsOfPens(ZolWDoc::ZOLW_Doc &doc)
{
    const ZolWDoc::PenColorTable pens = doc.penColors().read();
    const ZolWDoc::Palette palette = doc.penColors().palette();
    std::vector<quint32> colors(256, 0);
    for (int n = 1; n <= 255; ++n)
        if (const int index = pens.pen(n).ScrColor; index >= 0 && index <= 255)
            colors[size_t(n)] = palette[size_t(index)] & 0xFFFFFF;
    return colors;
}

void buildColorStyles(Grid &grid, ZolWDoc::ZOLW_Doc &doc)
{
    const std::vector<quint32> colors = screenColorsOfPens(doc);
    GridStyles &styles = grid.formatStyles();
    styles.clear();
    for (int n = 0; n <= 255; ++n) {
        const quint32 value = colors[size_t(n)];
        styles.set(colorStyleName(n),
                   {QColor::fromRgb(value), value == 0 ? QColor(255, 255, 255) : QColor()});
    }
    styles.set(QStringLiteral("OddRow"), {});
    styles.set(QStringLiteral("Grayed"), {QColor(), QColor(), true});
}

} // namespace QV_DOC_CONTROLS
