#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace QV_DOC_CONTROLS {

/// Whether the text is a number in the wide sense: blanks around it, a sign, digits that may be grouped
/// anyhow, decimals, an exponent. Both the locale's way of writing and that with a decimal point count.
bool isNumeric(QStringView text, const QLocale &locale);

/// The number that the text begins with, read alike in every locale: leading blanks, a sign, digits with "."
/// as the decimal point, an exponent. It ends at the first character that cannot go on; 0 when there is none.
double leadingNumber(QStringView text);

/// What a person of that locale means by the text of a number shown in that pattern. The locale's decimal
/// separator counts, and the other one of point and comma wherever it cannot set off a group; groups have
/// three digits, or any number where the pattern groups. The pattern's own text may stand around, per cent is
/// per cent where the pattern shows it, and an exponent counts where it shows one. Nothing when the text says
/// no number.
std::optional<double> numberMeant(QStringView text, QStringView pattern, const QLocale &locale);

/// The plain digits of a text that the locale reads as one number, with its decimal separator and without
/// grouping: what is typed instead of what is pasted. Any other text comes back as it is.
QString typedNumber(const QString &text, const QLocale &locale);

} // namespace QV_DOC_CONTROLS
