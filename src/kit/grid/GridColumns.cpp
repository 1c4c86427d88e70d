#include "kit/grid/Grid.h"

#include "kit/forms/Twips.h"
#include "kit/grid/FilterLine.h"
#include "kit/grid/GridCards.h"
#include "kit/grid/GridHeader.h"
#include "kit/grid/GridInput.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/GridSelection.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/GroupBox.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStringMatcher>
#include <QStyleHints>
#include <QVBoxLayout>

// Columns, order, views and searching of a grid: what the view tools and the layout file change.
namespace QV_DOC_CONTROLS {
namespace {

constexpr int kRowsMeasured = 200; ///< rows that a column's first width is taken from

int columnWithKey(const std::vector<GridColumn> &columns, const QString &key)
{
    const auto found = std::ranges::find(columns, key, &GridColumn::key);
    return found == columns.end() ? -1 : int(found - columns.begin());
}

std::vector<SortKey> keysOf(const std::vector<GridState::Level> &levels,
                            const std::vector<GridColumn> &columns)
{
    std::vector<SortKey> keys;
    for (const GridState::Level &level : levels)
        if (const int c = columnWithKey(columns, level.key); c >= 0)
            keys.push_back({c, level.descending ? SortOrder::Descending : SortOrder::Ascending});
    return keys;
}

std::vector<GridState::Level> levelsOf(const std::vector<SortKey> &keys,
                                       const std::vector<GridColumn> &columns)
{
    std::vector<GridState::Level> levels;
    for (const SortKey &key : keys)
        levels.push_back({columns[size_t(key.column)].key, key.order == SortOrder::Descending});
    return levels;
}

} // namespace

const std::vector<GridColumn> &Grid::columns() const
{
    static const std::vector<GridColumn> none;
    return m_source ? m_source->columns() : none;
}

void Grid::resetColumns()
{
    for (int c = 0; c < m_header->count(); ++c) {
        m_header->setShown(c, true);
        m_header->moveSection(m_header->visualIndex(c), c);
        m_header->resizeSection(c, fittingWidth(c));
    }
}

int Grid::fittingWidth(int c) const
{
    if (m_header->stretchLastSection() && c == m_header->count() - 1) return m_header->sectionSize(c);
    const GridColumn &column = columns()[size_t(c)];
    return column.width > 0 ? pixelsOf(column.width, *this) : contentWidth(c);
}

/// As wide as the caption and the first rows.
int Grid::contentWidth(int c) const
{
    const GridColumn &column = columns()[size_t(c)];
    const QFontMetrics letters(m_table->font());
    int width = m_header->sectionSizeHint(c);
    if (column.kind == CellKind::Check) return width;
    const int room = letters.horizontalAdvance(QStringLiteral("mm"));
    qsizetype longest = 0;
    for (int r = 0; r < std::min(m_source->rowCount(), kRowsMeasured); ++r) {
        const QString text = m_source->text(r, c);
        if (text.size() <= longest) continue;           // measuring is dear; the room takes wider letters
        longest = text.size();
        width = std::max(width, letters.horizontalAdvance(text) + room);
    }
    return width;
}

std::vector<int> Grid::shownColumns() const
{
    std::vector<int> shown;
    for (int visual = 0; visual < m_header->count(); ++visual)
        if (const int c = m_header->logicalIndex(visual); !m_header->isSectionHidden(c)) shown.push_back(c);
    return shown;
}

void Grid::showColumns(std::span<const int> inOrder)
{
    endEditing();
    {
        QScopedValueRollback quiet(m_quiet, true);
        for (int c = 0; c < m_header->count(); ++c)
            m_header->setShown(c, std::ranges::find(inOrder, c) != inOrder.end());
        for (int i = 0; i < int(inOrder.size()); ++i)
            m_header->moveSection(m_header->visualIndex(inOrder[size_t(i)]), i);
    }
    columnsMoved();
}

/// A refill brought columns behind those before, or took the last ones away.
void Grid::columnsCame(int before)
{
    for (int c = before; c < m_header->count(); ++c) m_header->resizeSection(c, fittingWidth(c));
    m_header->setSortKeys(sortKeys());
    m_box->showLevels(groupLevels(), columns());
    columnsMoved();
}

/// Who else depends on which columns are shown: the filter looks in them, cards list them.
void Grid::columnsMoved()
{
    const std::vector<int> shown = shownColumns();
    m_model->searchColumns(shown);
    const QModelIndex now = m_selection->currentIndex();
    if (now.isValid() && !shown.empty() && std::ranges::find(shown, now.column()) == shown.end())
        m_selection->setCurrentIndex(now.siblingAtColumn(shown.front()), QItemSelectionModel::NoUpdate);
    if (m_cards) m_cards->setColumns(shown, m_view == GridView::CardMin);
    if (!m_quiet && !filterText().isEmpty()) applyFilter();
    m_table->viewport()->update();
    if (!m_quiet) emit columnsChanged();
}

std::vector<SortKey> Grid::sortKeys() const { return m_model->engine().sortKeys(); }
std::vector<SortKey> Grid::groupLevels() const { return m_model->engine().groupLevels(); }

void Grid::setSortKeys(std::span<const SortKey> keys)
{
    const std::vector<SortKey> wanted(keys.begin(), keys.end());
    relist([&] { m_model->setKeys(groupLevels(), wanted); });
    m_header->setSortKeys(sortKeys());
    emit sortChanged();
}

void Grid::setGroupLevels(std::span<const SortKey> levels)
{
    const std::vector<SortKey> wanted(levels.begin(), levels.end());
    relist([&] { m_model->setKeys(wanted, sortKeys()); });
    m_box->showLevels(groupLevels(), columns());
    emit groupingChanged(!groupLevels().empty());
}

void Grid::setAllExpanded(bool expanded)
{
    relist([&] { m_model->setAllExpanded(expanded); });
}

/// A click sorts by that column, a second one the other way round; `adding` leaves the other keys.
void Grid::sortBy(int column, bool adding)
{
    std::vector<SortKey> keys = sortKeys();
    const auto known = std::ranges::find(keys, column, &SortKey::column);
    SortKey key{column, SortOrder::Ascending};
    if (known != keys.end() && (adding || keys.size() == 1))
        key.order = known->order == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
    if (!adding) keys = {key};
    else if (known != keys.end()) *known = key;
    else if (keys.size() < size_t(kMaxLevels)) keys.push_back(key);
    setSortKeys(keys);
}

void Grid::toggleBandOf(int row)
{
    endEditing();
    const std::vector<int> closed = m_model->engine().closedBandsOver(row),
                           over = m_model->engine().bandsOver(row);
    if (!over.empty()) toggleBand(closed.empty() ? over.back() : closed.front());
}

/// The innermost open band over the row that shows; -1 = none.
int Grid::openBandOf(int row) const
{
    if (!m_source || row < 0) return -1;
    const std::vector<int> over = m_model->engine().bandsOver(row),
                           closed = m_model->engine().closedBandsOver(row);
    const auto end = closed.empty() ? over.end() : std::ranges::find(over, closed.front());
    return end == over.begin() ? -1 : *std::prev(end);
}

void Grid::collapseBandOf(int row)
{
    endEditing();
    if (const int band = openBandOf(row); band >= 0) toggleBand(band);
}

QString Grid::filterText() const { return m_filter->text(); }
void Grid::setFilterText(const QString &text) { m_filter->edit()->setText(text); }

void Grid::focusFilter()
{
    if (!m_filter->isVisible()) return;
    m_filter->edit()->setFocus(Qt::ShortcutFocusReason);
    m_filter->edit()->selectAll();
}

void Grid::applyFilter()
{
    std::vector<QString> captions;
    for (int c : shownColumns()) captions.push_back(columns()[size_t(c)].caption);
    const FilterRule rule(m_filter->text(), captions);
    relist([&] { m_model->setFilter(rule); });
    emit filterChanged();
}

bool Grid::find(int column, const QString &text)
{
    const auto &rows = m_model->engine().shownRows();
    if (!m_source || text.isEmpty() || column < 0 || column >= int(columns().size())) return false;
    const QStringMatcher matcher(text, Qt::CaseInsensitive);
    const size_t here = size_t(std::ranges::find(rows, m_current) - rows.begin());
    int beginning = -1, part = -1;
    for (size_t i = 1; i <= rows.size(); ++i) {
        const int row = rows[(here + i) % rows.size()];
        const QString shown = m_model->cellText(row, column);
        const qsizetype at = matcher.indexIn(shown);
        if (at == 0 && shown.size() == text.size()) return makeCurrent(row), true;
        if (at == 0 && beginning < 0) beginning = row;
        if (at > 0 && part < 0) part = row;
    }
    const int found = beginning >= 0 ? beginning : part;
    if (found >= 0) makeCurrent(found);
    return found >= 0;
}

/// Letters typed in the grid look for the beginning of a text: in the column sorted by, or the first one of
/// texts.
void Grid::seek(const QString &letter)
{
    const bool goesOn =
        m_soughtAt.isValid() && m_soughtAt.elapsed() < QGuiApplication::styleHints()->keyboardInputInterval();
    m_sought = goesOn ? m_sought + letter : letter;
    m_soughtAt.start();
    const std::vector<int> shown = shownColumns();
    const auto texts =
        std::ranges::find_if(shown, [&](int c) { return columns()[size_t(c)].kind == CellKind::Text; });
    const int column = !sortKeys().empty() ? sortKeys().front().column : texts != shown.end() ? *texts : -1;
    const RowEngine &engine = m_model->engine();
    const int here = std::max(0, m_selection->currentIndex().row()), lines = engine.lines();
    for (int i = goesOn ? 0 : 1; column >= 0 && lines > 0 && i <= lines; ++i) {
        const int row = engine.rowAt((here + i) % lines);
        if (row >= 0 && m_model->cellText(row, column).startsWith(m_sought, Qt::CaseInsensitive))
            return makeCurrent(row);
    }
}

GridCards &Grid::cards()
{
    if (m_cards) return *m_cards;
    m_cards = new GridCards(*m_model, this);
    m_cards->setPictureSize(m_pictureSize);
    m_cards->setAccessibleName(accessibleName());
    layout()->addWidget(m_cards);
    static_cast<QVBoxLayout *>(layout())->setStretchFactor(m_cards, 1);
    attach(*m_cards);
    arm();
    return *m_cards;
}

QAbstractItemView *Grid::activeView() const
{
    if (m_view == GridView::Table || !m_cards) return m_table;
    return m_cards;
}

void Grid::setView(GridView view)
{
    if (view == m_view) return;
    endEditing();
    const bool focused = activeView()->hasFocus();
    m_view = view;
    if (view != GridView::Table) cards().setColumns(shownColumns(), view == GridView::CardMin);
    m_table->setVisible(view == GridView::Table);
    if (m_cards) m_cards->setVisible(view != GridView::Table);
    setFocusProxy(activeView());
    if (focused) activeView()->setFocus();
    if (m_selection->currentIndex().isValid()) activeView()->scrollTo(m_selection->currentIndex());
    emit viewChanged(view);
}

GridState Grid::state() const
{
    GridState state;
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const int c = m_header->logicalIndex(visual);
        state.columns.push_back(
            {columns()[size_t(c)].key, twipsOf(m_header->widthOf(c), *this), !m_header->isSectionHidden(c)});
    }
    state.sort = levelsOf(sortKeys(), columns());
    state.groups = levelsOf(groupLevels(), columns());
    state.view = qint16(m_view);
    return state;
}

bool Grid::setState(const GridState &state)
{
    std::vector<int> shown, hidden;
    for (const GridState::Column &column : state.columns)
        if (const int c = columnWithKey(columns(), column.key); c >= 0)
            (column.visible ? shown : hidden).push_back(c);
    if (shown.empty() && hidden.empty()) return false;
    for (int c = 0; c < m_header->count();
         ++c) // columns that the state does not know stay, behind the others
        if (std::ranges::find(shown, c) == shown.end() && std::ranges::find(hidden, c) == hidden.end())
            shown.push_back(c);
    {
        QScopedValueRollback quiet(m_quiet, true);
        for (const GridState::Column &column : state.columns)
            if (const int c = columnWithKey(columns(), column.key); c >= 0)
                m_header->setWidth(c, column.width > 0 ? pixelsOf(column.width, *this) : fittingWidth(c));
    }
    showColumns(shown);
    const auto groups = keysOf(state.groups, columns()), sorts = keysOf(state.sort, columns());
    if (groups != groupLevels()) setGroupLevels(groups);
    if (sorts != sortKeys()) setSortKeys(sorts);
    const bool known = state.view >= 0 && state.view <= qint16(GridView::CardMin);
    const GridView view = known ? GridView(state.view) : GridView::Table;
    if (view == m_view) emit viewChanged(view);
    else setView(view);
    return true;
}

} // namespace QV_DOC_CONTROLS
