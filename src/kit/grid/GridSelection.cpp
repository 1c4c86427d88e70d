#include "kit/grid/GridSelection.h"

#include "kit/grid/GridModel.h"

namespace QV_DOC_CONTROLS {
namespace {

/// Ranges of neighbouring lines, so that a large selection stays few ranges.
QItemSelection rangesOf(const std::vector<int> &lines, const QAbstractItemModel &model)
{
    QItemSelection all;
    const int last = model.columnCount() - 1;
    for (size_t i = 0; i < lines.size();) {
        size_t j = i;
        while (j + 1 < lines.size() && lines[j + 1] == lines[j] + 1) ++j;
        all.append(QItemSelectionRange(model.index(lines[i], 0), model.index(lines[j], last)));
        i = j + 1;
    }
    return all;
}

} // namespace

GridSelection::GridSelection(GridModel &model, QObject *parent)
    : QItemSelectionModel(&model, parent), m_model(model)
{
    connect(&model, &GridModel::aboutToCollapse, this, &GridSelection::keepRemoved);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { bringBack(first, last); });
}

std::vector<bool> GridSelection::marks() const
{
    const RowEngine &engine = m_model.engine();
    std::vector<bool> marked = m_away;
    marked.resize(size_t(m_model.source() ? m_model.source()->rowCount() : 0));
    for (const QItemSelectionRange &range : selection()) // selectedRows() of Qt is slow with many ranges
        for (int line = range.top(); line <= range.bottom(); ++line)
            if (const int row = engine.rowAt(line); row >= 0) marked[size_t(row)] = true;
    return marked;
}

std::vector<int> GridSelection::allRows() const
{
    std::vector<int> rows;
    const std::vector<bool> marked = marks();
    for (size_t r = 0; r < marked.size(); ++r)
        if (marked[r]) rows.push_back(int(r));
    return rows;
}

std::vector<int> GridSelection::shownRows() const
{
    std::vector<int> rows;
    const std::vector<bool> marked = marks();
    for (int row : m_model.engine().shownRows())
        if (marked[size_t(row)]) rows.push_back(row);
    return rows;
}

int GridSelection::shownCount() const
{
    const std::vector<bool> marked = marks();
    const auto &shown = m_model.engine().shownRows();
    return int(std::ranges::count_if(shown, [&](int row) { return marked[size_t(row)]; }));
}

bool GridSelection::isAnyShown() const
{
    const RowEngine &engine = m_model.engine();
    for (const QItemSelectionRange &range : selection())
        for (int line = range.top(); line <= range.bottom(); ++line)
            if (engine.rowAt(line) >= 0) return true;
    for (size_t r = 0; r < m_away.size(); ++r)
        if (m_away[r] && engine.isShown(int(r))) return true;
    return false;
}

int GridSelection::hiddenCount() const
{
    int count = int(m_awayIds.size());
    for (size_t r = 0; r < m_away.size(); ++r) count += m_away[r] && !m_model.engine().isShown(int(r));
    return count;
}

void GridSelection::setAway(int row, bool on)
{
    if (m_away.size() <= size_t(row)) m_away.resize(size_t(row) + 1);
    m_away[size_t(row)] = on;
}

void GridSelection::setRows(std::span<const int> rows, std::vector<qint64> awayIds)
{
    std::vector<int> lines, away;
    for (int row : rows) {
        const int line = m_model.engine().lineOf(row);
        if (line >= 0) lines.push_back(line);
        else away.push_back(row);
    }
    std::ranges::sort(lines);
    m_away.clear(), m_spanned.clear();
    m_awayIds = std::move(awayIds);
    for (int row : away) setAway(row, true);
    QItemSelectionModel::select(rangesOf(lines, m_model), ClearAndSelect);
}

void GridSelection::select(const QItemSelection &selection, SelectionFlags command)
{
    if (command & Clear) m_away.clear(), m_awayIds.clear();
    if (command & (Clear | Current))
        for (int row : std::exchange(m_spanned, {}))
            if (size_t(row) < m_away.size()) m_away[size_t(row)] = false;
    QItemSelectionModel::select(selection, command);
    if (!(command & Select)) return;
    const RowEngine &engine = m_model.engine();
    for (const QItemSelectionRange &range : selection) {
        if (!range.isValid()) return;           // whoever was told of it has shown other rows
        for (int line = range.top(); line <= range.bottom(); ++line) {
            const int b = engine.bandAt(line);
            if (b < 0 || engine.band(b).expanded) continue;
            const auto rows = std::span(engine.shownRows())
                                  .subspan(size_t(engine.band(b).begin), size_t(engine.band(b).count));
            m_spanned.insert(m_spanned.end(), rows.begin(), rows.end());
        }
    }
    for (int row : m_spanned) setAway(row, true);
}

/// Lines of a collapsing band go: the selected rows among them stay selected.
void GridSelection::keepRemoved(int first, int last)
{
    for (const QItemSelectionRange &range : selection())
        for (int line = std::max(first, range.top()); line <= std::min(last, range.bottom()); ++line)
            if (const int row = m_model.engine().rowAt(line); row >= 0) setAway(row, true);
}

void GridSelection::bringBack(int first, int last)
{
    std::vector<int> lines;
    for (int line = first; line <= last && !m_away.empty(); ++line) {
        const int row = m_model.engine().rowAt(line);
        if (row < 0 || size_t(row) >= m_away.size() || !m_away[size_t(row)]) continue;
        m_away[size_t(row)] = false;
        lines.push_back(line);
    }
    if (!lines.empty()) QItemSelectionModel::select(rangesOf(lines, m_model), Select);
}

} // namespace QV_DOC_CONTROLS
