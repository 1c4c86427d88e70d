#include "grids/frame/GridLayouts.h"

#include "kit/grid/Grid.h"
#include "rules/GridLayoutFile.h"

namespace QV_DOC_CONTROLS {

void saveGridLayout(const Grid &grid, const QString &layout)
{
    saveLayout(layoutFileName(layout), layout, grid.state());
}

bool loadGridLayout(Grid &grid, const QString &layout)
{
    const auto state = loadLayout(layoutFileName(layout), layout, grid.state().columns);
    return state && grid.setState(*state);
}

} // namespace QV_DOC_CONTROLS
