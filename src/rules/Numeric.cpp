#include "rules/Numeric.h"

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// Takes the blanks off the front.
void skipBlanks(QStringView &text)
{
    while (text.startsWith(u' ')) text = text.mid(1);
}

/// Takes the digits off the front; how many there were.
qsizetype skipDigits(QStringView &text)
{
    qsizetype n = 0;
    while (n < text.size() && isDigit(text[n])) ++n;
    text = text.mid(n);
    return n;
}

} // namespace

std::optional<double> numericValue(QStringView text)
{
    skipBlanks(text);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) text = text.mid(1);
    skipBlanks(text);
    QStringView rest = text;
    qsizetype digits = skipDigits(rest);
    if (rest.startsWith(u'.')) rest = rest.mid(1), digits += skipDigits(rest);
    const QStringView number = text.left(text.size() - rest.size());
    skipBlanks(rest);
    if (digits == 0 || !rest.isEmpty()) return {};
    const double value = number.toDouble(); // infinite when there are too many digits
    return negative ? -value : value;
}

std::optional<qint16> shortValue(QStringView text)
{
    const std::optional<double> value = numericValue(text);
    const double rounded = std::nearbyint(value.value_or(0)); // to even: 2.5 is 2, 3.5 is 4
    if (!value || rounded < -32768 || rounded > 32767) return {};
    return qint16(rounded);
}

} // namespace QV_DOC_CONTROLS
