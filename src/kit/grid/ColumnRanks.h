#pragma once

#include "kit/grid/RowCells.h"

#include <QCollator>

#include <vector>

namespace QV_DOC_CONTROLS {

/// One column's values as ranks: dense from 0, ascending, equal values share one.
///
/// Sort keys of texts are the dear part, so they can be built in steps while nothing else happens. One edited
/// row costs a binary search, not a rebuild.
class ColumnRanks {
public:
    ColumnRanks(const RowCells &cells, int column, const QCollator &order);

    bool isReady() const { return m_ready; }
    bool buildOn();                             ///< one step, at most a few milliseconds; true = ready
    void finish() { while (!buildOn()) {} }
    int of(int row) const { return m_rank[size_t(row)]; }   ///< ready only
    int count() const { return int(m_sample.size()); }
    /// Ready only; the other rows are as they were. Returns false when the row is still equal to the same
    /// rows.
    bool rowEdited(int row);

private:
    struct Run { size_t begin, end; };          ///< of m_order, sorted
    bool before(int a, int b) const { return m_keys[size_t(a)] < m_keys[size_t(b)]; }
    void buildFromNumbers();
    void buildFromTexts();
    void sortChunk();
    bool mergeRuns(bool all);
    bool leave(int row);
    void enter(int row, int rank, bool isNew);
    int compare(int a, int b) const;

    const RowCells *m_cells;
    int m_column;
    const QCollator *m_collator;
    bool m_ready = false;
    std::vector<qint32> m_rank;                 ///< by row
    std::vector<qint32> m_sample;               ///< by rank: a row that has it
    std::vector<QCollatorSortKey> m_keys;       ///< while building, by row
    std::vector<qint32> m_order;
    std::vector<Run> m_runs;
};

} // namespace QV_DOC_CONTROLS
