#pragma once

#include "grids/frame/Desk.h"

#include <optional>

namespace QV_DOC_CONTROLS {

/// Asks for a pen by its screen colour; `now` is offered first. Empty = cancelled. Throws the host's error.
std::optional<int> askForPen(Desk &desk, const QString &title, const QString &record, int now);

} // namespace QV_DOC_CONTROLS
