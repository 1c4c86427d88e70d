#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/GridStyles.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <span>

class QTreeView;

namespace QV_DOC_CONTROLS {

class GridModel;

/// Codes of the view styles, as GridView events carry them.
enum class GridView : qint16 { Table = 0, Card = 1, CardMin = 2 };

/// The grid through which every table is seen: rows of a GridSource, in the user's order.
///
/// Rows in this interface are rows of the source. Current row and selection stay with their records through a refill.
class Grid final : public QWidget {
    Q_OBJECT
public:
    explicit Grid(QWidget *parent = nullptr);

    void setSource(GridSource *source);             ///< not owned; null = empty, and inert
    /// Runs `change`, which gives the source other rows; then current row, selection and place are as they were, by
    /// identifier. A current record that is gone leaves its place to the row that moved there. Raises nothing.
    void refill(const std::function<void()> &change);
    void rowEdited(int row);                        ///< one row's values changed
    void captionsChanged();                         ///< columns carry new captions

    int currentRow() const;                         ///< -1 = none
    void setCurrentRow(int row);                    ///< makes it visible and, with single selection, the selected one
    std::vector<int> selectedRows() const;          ///< shown ones, in the order of the grid
    int selectedCount() const;
    void selectRows(std::span<const int> rows);     ///< replaces the selection
    void setMultiSelection(bool on);
    void setAllowEdit(bool on);
    void setTooltips(bool on);
    GridStyles &formatStyles();
    int rowWithId(qint64 id) const;                 ///< -1 = none
    QTreeView *table() const { return m_table; }

signals:
    void currentRowMoved(int row);                  ///< by the user or setCurrentRow(), also -1
    void selectionMoved();
    void rowActivated(int row);                     ///< double click

private:
    void restoreRows(std::span<const qint64> selected, std::optional<qint64> current, int place);
    void fitColumns();
    GridSource *m_source = nullptr;
    GridModel *m_model;
    QTreeView *m_table;
    bool m_allowEdit = false;
    bool m_refilling = false;
};

} // namespace QV_DOC_CONTROLS
