#pragma once

#include <QWidget>

#include <cmath>

namespace QV_DOC_CONTROLS {

/// Published and stored lengths are twips, 1440 to the inch; widgets count pixels of their own screen.
inline int pixelsOf(int twips, const QWidget &on)
{
    return int(std::lround(twips * on.logicalDpiX() / 1440.0));
}
inline int twipsOf(int pixels, const QWidget &on)
{
    return int(std::lround(pixels * 1440.0 / on.logicalDpiX()));
}

} // namespace QV_DOC_CONTROLS
