#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/SortKey.h"

#include <span>

namespace QV_DOC_CONTROLS {

/// What can be sorted by its columns, as the sort dialog sees it.
class SortableRows {
public:
    virtual ~SortableRows() = default;
    virtual const std::vector<GridColumn> &columns() const = 0;
    virtual std::vector<SortKey> sortKeys() const = 0;                  ///< the first one counts most
    virtual void setSortKeys(std::span<const SortKey> keys) = 0;        ///< at most kMaxLevels
};

/// A grid as the view tools see it: columns by their index in the source, keys, levels; no records, no
/// manager.
class AbstractGrid : public SortableRows {
public:
    virtual std::vector<int> shownColumns() const = 0; ///< in display order; the others are hidden
    virtual void showColumns(std::span<const int> inOrder) = 0;
    virtual std::vector<SortKey> groupLevels() const = 0; ///< the outermost first; empty = not grouped
    virtual void setGroupLevels(std::span<const SortKey> levels) = 0;   ///< at most kMaxLevels
    virtual void setAllExpanded(bool expanded) = 0;                     ///< every group
};

} // namespace QV_DOC_CONTROLS
