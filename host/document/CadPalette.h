#pragma once

#include "facade/contract/Records.h"

namespace refhost {

/// The colour index that drawing programs share: 0 the foreground, 1-9 plain colours, 10-249 twenty-four hues
/// in ten shades, 250-255 greys.
ZolWDoc::Palette cadPalette();

} // namespace refhost
