#include "kit/forms/Contrast.h"

#include <array>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

/// Brightness of a colour's part as the eye takes it, 0 to 1; a table, because a print asks for every swatch.
double linear(int part)
{
    static const std::array<double, 256> table = [] {
        std::array<double, 256> all;
        for (size_t i = 0; i < all.size(); ++i) {
            const double share = double(i) / 255;
            all[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return all;
    }();
    return table[size_t(part)];
}

double luminanceOf(QColor c)
{
    return 0.2126 * linear(c.red()) + 0.7152 * linear(c.green()) + 0.0722 * linear(c.blue());
}

} // namespace

double contrastOf(QColor a, QColor b)
{
    const double x = luminanceOf(a), y = luminanceOf(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor blackOrWhiteOn(QColor ground)
{
    const QColor black(Qt::black), white(Qt::white);
    return contrastOf(ground, black) >= contrastOf(ground, white) ? black : white;
}

} // namespace QV_DOC_CONTROLS
