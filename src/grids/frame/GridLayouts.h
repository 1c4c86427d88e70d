#pragma once

#include "rules/GridLayoutFile.h"

#include <concepts>

namespace QV_DOC_CONTROLS {

template <class G> concept KeepsState = requires(G &grid, const G &shown, const GridState &state) {
    { shown.state() } -> std::convertible_to<GridState>;
    grid.setState(state);
};

/// Keeps how a grid is seen in the file of its table's layout name and the current language; errors are swallowed.
template <KeepsState G> void saveGridLayout(const G &grid, const QString &layout)
{
    saveLayout(layoutFileName(layout), layout, grid.state());
}

/// False when there is no sound layout of this name and language; then the grid stays as it is.
template <KeepsState G> bool loadGridLayout(G &grid, const QString &layout)
{
    const GridState now = grid.state();
    const auto state = loadLayout(layoutFileName(layout), layout, now.columns);
    if (state) grid.setState(*state);
    return state.has_value();
}

} // namespace QV_DOC_CONTROLS
