#pragma once

#include <QString>

#include <optional>

namespace QV_DOC_CONTROLS {

/// The value of a number in the wide sense: blanks around it, a sign, decimals after a point; no exponent.
/// Nothing when the text is none. The point is the decimal sign in every language.
std::optional<double> numericValue(QStringView text);

/// The same number in 16 bits, halves rounded to the even neighbour; nothing beyond -32768..32767.
std::optional<qint16> shortValue(QStringView text);

/// Whether the text is a number in the wide sense.
inline bool isNumeric(QStringView text) { return numericValue(text).has_value(); }

} // namespace QV_DOC_CONTROLS
