#pragma once

#include "kit/grid/AbstractGrid.h"
#include "kit/grid/GridStyles.h"
#include "rules/GridState.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QAbstractItemView;

namespace QV_DOC_CONTROLS {

class FilterLine;
class GridCards;
class GridHeader;
class GridInput;
class GridModel;
class GridSelection;
class GridTable;
class GroupBox;
class LineView;
class SheetSource;

/// Codes of the view styles, as GridView events carry them.
enum class GridView : qint16 { Table = 0, Card = 1, CardMin = 2 };

/// The grid through which every table is seen: rows of a GridSource, sorted, grouped and filtered as the user
/// likes.
///
/// Rows in this interface are rows of the source. Current row and selection stay with their records through a
/// refill, a filter and every change of order. Rows that the filter leaves out are not "shown"; rows in a
/// collapsed band are.
class Grid final : public QWidget, public AbstractGrid {
    Q_OBJECT
public:
    explicit Grid(QWidget *parent = nullptr);
    ~Grid() override;

    void setSource(GridSource *source);             ///< not owned; null = empty, and inert
    /// Runs `change`, which gives the source other rows; then current row, selection and place are as they
    /// were, by identifier. Records that exist and are no rows any more come back with their rows; in the
    /// place of a current record that is gone the next row is current. Raises nothing.
    void refill(const std::function<void()> &change);
    void endEditing();                              ///< writes what an open editor holds and closes it
    void rowEdited(int row);                        ///< one row's values changed; it moves to its place
    void captionsChanged();                         ///< columns carry new captions, maybe of another language

    int currentRow() const;                         ///< -1 = none, or not shown
    void setCurrentRow(int row); ///< makes it visible and the selected one; a filter that hides it goes
    std::vector<int> selectedRows() const;          ///< shown ones, in the order of the grid
    int selectedCount() const;                      ///< shown ones
    bool hasSelection() const;                      ///< as selectedCount() > 0, at once
    void selectRows(std::span<const int> rows);     ///< replaces the selection
    void selectAll();                               ///< every shown row
    bool canSelectAll() const;                      ///< several rows can be selected, and there are some
    /// Makes the next row current whose shown text is `text`, or else begins with it, or else contains it;
    /// case does not count. Looks behind the current row first. False = no shown row has it.
    bool find(int column, const QString &text);
    int rowWithId(qint64 id) const;                 ///< -1 = none
    QString shownText(int row, int column) const;   ///< of a check box too: the word that find() takes

    void setTitle(const QString &name);             ///< what a screen reader calls the grid
    void setListOnly(bool on);                      ///< without filter line and group-by box
    void setMultiSelection(bool on);
    void setAllowEdit(bool on);
    /// What begins to edit a cell, beside F2: a double click, which rowActivated() is for otherwise, or a
    /// click on the row that is selected.
    enum class EditStart { DoubleClick, SecondClick, KeyOnly };
    void setEditStart(EditStart how);
    void stylesChanged();                           ///< rows wear other styles now; same values
    void setTooltips(bool on);
    void setDragOut(bool on);                       ///< rows can be dragged, if the source has data for them
    void setCardCaption(const QString &caption, int numberColumn, int nameColumn); ///< e.g. "Réteg:|/"
    void setBandCaption(const QString &caption);    ///< up to its "|" before the text of every band
    void picturesChanged();                         ///< the source has other pictures now; same values
    void setPictureSize(QSize size);                ///< of pictures in cells, device-independent pixels
    int columnWidth(int column) const;              ///< pixels; of a hidden column the one it had
    GridStyles &formatStyles();

    GridView view() const { return m_view; }
    void setView(GridView view);
    QString filterText() const;
    void setFilterText(const QString &text);
    void focusFilter();
    /// Unless a row is current, makes the first shown one so; many selected hidden rows stay.
    void goToFirst();
    void toggleBandOf(int row); ///< the outermost closed band over the row, else the innermost
    void collapseBandOf(int row); ///< the innermost open band over the row; asked again, the one over that
    bool canCollapseBandOf(int row) const { return openBandOf(row) >= 0; }
    GridState state() const;
    bool setState(const GridState &state);          ///< false = no column of it is here, nothing changed
    std::unique_ptr<SheetSource> sheet()
        const; ///< what is shown, for paper and clipboard; for as long as the grid stays
    QAbstractItemView *table() const;               ///< the table view, shown or not
    QAbstractItemView *activeView() const;

    const std::vector<GridColumn> &columns() const override;
    std::vector<int> shownColumns() const override;
    void showColumns(std::span<const int> inOrder) override;
    std::vector<SortKey> sortKeys() const override;
    void setSortKeys(std::span<const SortKey> keys) override;
    std::vector<SortKey> groupLevels() const override;
    void setGroupLevels(std::span<const SortKey> levels) override;
    void setAllExpanded(bool expanded) override;

signals:
    void currentRowMoved(int row);                  ///< by the user or setCurrentRow(), also -1
    void selectionMoved();                          ///< also when the filter hides or shows selected rows
    void rowActivated(int row);                     ///< double click on what is not edited by it
    void viewChanged(QV_DOC_CONTROLS::GridView view); ///< also once for every setState()
    void groupingChanged(bool grouped);
    void sortChanged();
    void columnsChanged();                          ///< order, width, visibility
    void filterChanged();
    void contextMenuAsked(int row, int column, QPoint global); ///< row -1 on bands, header and empty space

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void buildLayout();
    void connectViews();
    void connectTools();
    void attach(LineView &view);
    std::vector<LineView *> views() const;          ///< those made so far
    GridCards &cards();
    void relist(const std::function<void()> &change);
    void restoreRows(std::span<const qint64> selected, std::optional<qint64> current, int heirPlace);
    int heirOf(std::optional<qint64> current, int place);
    void showCurrent(int column);
    void currentChanged(const QModelIndex &now);
    void toggleBand(int band);
    int openBandOf(int row) const;
    void place(int row);
    void placePending();
    void applyFilter();
    void updateCounts();
    void columnsMoved();
    void columnsCame(int before);
    int fittingWidth(int column) const;
    int contentWidth(int column) const;
    void resetColumns();
    void sortBy(int column, bool adding);
    void seek(const QString &letter);
    void makeCurrent(int row);
    void makeCurrent(int row, QItemSelectionModel::SelectionFlags selecting);
    void dragOut();
    void arm();
    bool isEditing() const;
    void prepareNext();
    GridSource *m_source = nullptr;
    GridModel *m_model;
    GridSelection *m_selection;
    GridInput *m_input;
    FilterLine *m_filter;
    GroupBox *m_box;
    GridTable *m_table;
    QSize m_pictureSize;
    GridHeader *m_header;
    GridCards *m_cards = nullptr;                   ///< made when first asked for
    GridView m_view = GridView::Table;
    int m_current = -1;                             ///< the record last made current, even when not shown
    std::optional<qint64> m_currentAway;            ///< identifier, while the current record is no row
    std::vector<int> m_pending;                     ///< rows edited while an editor is open
    int m_hidden = 0;                               ///< selected rows that the filter hides
    EditStart m_editStart = EditStart::DoubleClick;
    bool m_allowEdit = false, m_multi = false, m_dragsOut = false, m_quiet = false;
    QString m_sought;                               ///< letters typed to search
    QElapsedTimer m_soughtAt;
    QBasicTimer m_idle; ///< gets ranks and filter ready while nothing else happens
};

} // namespace QV_DOC_CONTROLS
