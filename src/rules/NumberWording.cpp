#include "rules/NumberWording.h"

#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"
#include "rules/NumberFormat.h"
#include "rules/NumberText.h"

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr QChar kHardBlank(0xa0);

bool isWhole(double number, int decimals)
{
    const double scaled = number * std::pow(10, decimals);
    return std::abs(scaled - std::round(scaled)) <= 1e-9 * std::max(1.0, std::abs(scaled));
}

QString reasonFor(double number, const NumberField &field)
{
    if (number < field.min) return txt(Text{21601, u"A szám túl kicsi."});
    if (number > field.max) return txt(Text{21602, u"A szám túl nagy."});
    if (isWhole(number, field.decimals)) return {};
    if (field.decimals == 0) return txt(Text{21603, u"Egész számot írj be!"});
    return join(Text{21604, u"A tizedesjegyek száma legfeljebb "}, field.decimals, QStringLiteral("."));
}

} // namespace

QString patternOf(int decimals)
{
    return decimals > 0 ? QStringLiteral("0.0") + QString(decimals - 1, u'#') : QStringLiteral("0");
}

QString textOf(double number, int decimals)
{
    return formatted(number, patternOf(decimals), interfaceLocale());
}

/// Bounds are as short as they can be: "0,1 – 1000 mm".
QString allowedIn(const NumberField &field)
{
    const auto bound = [&](double number) { return textOf(number, isWhole(number, 0) ? 0 : field.decimals); };
    const QString unit = field.unit.isEmpty() ? QString() : kHardBlank + field.unit;
    return join(Text{21605, u"Megengedett: "}, bound(field.min),
                QStringLiteral("\u00a0–\u00a0"), bound(field.max), unit);
}

QString refusalFor(const QString &text, const NumberField &field)
{
    const QString pattern = patternOf(field.decimals) + u'"' + field.unit + u'"';
    const auto number = numberMeant(text, pattern, interfaceLocale());
    const QString reason = number ? reasonFor(*number, field) : txt(Text{21600, u"Írj be egy számot!"});
    return reason.isEmpty() ? QString() : reason + u'\n' + allowedIn(field);
}

} // namespace QV_DOC_CONTROLS
