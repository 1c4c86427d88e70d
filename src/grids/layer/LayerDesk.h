#pragma once

#include "grids/LayerTable.h"
#include "grids/frame/Desk.h"

namespace QV_DOC_CONTROLS {

using LayerDesk = TableDesk<LayerTable>;

} // namespace QV_DOC_CONTROLS
