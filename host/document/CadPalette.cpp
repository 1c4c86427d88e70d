#include "document/CadPalette.h"

#include <algorithm>
#include <cmath>

namespace refhost {
namespace {

constexpr quint32 kPlain[] = {0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff,
                              0x0000ff, 0xff00ff, 0xffffff, 0x808080, 0xc0c0c0};
constexpr quint32 kGreys[] = {0x333333, 0x5b5b5b, 0x848484, 0xadadad, 0xd6d6d6, 0xffffff};
constexpr double kBrightness[] = {1.0, 0.65, 0.5, 0.3, 0.15};

/// How much of a primary colour lies in a hue; `degrees` is counted from that primary.
double share(double degrees)
{
    const double away = std::abs(std::remainder(degrees, 360.0));
    return std::clamp(2 - away / 60, 0.0, 1.0);
}

quint32 hueColor(int index)
{
    const double degrees = (index / 10 - 1) * 15;
    const double brightness = 255 * kBrightness[index % 10 / 2];
    const double white = index % 2 ? 0.5 : 0.0;     // odd shades are half as strong
    quint32 rgb = 0;
    for (double primary : {0.0, 120.0, 240.0})
        rgb = rgb << 8 | quint32(brightness * (white + (1 - white) * share(degrees - primary)));
    return rgb;
}

} // namespace

ZolWDoc::Palette cadPalette()
{
    ZolWDoc::Palette p{};
    for (int i = 0; i < 256; ++i) p[size_t(i)] = i < 10 ? kPlain[i] : i < 250 ? hueColor(i) : kGreys[i - 250];
    return p;
}

} // namespace refhost
