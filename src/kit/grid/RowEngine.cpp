#include "kit/grid/RowEngine.h"

#include <algorithm>
#include <numeric>

namespace QV_DOC_CONTROLS {
namespace {

int firstDifference(const std::vector<const ColumnRanks *> &columns, int a, int b)
{
    int level = 0;
    while (level < int(columns.size()) && columns[size_t(level)]->of(a) == columns[size_t(level)]->of(b))
        ++level;
    return level;
}

} // namespace

void RowEngine::setLocale(const QLocale &locale)
{
    m_collator = QCollator(locale);
    m_collator.setNumericMode(true);
    m_ranks.clear();
}

void RowEngine::restart()
{
    setAllExpanded(true);
    refill({}, {}, {});
}

void RowEngine::refill(std::vector<bool> fitting, std::vector<SortKey> groups, std::vector<SortKey> sorts)
{
    m_groups = std::move(groups), m_sorts = std::move(sorts);
    m_ranks.clear();
    m_fits = std::move(fitting);
    rebuild();
}

void RowEngine::setKeys(std::span<const SortKey> groups, std::span<const SortKey> sorts)
{
    const auto levels = [](std::span<const SortKey> keys) {
        return keys.first(std::min(keys.size(), size_t(kMaxLevels)));
    };
    const auto g = levels(groups), s = levels(sorts);
    m_groups.assign(g.begin(), g.end());
    m_sorts.assign(s.begin(), s.end());
    rebuild();
}

void RowEngine::setFitting(std::vector<bool> rows)
{
    m_fits = std::move(rows);
    m_shown.clear();
    findBands();
    listLines();
}

ColumnRanks &RowEngine::ranks(int column)
{
    const auto found = m_ranks.try_emplace(column, *m_cells, column, m_collator).first;
    found->second.finish();
    return found->second;
}

bool RowEngine::prepare(int column)
{
    return m_ranks.try_emplace(column, *m_cells, column, m_collator).first->second.buildOn();
}

/// A counting sort for each key, the least one first: stable, so rows of equal keys stay in the source's
/// order.
void RowEngine::sortRows()
{
    m_order.resize(size_t(m_cells->cellRows()));
    std::iota(m_order.begin(), m_order.end(), 0);
    std::vector<SortKey> keys = m_groups;
    keys.insert(keys.end(), m_sorts.begin(), m_sorts.end());
    std::vector<qint32> next(m_order.size()), starts;
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        const ColumnRanks &rank = ranks(key->column);
        const int last = rank.count() - 1, sign = int(key->order), origin = sign > 0 ? 0 : last;
        starts.assign(size_t(rank.count()) + 1, 0);
        for (qint32 row : m_order) ++starts[size_t(origin + sign * rank.of(row)) + 1];
        std::partial_sum(starts.begin(), starts.end(), starts.begin());
        for (qint32 row : m_order) next[size_t(starts[size_t(origin + sign * rank.of(row))]++)] = row;
        m_order.swap(next);
    }
}

bool RowEngine::before(int a, int b)
{
    for (const auto *keys : {&m_groups, &m_sorts})
        for (const SortKey &key : *keys) {
            const ColumnRanks &rank = ranks(key.column);
            if (const int d = rank.of(a) - rank.of(b)) return (d < 0) == (key.order == SortOrder::Ascending);
        }
    return a < b;
}

void RowEngine::rebuild()
{
    sortRows();
    m_shown.clear();
    findBands();
    listLines();
    m_stale = false;
}

void RowEngine::rowEdited(int row, bool fits)
{
    for (auto rank = m_ranks.begin(); rank != m_ranks.end();) {
        if (!rank->second.isReady()) { rank = m_ranks.erase(rank); continue; }
        const bool changed = rank->second.rowEdited(row);
        m_stale |= changed && std::ranges::find(m_groups, rank->first, &SortKey::column) != m_groups.end();
        ++rank;
    }
    if (m_fits.empty() || m_fits[size_t(row)] == fits) return;
    m_fits[size_t(row)] = fits;
    m_stale = true;
}

bool RowEngine::isInPlace(int row)
{
    const auto at = std::ranges::find(m_order, row);
    return (at == m_order.begin() || before(at[-1], row)) && (at + 1 == m_order.end() || before(row, at[1]));
}

/// Where the row belongs in `rows`, which are in order but for the row itself, at `at`; counted without it.
int RowEngine::placeIn(const std::vector<qint32> &rows, int row, int at)
{
    int low = 0, high = int(rows.size()) - 1;
    while (low < high) {
        const int mid = (low + high) / 2;
        if (before(rows[size_t(mid < at ? mid : mid + 1)], row)) low = mid + 1;
        else high = mid;
    }
    return low;
}

std::optional<RowEngine::Move> RowEngine::targetOf(int row)
{
    if (m_stale) return std::nullopt;
    const int from = lineOf(row);
    if (isInPlace(row)) return Move{from, from};
    if (!m_groups.empty() || from < 0) return std::nullopt;
    return Move{from, placeIn(m_lines, row, from)};
}

void RowEngine::place(int row, const Move &move)
{
    const auto moved = [row](std::vector<qint32> &rows, int from, int to) {
        rows.erase(rows.begin() + from);
        rows.insert(rows.begin() + to, row);
    };
    const int at = int(std::ranges::find(m_order, row) - m_order.begin());
    moved(m_order, at, placeIn(m_order, row, at));
    if (move.from == move.to) return;                   // among the shown ones it stays
    moved(m_shown, move.from, move.to);
    moved(m_lines, move.from, move.to);
    m_lineOf.clear();
}

void RowEngine::openBands(int fromLevel, int at, std::vector<int> &open)
{
    open.resize(size_t(fromLevel));
    for (int level = fromLevel; level < int(m_groups.size()); ++level) {
        m_bands.push_back({level, level ? open.back() : -1, at, 0, m_expandedByDefault});
        open.push_back(int(m_bands.size()) - 1);
    }
}

/// Shown rows in order and the bands over them.
void RowEngine::findBands()
{
    m_bands.clear();
    std::vector<int> open;
    std::vector<const ColumnRanks *> columns;
    for (const SortKey &key : m_groups) columns.push_back(&ranks(key.column));
    const int levels = int(columns.size());
    for (qint32 row : m_order) {
        if (!isShown(row)) continue;
        const int level = m_shown.empty() ? 0 : firstDifference(columns, m_shown.back(), row);
        if (level < levels) openBands(level, int(m_shown.size()), open);
        for (int b : open) ++m_bands[size_t(b)].count;
        m_shown.push_back(row);
    }
    if (m_flipped.isEmpty()) return;
    for (int b = 0; b < bandCount(); ++b)
        if (m_flipped.contains(pathOf(b))) m_bands[size_t(b)].expanded = !m_expandedByDefault;
}

int RowEngine::endOfSubtree(int b) const
{
    int end = b + 1;
    while (end < bandCount() && m_bands[size_t(end)].level > m_bands[size_t(b)].level) ++end;
    return end;
}

/// What stands below an expanded band.
void RowEngine::appendLines(int b, std::vector<qint32> &lines) const
{
    const Band &band = m_bands[size_t(b)];
    if (band.level + 1 == int(m_groups.size())) {
        const auto rows = m_shown.begin() + band.begin;
        lines.insert(lines.end(), rows, rows + band.count);
        return;
    }
    for (int inner = b + 1, end = endOfSubtree(b); inner < end; inner = endOfSubtree(inner)) {
        lines.push_back(~inner);
        if (m_bands[size_t(inner)].expanded) appendLines(inner, lines);
    }
}

void RowEngine::listLines()
{
    m_lineOf.clear();
    m_lines.clear();
    if (m_groups.empty()) m_lines = m_shown;
    for (int b = 0; b < bandCount(); b = endOfSubtree(b)) {
        m_lines.push_back(~b);
        if (m_bands[size_t(b)].expanded) appendLines(b, m_lines);
    }
}

int RowEngine::lineOf(int row) const
{
    if (m_lineOf.empty()) {
        m_lineOf.assign(size_t(m_cells->cellRows()), -1);
        for (int i = 0; i < lines(); ++i)
            if (rowAt(i) >= 0) m_lineOf[size_t(rowAt(i))] = i;
    }
    return row >= 0 && row < int(m_lineOf.size()) ? m_lineOf[size_t(row)] : -1;
}

int RowEngine::lineOfBand(int b) const
{
    const auto found = std::ranges::find(m_lines, ~b);
    return found == m_lines.end() ? -1 : int(found - m_lines.begin());
}

std::vector<int> RowEngine::bandsOver(int row) const
{
    std::vector<int> over;
    const int at = int(std::ranges::find(m_shown, row) - m_shown.begin());
    for (int b = 0; b < bandCount(); ++b) {
        const Band &band = m_bands[size_t(b)];
        if (at >= band.begin && at < band.begin + band.count) over.push_back(b);
    }
    return over;
}

std::vector<int> RowEngine::closedBandsOver(int row) const
{
    std::vector<int> closed = bandsOver(row);
    std::erase_if(closed, [this](int b) { return m_bands[size_t(b)].expanded; });
    return closed;
}

RowEngine::Span RowEngine::toggled(int b) const
{
    std::vector<qint32> inside;
    appendLines(b, inside);
    return {lineOfBand(b) + 1, int(inside.size())};
}

void RowEngine::toggle(int b)
{
    Band &band = m_bands[size_t(b)];
    const Span span = toggled(b);
    const auto at = m_lines.begin() + span.first;
    if (band.expanded) {
        m_lines.erase(at, at + span.count);
    } else {
        std::vector<qint32> inside;
        appendLines(b, inside);
        m_lines.insert(at, inside.begin(), inside.end());
    }
    band.expanded = !band.expanded;
    m_lineOf.clear();
    const size_t path = pathOf(b);
    if (!m_flipped.remove(path)) m_flipped.insert(path);
}

void RowEngine::setAllExpanded(bool expanded)
{
    m_expandedByDefault = expanded;
    m_flipped.clear();
}

/// Names a band by the values over it, so that its state outlives every other order of the rows.
size_t RowEngine::pathOf(int b) const
{
    const Band &band = m_bands[size_t(b)];
    const int column = m_groups[size_t(band.level)].column;
    const size_t outer = band.parent < 0 ? 0 : pathOf(band.parent);
    return qHashMulti(outer, column, m_cells->text(firstRowOf(b), column));
}

} // namespace QV_DOC_CONTROLS
