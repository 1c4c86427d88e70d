#pragma once

#include "kit/ask/ErrorRelay.h"
#include "kit/grid/AbstractGrid.h"

#include <QAbstractTableModel>
#include <QStackedWidget>

#include <vector>

class QAbstractItemView;
class QTreeView;

namespace QV_DOC_CONTROLS {

/// The items of a manager's list as that lists them.
class ItemModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;
    virtual qint16 idAt(int row) const = 0;
    virtual int rowOf(qint16 id) const = 0;                   ///< -1 = not listed
    virtual const std::vector<GridColumn> &columns() const = 0;
    virtual const std::vector<SortKey> &sortKeys() const = 0;
    virtual void setSortKeys(std::vector<SortKey> keys) = 0;  ///< inside ItemList::rearrange()
    virtual void setPictureColumn(int column) = 0;            ///< of the view that is shown
signals:
    void picturesDrawn(); ///< some that were asked for
};

/// A list view of four looks over one model and one selection: a table with a header, large icons, small
/// icons, and a list in columns. Nothing is kept for an item; what is not seen is not asked for.
class ItemList final : public QStackedWidget, public SortableRows {
    Q_OBJECT
public:
    enum class View { Icons, SmallIcons, List, Report }; ///< numbers as they are stored
    ItemList(ErrorRelay &relay, QWidget *parent);

    void setModel(ItemModel &model, int nameColumn); ///< outlives the list; the other views show that column
    View view() const { return m_view; }
    void setView(View view);
    void setCell(int side);     ///< room for a picture, pixels
    void makeRoomForCaptions(); ///< widens columns that are too narrow for theirs
    void setDragOut(bool on);

    bool hasSelection() const;
    std::vector<int> selectedRows() const; ///< in list order
    int currentRow() const;                ///< of the selected ones; -1 = none
    void setCurrentRow(int row);           ///< and selects it alone; -1 = nothing
    /// Lets `arrange` list other items or the same ones in another order. What was selected and is still
    /// listed stays selected, and the current item stays current.
    void rearrange(const std::function<void()> &arrange);

    const std::vector<GridColumn> &columns() const override { return m_model->columns(); }
    std::vector<SortKey> sortKeys() const override { return m_model->sortKeys(); }
    void setSortKeys(std::span<const SortKey> keys) override;

    QTreeView *report() const { return m_report; }
    QAbstractItemView *shown() const;

signals:
    void chosen();                  ///< a double click or Enter on the current item
    void selectionMoved();          ///< or the current item
    void menuWanted(QPoint where);  ///< by mouse or key, on the screen
    void headerHovered(int column); ///< -1 = none any more

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class IconView;
    class ReportView;
    void connectView(QAbstractItemView &view);
    void placeIcons();
    void sortBy(int column);
    void select(const std::vector<qint16> &ids, qint16 current);
    ErrorRelay &m_relay;
    QTreeView *m_report;
    IconView *m_icons;
    ItemModel *m_model = nullptr;
    int m_nameColumn = 0, m_cell = 32;
    View m_view = View::Report;
};

} // namespace QV_DOC_CONTROLS
