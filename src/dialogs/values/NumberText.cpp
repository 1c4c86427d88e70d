#include "dialogs/values/NumberText.h"

#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"

#include <QRegularExpression>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr QChar kMinus(0x2212), kHardBlank(0xa0);

/// Without the blanks that set off groups of three digits, with a plain minus.
QString bare(QString text)
{
    static const QRegularExpression gap(QStringLiteral("(?<=\\d)[ \u00a0\u202f\u2009](?=\\d{3}(?!\\d))"));
    return text.remove(gap).replace(kMinus, u'-');
}

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

QString textOf(double number, int decimals)
{
    QLocale locale = interfaceLocale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = locale.toString(number, 'f', decimals);
    if (!text.contains(locale.decimalPoint())) return text;
    while (text.endsWith(locale.zeroDigit())) text.chop(1);
    if (text.endsWith(locale.decimalPoint())) text.chop(locale.decimalPoint().size());
    return text;
}

std::optional<double> numberOf(QString text, const QString &unit)
{
    static const QRegularExpression shape(QStringLiteral("^[+-]?[\\d.,]*\\d[.,]?$"));
    text = text.trimmed();
    if (!unit.isEmpty() && text.endsWith(unit, Qt::CaseInsensitive))
        text = text.chopped(unit.size()).trimmed();
    text = bare(text);
    if (!shape.match(text).hasMatch()) return {};
    const QLocale locale = interfaceLocale();
    bool read = false;
    double number = locale.toDouble(text, &read);
    if (!read) number = QLocale::c().toDouble(text.replace(u',', u'.'), &read);
    return read ? std::optional(number) : std::nullopt;
}

QString allowedIn(const NumberField &field)
{
    const QString unit = field.unit.isEmpty() ? QString() : kHardBlank + field.unit;
    return join(Text{21605, u"Megengedett: "}, textOf(field.min, field.decimals),
                QStringLiteral("\u00a0–\u00a0"), textOf(field.max, field.decimals), unit);
}

QString refusalFor(const QString &text, const NumberField &field)
{
    const auto number = numberOf(text, field.unit);
    const QString reason = number ? reasonFor(*number, field) : txt(Text{21600, u"Írj be egy számot!"});
    return reason.isEmpty() ? QString() : reason + u'\n' + allowedIn(field);
}

} // namespace QV_DOC_CONTROLS
