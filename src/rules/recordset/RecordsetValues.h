#pragma once

#include "rules/recordset/Recordset.h"

#include <optional>

/// How values stand as text in a recordset file: what is read as a number or a truth value, and how one is
/// written.
namespace QV_DOC_CONTROLS {

/// Lowest and highest value of an integer column.
struct IntegerRange {
    qint64 lowest, highest;
};
IntegerRange rangeOf(RecordsetField::Type type);

/// Digits, with or without a sign: the form of nearly all whole numbers, exact to 64 bits. Empty = look with
/// numberIn().
std::optional<qint64> wholeIn(QStringView text);

/// Blanks around it, a plus sign, decimals (rounded, halves to even), an exponent, thousands commas, &H and
/// &O: as lenient as the programs that write these files. Empty = not a number.
std::optional<double> numberIn(QStringView text);
std::optional<bool> booleanIn(QStringView text); ///< true, false in any case, or a number; 0 is false

QString realText(double value, bool isSingle); ///< eight digits for a single, seventeen for a double
inline QString booleanText(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }

} // namespace QV_DOC_CONTROLS
