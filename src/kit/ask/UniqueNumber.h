#pragma once

#include "facade/services/Prompts.h"

#include <functional>

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// Asks for one number until it is free: each that is taken is refused with the message that `refusalFor`
/// gives, and asked again with what was typed. Empty = cancelled. To be called inside relay.guard(), which
/// ends the asking when an error came in meanwhile.
std::optional<double> uniqueNumber(ErrorRelay &relay, NumberQuestion question,
                                   const std::function<std::optional<Message>(double)> &refusalFor,
                                   QObject *asker = nullptr);

} // namespace QV_DOC_CONTROLS
