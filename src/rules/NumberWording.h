#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

QString patternOf(int decimals); ///< the number format pattern: "1.0", "2.25"; of whole numbers "1"
/// The number in that pattern, as the interface's language writes it.
QString textOf(double number, int decimals);

QString allowedIn(const NumberField &);         ///< "Allowed: 0.1 – 100 mm"
/// Why the text cannot be taken, and what is allowed; empty = it can.
QString refusalFor(const QString &text, const NumberField &);

} // namespace QV_DOC_CONTROLS
