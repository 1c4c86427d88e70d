#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace QV_DOC_CONTROLS {

/// Why no new file may take the place of what is there: it would put a device or a pipe away, or a file that
/// nobody may write, whatever rights the user has. A link counts for what it leads to. Empty = one may.
std::optional<QString> whyKept(const QString &path);

/// Writes the file; one that is there is replaced only when the new content is whole on the disk, and stays
/// as it is otherwise. A link is written through. Comes back: why it could not be written; empty = it was.
std::optional<QString> writeWhole(const QString &path, const QByteArray &bytes);

// What to do about a file that cannot be written or read; `details`: why.
QString notWritable(const QString &path, const QString &details);
QString notReadable(const QString &path, const QString &details);

} // namespace QV_DOC_CONTROLS
