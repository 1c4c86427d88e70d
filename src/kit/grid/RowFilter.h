#pragma once

#include "kit/grid/FilterRule.h"

#include <functional>

namespace QV_DOC_CONTROLS {

/// A filter over all rows. Keeps their folded texts, so that a keystroke only searches; they can be got ready
/// in steps.
class RowFilter {
public:
    using Fold =
        std::function<void(int row, FilterRule::RowFolder &)>; ///< adds the cells of the searched columns

    void reset(int rows, Fold fold);                        ///< other columns
    void refill(int rows);                                  ///< other rows
    bool prepare(int rows);                                 ///< folds so many more; true = all are
    void rowEdited(int row);
    std::vector<bool> fitting(const FilterRule &rule);      ///< by row; empty for an empty rule: all
    bool fits(int row, const FilterRule &rule);

private:
    std::string_view folded(int row);
    Fold m_fold;
    int m_rows = 0;
    FilterRule::RowFolder m_folder;
    std::string m_texts; ///< of all rows folded so far, one after the other
    std::vector<quint32> m_ends;                            ///< by row: where its text ends
    std::vector<std::pair<int, std::string>> m_edited;      ///< rows that differ from m_texts
};

} // namespace QV_DOC_CONTROLS
