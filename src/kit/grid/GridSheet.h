#pragma once

#include "kit/grid/SheetSource.h"

namespace QV_DOC_CONTROLS {

class Grid;
class GridModel;

/// What a grid shows, line by line, for paper and clipboard.
class GridSheet final : public SheetSource {
public:
    GridSheet(const Grid &grid, const GridModel &model);
    std::vector<Column> sheetColumns() const override;
    int sheetRows() const override;
    Row sheetRow(int row) const override;
private:
    Cell cellAt(int sourceRow, int column) const;
    const Grid &m_grid;
    const GridModel &m_model;
    std::vector<int> m_columns;
};

} // namespace QV_DOC_CONTROLS
