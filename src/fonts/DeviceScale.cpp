#include "fonts/DeviceScale.h"

#include <QGuiApplication>
#include <QScreen>

namespace QV_DOC_CONTROLS {

double pixelsPerCentimetre(int pixels, double millimetres)
{
    constexpr double kUsualWidth = 320;
    return pixels / (millimetres > 0 ? millimetres : kUsualWidth) * 10;
}

double screenPixelsPerMm()
{
    thread_local const double scale = [] {
        const QScreen *const screen = QGuiApplication::primaryScreen();
        return screen ? pixelsPerCentimetre(screen->size().width(), screen->physicalSize().width())
                      : pixelsPerCentimetre(1280, 0);
    }();
    return scale / 10;
}

} // namespace QV_DOC_CONTROLS
