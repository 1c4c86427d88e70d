#include "kit/grid/ColumnRanks.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace QV_DOC_CONTROLS {
namespace {

constexpr size_t kChunk = 1024; ///< rows per step: sort keys of so many texts take about two milliseconds

/// Below every number, so that an empty cell comes first.
double orLowest(double n) { return std::isnan(n) ? -std::numeric_limits<double>::infinity() : n; }

} // namespace

ColumnRanks::ColumnRanks(const RowCells &cells, int column, const QCollator &order)
    : m_cells(&cells), m_column(column), m_collator(&order)
{
}

bool ColumnRanks::buildOn()
{
    if (m_ready) return true;
    if (m_cells->sortsByNumber(m_column)) return buildFromNumbers(), true;
    if (m_keys.size() < size_t(m_cells->cellRows())) return sortChunk(), false;
    if (mergeRuns(true)) return false;
    buildFromTexts();
    return true;
}

void ColumnRanks::buildFromNumbers()
{
    struct Entry { double number; qint32 row; };
    std::vector<Entry> all(size_t(m_cells->cellRows()));
    for (size_t r = 0; r < all.size(); ++r) all[r] = {orLowest(m_cells->number(int(r), m_column)), qint32(r)};
    if (!std::ranges::is_sorted(all, {}, &Entry::number)) std::ranges::sort(all, {}, &Entry::number);
    m_rank.resize(all.size());
    for (size_t i = 0; i < all.size(); ++i) {
        if (i == 0 || all[i].number != all[i - 1].number) m_sample.push_back(all[i].row);
        m_rank[size_t(all[i].row)] = qint32(m_sample.size()) - 1;
    }
    m_ready = true;
}

/// Keys for the next rows, sorted as a run of their own; runs of equal length join, so that no step gets
/// long.
void ColumnRanks::sortChunk()
{
    const size_t begin = m_keys.size(), end = std::min(begin + kChunk, size_t(m_cells->cellRows()));
    m_keys.reserve(size_t(m_cells->cellRows()));
    for (size_t r = begin; r < end; ++r) {
        m_keys.push_back(m_collator->sortKey(m_cells->text(int(r), m_column)));
        m_order.push_back(qint32(r));
    }
    std::sort(m_order.begin() + qptrdiff(begin), m_order.end(),
              [this](int a, int b) { return before(a, b); });
    m_runs.push_back({begin, end});
    mergeRuns(false);
}

/// Joins the last two runs; not `all`: only such as are of one length. Returns whether it did.
bool ColumnRanks::mergeRuns(bool all)
{
    if (m_runs.size() < 2) return false;
    const Run last = m_runs.back(), other = m_runs[m_runs.size() - 2];
    if (!all && last.end - last.begin != other.end - other.begin) return false;
    const auto at = [this](size_t i) { return m_order.begin() + qptrdiff(i); };
    std::inplace_merge(at(other.begin), at(last.begin), at(last.end),
                       [this](int a, int b) { return before(a, b); });
    m_runs.pop_back();
    m_runs.back().end = last.end;
    if (!all) mergeRuns(false);
    return true;
}

void ColumnRanks::buildFromTexts()
{
    m_rank.resize(m_order.size());
    for (size_t i = 0; i < m_order.size(); ++i) {
        if (i == 0 || before(m_order[i - 1], m_order[i])) m_sample.push_back(m_order[i]);
        m_rank[size_t(m_order[i])] = qint32(m_sample.size()) - 1;
    }
    m_keys = {}, m_order = {}, m_runs = {};
    m_ready = true;
}

int ColumnRanks::compare(int a, int b) const
{
    if (!m_cells->sortsByNumber(m_column))
        return m_collator->compare(m_cells->text(a, m_column), m_cells->text(b, m_column));
    const double x = orLowest(m_cells->number(a, m_column)), y = orLowest(m_cells->number(b, m_column));
    return x < y ? -1 : x > y ? 1 : 0;
}

/// Takes the row out of its rank, which goes when it was its last one; returns whether it stayed.
bool ColumnRanks::leave(int row)
{
    const int rank = std::exchange(m_rank[size_t(row)], -1);
    if (m_sample[size_t(rank)] != row) return true;
    const auto other = std::ranges::find(m_rank, rank);
    if (other != m_rank.end()) return m_sample[size_t(rank)] = qint32(other - m_rank.begin()), true;
    m_sample.erase(m_sample.begin() + rank);
    for (qint32 &r : m_rank) r -= r > rank;
    return false;
}

void ColumnRanks::enter(int row, int rank, bool isNew)
{
    if (isNew) {
        for (qint32 &r : m_rank) r += r >= rank;
        m_sample.insert(m_sample.begin() + rank, row);
    }
    m_rank[size_t(row)] = rank;
}

bool ColumnRanks::rowEdited(int row)
{
    const int old = of(row);
    const bool shared = leave(row);
    const auto at =
        std::ranges::lower_bound(m_sample, 0, {}, [&](int sample) { return compare(sample, row); });
    const bool isNew = at == m_sample.end() || compare(*at, row) != 0;
    const int rank = int(at - m_sample.begin());
    enter(row, rank, isNew);
    return rank != old || !shared || isNew;
}

} // namespace QV_DOC_CONTROLS
