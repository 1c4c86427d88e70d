#include "kit/paper/Ink.h"

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr double kReadable = 3.0;   ///< contrast that large or bold letters need

double linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminanceOf(QColor c)
{
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

} // namespace

double contrastOf(QColor a, QColor b)
{
    const double x = luminanceOf(a), y = luminanceOf(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor inkOn(QColor ground, QColor wanted)
{
    const QColor under = ground.isValid() ? ground : QColor::fromRgb(kPaper);
    if (wanted.isValid() && contrastOf(under, wanted) >= kReadable) return wanted;
    const QColor black = QColor::fromRgb(kInk), white = QColor::fromRgb(kPaper);
    return contrastOf(under, black) >= contrastOf(under, white) ? black : white;
}

} // namespace QV_DOC_CONTROLS
