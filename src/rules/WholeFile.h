#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace QV_DOC_CONTROLS {

/// Writes the file; one that is there is replaced only when the new content is whole on the disk, and stays
/// as it is otherwise. What is there must be an ordinary file that is not write-protected; a link is written
/// through. Comes back: why it could not be written; empty = it was.
std::optional<QString> writeWhole(const QString &path, const QByteArray &bytes);

// What to do about a file that cannot be written or read; `details`: why.
QString notWritable(const QString &path, const QString &details);
QString notReadable(const QString &path, const QString &details);

} // namespace QV_DOC_CONTROLS
