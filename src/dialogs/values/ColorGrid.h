#pragma once

#include "kit/forms/CellGrid.h"

#include <vector>

namespace QV_DOC_CONTROLS {

QString rgbOf(quint32 color);                   ///< "RGB 255, 128, 0" of 0xRRGGBB

/// The swatches of a palette in lines of sixteen; a swatch's index is the number before its line plus the one
/// above its column. PgUp and PgDn go to the first and last line. On a small screen it scrolls.
class ColorGrid final : public CellGrid {
    Q_OBJECT
public:
    ColorGrid(std::vector<quint32> palette, QWidget *parent);

    void keyboardSearch(const QString &typed) override; ///< digits are handed on

signals:
    void digitsTyped(const QString &digits);

protected:
    int cellCount() const override { return m_count; }
    int linesPerPage() const override { return m_count; }

private:
    void fitSwatches();
    int m_count;
};

} // namespace QV_DOC_CONTROLS
