#pragma once

#include "kit/ask/ErrorRelay.h"

#include <QString>

namespace QV_DOC_CONTROLS {

/// Asks for a value, `proposed` at first, and lets `find` go to a row that has it; says so when there is none. Part of
/// a command: runs inside `relay`. `asker` is the window it asks over.
void findInColumn(const QString &proposed, const std::function<bool(const QString &)> &find, const ErrorRelay &relay,
                  QObject *asker);

} // namespace QV_DOC_CONTROLS
