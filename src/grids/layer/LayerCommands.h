#pragma once

#include "grids/clsJs_Layer.h"
#include "kit/tools/Tool.h"

namespace QV_DOC_CONTROLS {

/// What the layer tools do and when they can be used. Names are published.
inline constexpr ToolCommand<clsJs_Layer> kLayerCommands[] = {
    {"miAddNew", &clsJs_Layer::newLayer, &clsJs_Layer::isEditable},
};

} // namespace QV_DOC_CONTROLS
