#pragma once

#include <QString>

namespace refhost {

/// Throws DocumentError, which names the file and the remedy, unless `path` is a sound drawing of this or an
/// older version. The file and its folder stay exactly as they are.
void requireSoundDrawing(const QString &path);

/// The file's address as SQLite takes it, for options behind "?".
QString fileUri(const QString &path);

/// "A(z) 'path" + the rest: every message about a file begins alike.
QString fileText(const QString &path, const QString &rest);

} // namespace refhost
