#include "kit/grid/GridTable.h"

#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace QV_DOC_CONTROLS {

GridTable::GridTable(GridModel &model, GridDelegate &delegate, QWidget *parent)
    : QTreeView(parent), m_model(model), m_delegate(delegate)
{
    setModel(&model);
    setItemDelegate(&delegate);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setAcceptDrops(true);
    setTabKeyNavigation(false);
}

void GridTable::setDropLine(int line)
{
    if (std::exchange(m_dropLine, line) != line) viewport()->update();
}

QRect GridTable::visualRect(const QModelIndex &index) const
{
    QRect rect = QTreeView::visualRect(index);
    if (m_model.bandOf(index) >= 0 && !rect.isNull()) rect.setLeft(0), rect.setWidth(viewport()->width());
    return rect;
}

void GridTable::selectAll()
{
    const int lines = m_model.rowCount();
    if (selectionMode() != ExtendedSelection || lines == 0) return;
    const QItemSelection all(m_model.index(0, 0), m_model.index(lines - 1, m_model.columnCount() - 1));
    selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

void GridTable::drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                        const QModelIndex &index) const
{
    QStyleOptionViewItem cell = options;
    const int current = currentIndex().row() == index.row() && hasFocus() ? currentIndex().column() : -1;
    if (const int band = m_model.bandOf(index); band >= 0) {
        cell.rect.setLeft(0), cell.rect.setWidth(viewport()->width());
        cell.state.setFlag(QStyle::State_HasFocus, current >= 0);
        return m_delegate.paintBand(painter, cell, band);
    }
    cell.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    const QColor line = palette().color(QPalette::Midlight);
    for (int visual = 0; visual < header()->count(); ++visual) {
        const int c = header()->logicalIndex(visual);
        const int left = header()->sectionViewportPosition(c), width = header()->sectionSize(c);
        if (header()->isSectionHidden(c) || left + width < 0 || left > viewport()->width()) continue;
        cell.rect = QRect(left, options.rect.top(), width - 1, options.rect.height() - 1);
        cell.state.setFlag(QStyle::State_HasFocus, c == current);
        m_delegate.paint(painter, cell, index.siblingAtColumn(c));
        painter->fillRect(left + width - 1, options.rect.top(), 1, options.rect.height(), line);
    }
    const int end = std::min(viewport()->width(), header()->length() - header()->offset());
    painter->fillRect(0, options.rect.bottom(), end, 1, line);
}

void GridTable::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_dropLine < 0) return;
    QRect row = visualRect(m_model.index(m_dropLine, 0));
    row.setLeft(0), row.setWidth(viewport()->width());
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(row.adjusted(1, 1, -1, -1));
}

/// Left and Right go from cell to cell, in the order of the header; a cell is what F2 and Space act on.
QModelIndex GridTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex now = currentIndex();
    if (!now.isValid() || (action != MoveLeft && action != MoveRight))
        return QTreeView::moveCursor(action, modifiers);
    const int step = (action == MoveRight) == (layoutDirection() == Qt::LeftToRight) ? 1 : -1;
    for (int visual = header()->visualIndex(now.column()) + step; visual >= 0 && visual < header()->count();
         visual += step)
        if (const int c = header()->logicalIndex(visual); !header()->isSectionHidden(c))
            return now.siblingAtColumn(c);
    return now;
}

/// Going to a band leaves the selection alone; only Shift goes on across it.
QItemSelectionModel::SelectionFlags GridTable::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const
{
    const bool shift = QApplication::keyboardModifiers() & Qt::ShiftModifier
                       || (event && event->isInputEvent()
                           && static_cast<const QInputEvent *>(event)->modifiers() & Qt::ShiftModifier);
    if (!shift && m_model.bandOf(index) >= 0) return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

} // namespace QV_DOC_CONTROLS
