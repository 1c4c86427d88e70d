#include "kit/grid/GridSheet.h"

#include "kit/grid/Grid.h"
#include "kit/grid/GridModel.h"

namespace QV_DOC_CONTROLS {

GridSheet::GridSheet(const Grid &grid, const GridModel &model)
    : m_grid(grid), m_model(model), m_columns(grid.shownColumns())
{
}

std::vector<SheetSource::Column> GridSheet::sheetColumns() const
{
    std::vector<Column> columns;
    for (int c : m_columns) {
        const GridColumn &column = *m_model.column(c);
        const bool right = column.kind == CellKind::Number || column.kind == CellKind::Color;
        columns.push_back({column.caption, m_grid.columnWidth(c),
                           right ? Qt::AlignRight : Qt::AlignLeft});
    }
    return columns;
}

int GridSheet::sheetRows() const { return m_model.engine().lines(); }

SheetSource::Row GridSheet::sheetRow(int line) const
{
    Row row;
    row.cells.resize(m_columns.size());
    if (const int band = m_model.engine().bandAt(line); band >= 0) {
        row.level = m_model.engine().band(band).level;
        if (!row.cells.empty()) row.cells[0].text = m_model.bandText(band);
        return row;
    }
    for (size_t i = 0; i < m_columns.size(); ++i)
        row.cells[i] = cellAt(m_model.engine().rowAt(line), m_columns[i]);
    return row;
}

SheetSource::Cell GridSheet::cellAt(int row, int c) const
{
    const CellKind kind = m_model.column(c)->kind;
    const GridStyle style = m_model.styleOf(row, c);
    Cell cell;
    cell.background = style.background, cell.color = style.text, cell.grayed = style.grayed;
    if (kind == CellKind::Check) cell.check = m_model.source()->value(row, c).toBool();
    else cell.text = m_model.source()->text(row, c);
    if (kind == CellKind::Picture) cell.picture = m_model.picture(row, c);
    return cell;
}

std::unique_ptr<SheetSource> Grid::sheet() const { return std::make_unique<GridSheet>(*this, *m_model); }

} // namespace QV_DOC_CONTROLS
