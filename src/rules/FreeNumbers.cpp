#include "rules/FreeNumbers.h"

#include <algorithm>
#include <limits>

namespace QV_DOC_CONTROLS {

std::vector<qint16> freeNumbers(const std::vector<qint16> &used, size_t count)
{
    constexpr int kHighest = std::numeric_limits<qint16>::max();
    std::vector<bool> taken(kHighest + 1);
    int highest = 0;
    for (const int n : used) {
        if (n > 0) taken[size_t(n)] = true;
        highest = std::max(highest, n);
    }
    std::vector<qint16> free;
    for (int n = highest + 1; n <= kHighest && free.size() < count; ++n) free.push_back(qint16(n));
    for (int n = 1; n < highest && free.size() < count; ++n)
        if (!taken[size_t(n)]) free.push_back(qint16(n));
    return free;
}

} // namespace QV_DOC_CONTROLS
