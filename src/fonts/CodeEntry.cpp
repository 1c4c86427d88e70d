#include "fonts/CodeEntry.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr const char *kHexMarks[] = {"0x", "U+", "&H", "$", "#"};

std::optional<int> inRange(const QString &digits, int base)
{
    bool isNumber = false;
    const uint code = digits.toUInt(&isNumber, base);
    const bool hasDigitsOnly = !digits.isEmpty() && digits[0].isLetterOrNumber(); // no sign, no blank
    return isNumber && hasDigitsOnly && code < uint(kCodes) ? std::optional(int(code)) : std::nullopt;
}

} // namespace

std::optional<int> codeMeant(const QString &text, const CharacterSource *source)
{
    const QString typed = text.trimmed();
    if (const auto decimal = inRange(typed, 10)) return decimal;
    for (const char *mark : kHexMarks)
        if (typed.size() > 1 && typed.startsWith(QLatin1String(mark), Qt::CaseInsensitive))
            return inRange(typed.mid(qsizetype(qstrlen(mark))), 16);
    if (typed.size() != 1) return std::nullopt;
    const int code = source ? source->codeOf(typed[0]) : int(typed[0].unicode());
    return code < 0 ? std::nullopt : std::optional(code);
}

} // namespace QV_DOC_CONTROLS
