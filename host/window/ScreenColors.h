#pragma once

#include "facade/contract/Records.h"

#include <QColor>

namespace refhost {

enum class Colors { Screen, Print };

/// The colours of the pens on a background; index 0 is the foreground. White and black change places when the
/// background would swallow them; every other colour stays what the palette says.
using ScreenColors = std::array<QColor, 256>;
ScreenColors screenColorsOn(const QColor &background, const ZolWDoc::PenColorTable &,
                            const ZolWDoc::Palette &, Colors);

} // namespace refhost
