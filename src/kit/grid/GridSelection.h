#pragma once

#include <QItemSelectionModel>

#include <span>
#include <vector>

namespace QV_DOC_CONTROLS {

class GridModel;

/// The selected rows of a grid, also those without a line: in a collapsed band, or left out by the filter;
/// and the selected records that are no rows just now.
///
/// They come back with their lines. A band that a selected range spans brings its rows along, so that "select
/// all" does.
class GridSelection final : public QItemSelectionModel {
    Q_OBJECT
public:
    GridSelection(GridModel &model, QObject *parent);

    std::vector<int> allRows() const;           ///< source rows, also those that the filter leaves out
    std::vector<int> shownRows() const;         ///< in grid order
    int shownCount() const;
    bool isAnyShown() const;                    ///< as shownCount() > 0, without counting
    int hiddenCount() const;                    ///< left out by the filter, or no rows
    /// Replaces the selection: any source rows, and identifiers of records that are no rows.
    void setRows(std::span<const int> rows, std::vector<qint64> awayIds = {});
    const std::vector<qint64> &awayIds() const { return m_awayIds; }

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;

private:
    std::vector<bool> marks() const;            ///< by source row
    void keepRemoved(int first, int last);
    void bringBack(int first, int last);
    void setAway(int row, bool on);
    GridModel &m_model;
    std::vector<bool> m_away;                   ///< by source row: selected, but without a line; empty = none
    std::vector<qint64> m_awayIds;
    std::vector<int> m_spanned;                 ///< rows that came with a band since the last anchor
};

} // namespace QV_DOC_CONTROLS
