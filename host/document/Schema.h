#pragma once

#include "document/Database.h"

namespace refhost {

/// Marks a SQLite file as a drawing of this program: "QVDR".
constexpr quint32 kApplicationId = 0x51564452;

void createSchema(Database &);              ///< all tables, empty, in one transaction
void fillFreshDocument(Database &);         ///< what an empty drawing needs to work at once
QStringList schemaTables();                 ///< a file without one of them is damaged

} // namespace refhost
