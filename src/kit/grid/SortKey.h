#pragma once

#include <QtGlobal>

namespace QV_DOC_CONTROLS {

enum class SortOrder : qint8 { Ascending = 1, Descending = -1 };

/// One sort key or one group level: a column of the source and its order.
struct SortKey {
    int column = -1;
    SortOrder order = SortOrder::Ascending;
    bool operator==(const SortKey &) const = default;
};
inline constexpr int kMaxLevels = 4;                ///< sort keys, and group levels

} // namespace QV_DOC_CONTROLS
