#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

/// The number as the interface's language writes it, without group separators and trailing zeros.
QString textOf(double number, int decimals);

/// What a user means by the text, whatever the bounds; empty = no number.
///
/// The decimal sign of the interface's language counts, and the other one of point and comma wherever it
/// cannot be taken for a group separator. Groups of three digits may be set off, the unit may stand behind.
std::optional<double> numberOf(QString text, const QString &unit = {});

QString allowedIn(const NumberField &);         ///< "Allowed: 0.1 – 100 mm"
/// Why the text cannot be taken, and what is allowed; empty = it can.
QString refusalFor(const QString &text, const NumberField &);

} // namespace QV_DOC_CONTROLS
