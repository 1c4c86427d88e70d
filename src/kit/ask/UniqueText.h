#pragma once

#include "facade/services/Prompts.h"

#include <functional>

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// Asks for a name until it is free, as uniqueNumber() does for a number. Blanks around it do not count.
/// Empty = cancelled, or nothing was typed.
std::optional<QString> uniqueText(ErrorRelay &relay, TextQuestion question,
                                  const std::function<std::optional<Message>(const QString &)> &refusalFor,
                                  QObject *asker = nullptr);

} // namespace QV_DOC_CONTROLS
