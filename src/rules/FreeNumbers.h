#pragma once

#include <QtGlobal>

#include <vector>

namespace QV_DOC_CONTROLS {

/// Numbers for `count` new records of a table whose numbers have 16 bits: those behind the highest one, and
/// when they run out the lowest free ones. Fewer when the table has no more room.
std::vector<qint16> freeNumbers(const std::vector<qint16> &used, size_t count);

} // namespace QV_DOC_CONTROLS
