#include "window/ScreenColors.h"

#include <cmath>

namespace refhost {
namespace {

// Of the palette: "white or black, whichever can be seen". A palette with other colours there is taken at its
// word.
constexpr bool isForegroundIndex(int index) { return index == 0 || index == 7; }
constexpr double kLeastContrast = 1.35; // ratio of luminances, 1 = the same

double luminance(const QColor &c)
{
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a) + 0.05, lb = luminance(b) + 0.05;
    return std::max(la, lb) / std::min(la, lb);
}

bool isGrey(const QColor &c) { return c.hsvSaturationF() < 0.12 || c.valueF() < 0.12; }

} // namespace

ScreenColors screenColorsOn(const QColor &background, const ZolWDoc::PenColorTable &pens,
                            const ZolWDoc::Palette &palette, Colors which)
{
    const QColor foreground = luminance(background) > 0.18 ? QColor(Qt::black) : QColor(Qt::white);
    ScreenColors all;
    all[0] = foreground;
    for (int pen = 1; pen < 256; ++pen) {
        const ZolWDoc::PenColorPair pair = pens.pen(pen);
        const qint16 index = which == Colors::Screen ? pair.ScrColor : pair.PrnColor;
        const bool valid = index >= 0 && size_t(index) < palette.size();
        const QColor color = valid ? QColor::fromRgb(palette[size_t(index)]) : foreground;
        const bool swallowed = isGrey(color) && contrast(color, background) < kLeastContrast;
        const bool isForeground = isForegroundIndex(index) && isGrey(color);
        all[size_t(pen)] = isForeground || swallowed ? foreground : color;
    }
    return all;
}

} // namespace refhost
