#pragma once

#include <QTreeView>

#include <functional>

namespace QV_DOC_CONTROLS {

class GridDelegate;
class GridModel;

/// What a view hands on to its grid.
struct ViewCalls {
    std::function<void()> dragOut;              ///< the selected rows
    std::function<void(const QString &)> typed; ///< a letter to look for
};

/// The table view: cells under a header, bands over the full width.
class GridTable final : public QTreeView {
    Q_OBJECT
public:
    GridTable(GridModel &model, GridDelegate &delegate, QWidget *parent);
    void setCalls(ViewCalls calls) { m_calls = std::move(calls); }
    void setDropLine(int line);                 ///< framed while something is dragged over it; -1 = none
    bool isEditing() const { return state() == EditingState; }
    QRect visualRect(const QModelIndex &index) const override;  ///< of a band: the full width
    void selectAll() override;                  ///< as one range
    void keyboardSearch(const QString &search) override { m_calls.typed(search); }

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                 const QModelIndex &index) const override;
    void paintEvent(QPaintEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void startDrag(Qt::DropActions) override { m_calls.dragOut(); }

private:
    GridModel &m_model;
    GridDelegate &m_delegate;
    ViewCalls m_calls;
    int m_dropLine = -1;
};

} // namespace QV_DOC_CONTROLS
