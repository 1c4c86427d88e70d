#include "kit/grid/Grid.h"

#include "facade/services/InterfaceLocale.h"
#include "kit/grid/FilterLine.h"
#include "kit/grid/GridCards.h"
#include "kit/grid/GridHeader.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/GridSelection.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/GroupBox.h"

#include <QScopedValueRollback>
#include <QScrollBar>

// Current row, selection and edited rows of a grid, through every change of its lines.
namespace QV_DOC_CONTROLS {

/// Runs a change after which the model has other lines, and puts selection and current cell back.
void Grid::relist(const std::function<void()> &change)
{
    endEditing();
    QScopedValueRollback quiet(m_quiet, true);
    const std::vector<int> selected = m_selection->allRows();
    const int column = m_selection->currentIndex().column();
    const std::vector<qint64> away = m_selection->awayIds();
    change();
    m_selection->setRows(selected, away);
    showCurrent(column);
    updateCounts();
}

/// The current record's cell becomes the views' current one; in a collapsed band the band does.
void Grid::showCurrent(int column)
{
    QModelIndex at = m_model->indexOf(m_current, std::max(column, 0));
    if (!at.isValid() && m_current >= 0 && m_model->engine().isShown(m_current))
        if (const auto closed = m_model->engine().closedBandsOver(m_current); !closed.empty())
            at = m_model->index(m_model->engine().lineOfBand(closed.front()), std::max(column, 0));
    m_selection->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
    if (at.isValid()) activeView()->scrollTo(at);
}

void Grid::refill(const std::function<void()> &change)
{
    if (!m_source) return change();
    for (LineView *view : views()) view->dropEditor();
    std::vector<qint64> selected = m_selection->awayIds();
    for (int r : m_selection->allRows()) selected.push_back(m_source->rowId(r));
    const auto &shown = m_model->engine().shownRows();
    const int place = int(std::ranges::find(shown, m_current) - shown.begin());
    const auto current = m_current < 0 ? m_currentAway : std::optional(m_source->rowId(m_current));
    const int scrolled = activeView()->verticalScrollBar()->value(),
              column = m_selection->currentIndex().column();

    QScopedValueRollback quiet(m_quiet, true);
    m_pending.clear();
    const int columnsBefore = m_header->count();
    m_model->refill(change);
    if (m_header->count() != columnsBefore) columnsCame(columnsBefore);
    restoreRows(selected, current, place);
    showCurrent(column);
    activeView()->verticalScrollBar()->setValue(scrolled);
    updateCounts();
    m_idle.start(0, this);
}

void Grid::restoreRows(std::span<const qint64> selected, std::optional<qint64> current, int heirPlace)
{
    QHash<qint64, int> rowOf;
    rowOf.reserve(m_source->rowCount());
    for (int r = 0, n = m_source->rowCount(); r < n; ++r) rowOf.insert(m_source->rowId(r), r);
    std::vector<int> rows;
    std::vector<qint64> missing;
    for (qint64 id : selected)
        if (const auto found = rowOf.constFind(id); found != rowOf.constEnd()) rows.push_back(*found);
        else missing.push_back(id);
    m_current = current ? rowOf.value(*current, -1) : -1;
    if (m_current >= 0) m_currentAway.reset();
    else m_current = heirOf(current, heirPlace);
    missing = m_source->existing(std::move(missing));
    if (rows.empty() && missing.empty() && !selected.empty() && m_current >= 0) rows.push_back(m_current);
    m_selection->setRows(rows, std::move(missing));
}

/// What is current when the current record has no row: the row in its place, or, while the record exists,
/// none.
int Grid::heirOf(std::optional<qint64> current, int place)
{
    m_currentAway.reset();
    if (!current) return -1;
    if (!m_source->existing({*current}).empty()) {
        m_currentAway = current;
        return -1;
    }
    const auto &shown = m_model->engine().shownRows();
    return shown.empty() ? -1 : shown[std::min(size_t(place), shown.size() - 1)];
}

void Grid::currentChanged(const QModelIndex &now)
{
    const int row = m_model->sourceRow(now);
    if (m_quiet || row == m_current || (row < 0 && now.isValid()))
        return; // on a band the record stays current
    m_current = row;
    m_currentAway.reset();
    emit currentRowMoved(row);
}

void Grid::toggleBand(int band)
{
    QScopedValueRollback quiet(m_quiet, true);
    const int line = m_model->engine().lineOfBand(band);
    const auto inside = m_model->engine().toggled(band);
    const int current = m_selection->currentIndex().row(),
              column = std::max(0, m_selection->currentIndex().column());
    const bool goes = m_model->engine().band(band).expanded && current >= inside.first
                      && current < inside.first + inside.count;
    if (goes) m_selection->setCurrentIndex(m_model->index(line, column), QItemSelectionModel::NoUpdate);
    m_model->toggle(band);
}

void Grid::rowEdited(int row)
{
    m_model->rowEdited(row);
    place(row);
}

/// An edited row goes to its place, but not from under an open editor.
void Grid::place(int row)
{
    m_pending.push_back(row);
    if (!isEditing()) placePending();
}

bool Grid::isEditing() const { return std::ranges::any_of(views(), &LineView::isEditing); }

/// The rows are about to stand elsewhere: what was typed so far is not lost.
void Grid::endEditing()
{
    for (LineView *view : views()) view->endEditing();
    placePending();
}

void Grid::placePending()
{
    if (m_pending.empty() || isEditing()) return;
    const std::vector<int> rows = std::exchange(m_pending, {});
    const bool placed = rows.size() == 1 && m_model->placeRow(rows.front());
    if (!placed) relist([this] { m_model->rebuild(); });
    else if (rows.front() == m_current) activeView()->scrollTo(m_selection->currentIndex());
    updateCounts();
}

void Grid::updateCounts()
{
    const int hidden = m_selection->hiddenCount(), all = m_source ? m_source->rowCount() : 0;
    m_filter->setCounts(m_model->engine().shownCount(), all, hidden);
    if (std::exchange(m_hidden, hidden) == hidden || !m_source) return;
    QScopedValueRollback loud(m_quiet, false);
    emit selectionMoved();
}

void Grid::captionsChanged()
{
    relist([this] { m_model->captionsChanged(); });
    m_header->makeRoomForCaptions();
    m_filter->retranslate(interfaceLocale());
    m_box->showLevels(groupLevels(), columns());
    columnsMoved();
    if (!filterText().isEmpty()) applyFilter();
    m_idle.start(0, this);
}

int Grid::currentRow() const
{
    return m_current >= 0 && m_model->engine().isShown(m_current) ? m_current : -1;
}

void Grid::setCurrentRow(int row)
{
    if (!m_source || row < 0 || row >= m_source->rowCount()) return;
    if (!m_model->engine().isShown(row)) m_filter->clear();
    makeCurrent(row);
}

void Grid::makeCurrent(int row) { makeCurrent(row, QItemSelectionModel::ClearAndSelect); }

void Grid::makeCurrent(int row, QItemSelectionModel::SelectionFlags selecting)
{
    for (int band : m_model->engine().closedBandsOver(row)) toggleBand(band);
    const int column = std::max(0, m_selection->currentIndex().column());
    const QModelIndex at = m_model->indexOf(row, column);
    m_selection->setCurrentIndex(at, selecting | QItemSelectionModel::Rows);
    if (isVisible()) activeView()->scrollTo(at);
    else activeView()->scrollTo(at, QAbstractItemView::PositionAtCenter);
}

void Grid::goToFirst()
{
    if (currentRow() >= 0 || m_model->engine().shownCount() == 0) return;
    makeCurrent(m_model->engine().shownRows().front(), m_selection->hiddenCount() > 1
                                                           ? QItemSelectionModel::NoUpdate
                                                           : QItemSelectionModel::ClearAndSelect);
}

std::vector<int> Grid::selectedRows() const { return m_selection->shownRows(); }
int Grid::selectedCount() const { return m_selection->shownCount(); }
bool Grid::hasSelection() const { return m_selection->isAnyShown(); }
void Grid::selectRows(std::span<const int> rows)
{
    m_selection->setRows(rows);
    updateCounts();
}
bool Grid::canSelectAll() const { return m_multi && m_model->rowCount() > 0; }
void Grid::selectAll()
{
    if (m_model->rowCount() > 0) activeView()->selectAll();
}

} // namespace QV_DOC_CONTROLS
