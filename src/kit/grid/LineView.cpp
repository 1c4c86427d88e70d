#include "kit/grid/LineView.h"

#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/LineAccessible.h"

#include <QApplication>
#include <QComboBox>
#include <QInputEvent>
#include <QPainter>

namespace QV_DOC_CONTROLS {

LineView::LineView(GridModel &model, QWidget *parent)
    : QAbstractItemView(parent), m_model(model), m_delegate(*new GridDelegate(model, this))
{
    LineAccessible::install();
    setItemDelegate(&m_delegate);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAcceptDrops(true);
    setTabKeyNavigation(false);
    const auto heard = [this](const QModelIndex &, int first) { linesChanged(first); };
    connect(&model, &QAbstractItemModel::rowsInserted, this, heard);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, heard);
    connect(&model, &QAbstractItemModel::rowsMoved, this,
            [this](const QModelIndex &, int from, int, const QModelIndex &, int to) {
                linesChanged(std::min(from, to));
            });
    setModel(&model);
}

QStyleOptionViewItem LineView::cellOption(const QModelIndex &index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    if (index.isValid()) option.rect = visualRect(index);
    return option;
}

void LineView::setPictureSize(QSize size)
{
    m_delegate.setPictureSize(size);
    doItemsLayout();
}

bool LineView::isOnBandMark(const QModelIndex &index, QPoint at) const
{
    const int band = m_model.bandOf(index);
    return band >= 0 && m_delegate.bandMark(cellOption(index), band).contains(at);
}

bool LineView::isOnCheckMark(const QModelIndex &index, QPoint at) const
{
    return index.flags() & Qt::ItemIsUserCheckable && GridDelegate::checkMark(cellOption(index)).contains(at);
}

void LineView::endEditing()
{
    QWidget *const editor = openEditor();
    if (!editor) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void LineView::dropEditor()
{
    QWidget *const editor = openEditor();
    if (!editor) return;
    if (auto *const list = qobject_cast<QComboBox *>(editor)) list->hidePopup();
    closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

QWidget *LineView::openEditor() const { return isEditing() ? indexWidget(currentIndex()) : nullptr; }

void LineView::setDropLine(int line, QDragMoveEvent *over)
{
    if (std::exchange(m_dropLine, line) != line) viewport()->update();
    if (over) QAbstractItemView::dragMoveEvent(over);
    else stopAutoScroll();
}

void LineView::paintDropLine(QPainter &painter) const
{
    if (m_dropLine < 0) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(lineRect(m_dropLine).adjusted(1, 1, -1, -1));
}

void LineView::selectAll()
{
    const int lines = m_model.rowCount();
    if (selectionMode() != ExtendedSelection || lines == 0) return;
    const QItemSelection all(m_model.index(0, 0), m_model.index(lines - 1, m_model.columnCount() - 1));
    selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

/// Of one line only that line is painted anew, where Qt would paint everything.
void LineView::dataChanged(const QModelIndex &from, const QModelIndex &to, const QList<int> &roles)
{
    if (from.row() != to.row()) return QAbstractItemView::dataChanged(from, to, roles);
    for (int c = from.column(); c <= to.column(); ++c) {
        const QModelIndex cell = from.siblingAtColumn(c);
        QAbstractItemView::dataChanged(cell, cell, roles);
    }
    viewport()->update(lineRect(from.row()));
}

void LineView::currentChanged(const QModelIndex &now, const QModelIndex &before)
{
    QAbstractItemView::currentChanged(now, before);
    for (const QModelIndex &index : {now, before})
        if (index.isValid()) viewport()->update(lineRect(index.row()));
    if (hasFocus()) LineAccessible::tell(*this, QAccessible::Focus, now);
}

void LineView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QAbstractItemView::selectionChanged(selected, deselected);
    if (!selected.isEmpty()) LineAccessible::tell(*this, QAccessible::Selection, selected.first().topLeft());
    if (!deselected.isEmpty())
        LineAccessible::tell(*this, QAccessible::SelectionRemove, deselected.first().topLeft());
}

/// Going to a band leaves the selection alone; only Shift goes on across it.
QItemSelectionModel::SelectionFlags LineView::selectionCommand(const QModelIndex &index,
                                                               const QEvent *event) const
{
    const bool shift = QApplication::keyboardModifiers() & Qt::ShiftModifier
                       || (event && event->isInputEvent()
                           && static_cast<const QInputEvent *>(event)->modifiers() & Qt::ShiftModifier);
    if (!shift && m_model.bandOf(index) >= 0) return QItemSelectionModel::NoUpdate;
    return QAbstractItemView::selectionCommand(index, event);
}

/// A click on one of several selected rows selects that row alone, as everywhere; the next one edits it, a
/// little later, for it may become a double click. Who presses F2 meanwhile waits for nothing.
bool LineView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == EditKeyPressed) QAbstractItemView::edit(index, CurrentChanged, nullptr);
    const QItemSelection &selection = selectionModel()->selection();
    const bool isOne = selection.size() == 1 && selection.first().height() == 1;
    if (trigger == SelectedClicked && !isOne && !(index.flags() & Qt::ItemIsUserCheckable)) return false;
    return QAbstractItemView::edit(index, trigger, event);
}

/// The keyboard is back on the lines also where a message, a refusal for one, stands before the window.
void LineView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QWidget *const focus = window()->focusWidget();
    const bool hadFocus = focus && (focus == editor || editor->isAncestorOf(focus));
    QAbstractItemView::closeEditor(editor, hint);
    if (hadFocus && !openEditor()) setFocus();
}

void LineView::scrollContentsBy(int dx, int dy)
{
    scrollDirtyRegion(dx, dy);
    viewport()->scroll(dx, dy);                 // and the open editor with it
}

} // namespace QV_DOC_CONTROLS
