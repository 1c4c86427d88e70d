#pragma once

#include "rules/GridLayoutFile.h"

namespace QV_DOC_CONTROLS {

class Grid;

/// Keeps how a grid is seen in the file of its table's layout name and the current language; errors are
/// swallowed.
void saveGridLayout(const Grid &grid, const LayoutName &layout);

/// False when there is no sound layout of this name and language; then the grid stays as it is.
bool loadGridLayout(Grid &grid, const LayoutName &layout);

} // namespace QV_DOC_CONTROLS
