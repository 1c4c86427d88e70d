#pragma once

#include "qvres/Table.h"

#include <QByteArray>

namespace qvres {

/// UTF-8, a line of column names, commas; texts stand in quotes, so that an empty text differs from null and
/// a text of digits from a number.
QByteArray csvOf(const Table &table);
/// Commas, semicolons or tabs, whichever the first line has most of. What stands without quotes is null, a
/// number, true or false if it reads so, else a text. Throws Failure.
Table tableOfCsv(const QByteArray &csv);

} // namespace qvres
