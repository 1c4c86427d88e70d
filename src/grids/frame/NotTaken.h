#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

/// Says that a number cell does not take what was typed: which cell, what, why, and what it takes.
Message notTaken(const QString &record, const QString &column, const QString &typed,
                 const NumberField &field);

} // namespace QV_DOC_CONTROLS
