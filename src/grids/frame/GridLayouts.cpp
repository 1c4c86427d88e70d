#include "grids/frame/GridLayouts.h"

#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

void saveGridLayout(const Grid &grid, const LayoutName &layout)
{
    saveLayout(layoutFileName(layout), QLatin1String(layout.table), grid.state());
}

bool loadGridLayout(Grid &grid, const LayoutName &layout)
{
    const auto state = loadLayout(layoutFileName(layout), QLatin1String(layout.table), grid.state().columns);
    return state && grid.setState(*state);
}

} // namespace QV_DOC_CONTROLS
