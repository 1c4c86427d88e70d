#pragma once

#include "document/Database.h"

namespace refhost {

/// Writes a whole copy beside `path` first and puts it in place at once when it is safe on the disk.
void saveCopy(Database &, const QString &path);

} // namespace refhost
