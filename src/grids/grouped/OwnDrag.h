#pragma once

#include <QUuid>

#include <optional>
#include <vector>

class QMimeData;

namespace QV_DOC_CONTROLS {

/// Records that are dragged to a group, as text: a token and their numbers, separated by blanks. Text that
/// says no origin is taken from anybody; what another manager drags is refused, its numbers mean something
/// else there.
class OwnDrag {
public:
    explicit OwnDrag(const char *token) : m_token(token) {}
    QMimeData *data(const std::vector<qint16> &ids) const;  ///< the caller's
    /// Empty = nothing of this table is dragged. What is no number is passed over.
    std::optional<std::vector<qint16>> idsIn(const QMimeData &mime) const;

private:
    const char *m_token;
    const QByteArray m_origin = QUuid::createUuid().toByteArray();
};

} // namespace QV_DOC_CONTROLS
