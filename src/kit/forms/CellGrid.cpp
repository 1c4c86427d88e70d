#include "kit/forms/CellGrid.h"

#include <QHeaderView>

#include <algorithm>

namespace QV_DOC_CONTROLS {

CellGrid::CellGrid(int perLine, QWidget *parent) : QTableView(parent), m_perLine(perLine)
{
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setShowGrid(false);
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setSectionsClickable(false);
        header->setHighlightSections(true);
        header->setDefaultAlignment(Qt::AlignCenter);
    }
}

int CellGrid::cellAt(const QModelIndex &index) const
{
    return index.isValid() ? index.row() * m_perLine + index.column() : -1;
}

QModelIndex CellGrid::indexOf(int cell) const
{
    const bool inside = cell >= 0 && cell < cellCount();
    return inside ? model()->index(cell / m_perLine, cell % m_perLine) : QModelIndex();
}

void CellGrid::setCurrent(int cell)
{
    if (cell == current()) return;
    const QModelIndex to = indexOf(cell);
    setCurrentIndex(to);
    if (!to.isValid()) clearSelection();
}

int CellGrid::linesPerPage() const
{
    return std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
}

int CellGrid::cellAfter(CursorAction action, bool whole) const
{
    const int at = current(), last = cellCount() - 1, begin = at - at % m_perLine;
    const auto up = [&](int lines) { return at - std::min(lines, at / m_perLine) * m_perLine; };
    const auto down = [&](int lines) { return at + std::min(lines, (last - at) / m_perLine) * m_perLine; };
    switch (action) {
    case MoveLeft:
    case MovePrevious: return at - 1;
    case MoveRight:
    case MoveNext: return at + 1;
    case MoveUp: return up(1);
    case MoveDown: return down(1);
    case MoveHome: return whole ? 0 : begin;
    case MoveEnd: return whole ? last : begin + m_perLine - 1;
    case MovePageUp: return up(linesPerPage());
    case MovePageDown: return down(linesPerPage());
    }
    return at;
}

QModelIndex CellGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers keys)
{
    if (current() < 0) return indexOf(0);
    return indexOf(std::clamp(cellAfter(action, keys & Qt::ControlModifier), 0, cellCount() - 1));
}

void CellGrid::currentChanged(const QModelIndex &now, const QModelIndex &before)
{
    QTableView::currentChanged(now, before);
    emit currentMoved(cellAt(now));
}

/// Without a current cell none is chosen by merely coming here.
void CellGrid::focusInEvent(QFocusEvent *event)
{
    if (current() >= 0) return QTableView::focusInEvent(event);
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

} // namespace QV_DOC_CONTROLS
