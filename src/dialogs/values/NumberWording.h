#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

/// The number as the interface's language writes it, without group separators and trailing zeros.
QString textOf(double number, int decimals);

QString patternOf(int decimals);                ///< the number format pattern that it writes in

QString allowedIn(const NumberField &);         ///< "Allowed: 0.1 – 100 mm"
/// Why the text cannot be taken, and what is allowed; empty = it can.
QString refusalFor(const QString &text, const NumberField &);

} // namespace QV_DOC_CONTROLS
