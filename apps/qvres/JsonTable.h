#pragma once

#include "qvres/Table.h"

#include <QByteArray>

namespace qvres {

/// One array of row objects; rows of several tables say theirs under "table".
QByteArray jsonOf(const std::vector<Table> &tables);
Table tableOfJson(const QByteArray &json); ///< columns in the order they are met; throws Failure

} // namespace qvres
