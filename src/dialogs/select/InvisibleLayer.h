#pragma once

class QObject;
class QString;

namespace QV_DOC_CONTROLS {

/// Asks whether an invisible layer is really meant; `before` stands before the question. No checkpoint is
/// made.
bool isInvisibleMeant(const QString &before, QObject *asker);

} // namespace QV_DOC_CONTROLS
