#pragma once

#include <QAbstractItemView>

#include <functional>

class QHeaderView;

namespace QV_DOC_CONTROLS {

class GridDelegate;
class GridModel;

/// What a view hands on to its grid.
struct ViewCalls {
    std::function<void()> dragOut;              ///< the selected rows
    std::function<void(const QString &)> typed; ///< a letter to look for
};

/// What the table and the cards have in common: lines of a GridModel, painted and edited by a delegate. Where
/// a line stands is reckoned when it is asked for, so that other lines cost no layout.
class LineView : public QAbstractItemView {
    Q_OBJECT
public:
    void setCalls(ViewCalls calls) { m_calls = std::move(calls); }
    /// The line is framed (-1 = none) while something is dragged over it; near an edge the lines go on under
    /// what is dragged, until `over` is null.
    void setDropLine(int line, QDragMoveEvent *over);
    using QAbstractItemView::edit;
    bool isEditing() const { return state() == EditingState; }
    void endEditing();                          ///< writes what an open editor holds and closes it
    void dropEditor();                          ///< closes it; what it holds is lost
    void setPictureSize(QSize size);            ///< of pictures in cells, device-independent pixels
    bool isOnBandMark(const QModelIndex &index, QPoint at) const;   ///< where a click toggles the band
    bool isOnCheckMark(const QModelIndex &index, QPoint at) const;
    virtual QRect lineRect(int line) const = 0; ///< on the viewport; of a card, or the full width
    virtual QHeaderView *columnHeader() const { return nullptr; }   ///< null = the lines have none
    void selectAll() override;                  ///< as one range
    void keyboardSearch(const QString &search) override { m_calls.typed(search); }

protected:
    LineView(GridModel &model, QWidget *parent);
    virtual void linesChanged(int first) = 0;   ///< from there on they are others
    QStyleOptionViewItem cellOption(const QModelIndex &index = {}) const;   ///< and where the cell stands
    void paintDropLine(QPainter &painter) const;

    void dataChanged(const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) override;
    void currentChanged(const QModelIndex &now, const QModelIndex &before) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void scrollContentsBy(int dx, int dy) override;             ///< pixels
    void startDrag(Qt::DropActions) override { m_calls.dragOut(); }

    GridModel &m_model;
    GridDelegate &m_delegate;                   ///< its own: an editor must belong to one view only

private:
    QWidget *openEditor() const;                ///< null = none
    ViewCalls m_calls;
    int m_dropLine = -1;
};

} // namespace QV_DOC_CONTROLS
