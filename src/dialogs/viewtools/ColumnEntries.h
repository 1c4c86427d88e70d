#pragma once

#include "kit/grid/AbstractGrid.h"

namespace QV_DOC_CONTROLS {

/// Lists keep columns as 1-based numbers; 0 stands for none.
inline int entryData(int column) { return column + 1; }
inline int columnOf(const QVariant &entryData) { return entryData.toInt() - 1; }

/// How lists name a column: by its long caption, where it has one.
inline QString columnEntry(const SortableRows &grid, int column)
{
    const GridColumn &c = grid.columns()[size_t(column)];
    return c.longCaption.isEmpty() ? c.caption : c.longCaption;
}

} // namespace QV_DOC_CONTROLS
