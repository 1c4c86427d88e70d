#include "rules/NumberInput.h"

#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "rules/NumberFormat.h"
#include "rules/NumberText.h"

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr Text kInvalidValue{45, u"Érték hiba!"};
constexpr Text kError{3017, u"Hiba"};
constexpr Text kAnd{3014, u" és "};

CheckedNumber refused(const QString &text)
{
    return {std::nullopt, {Icon::Exclamation, txt(kInvalidValue), text}};
}
CheckedNumber notANumber() { return refused(txt(Text{3020, u"Számot kell megadni!"})); }

bool isDecimalKey(const NumberInput &input, QChar key, int lastKeyCode)
{
    return input.takesDecimals() && (key == u'.' || key == u',' || lastKeyCode == kKeypadDecimal);
}

} // namespace

bool NumberInput::takesDecimals() const { return type == kDecimal && format.trimmed() != u"0"; }

QString NumberInput::formatted(double value) const
{
    return QV_DOC_CONTROLS::formatted(value, format, locale);
}

std::optional<QChar> keyTyped(const NumberInput &input, const TypingPlace &at, QChar key, int lastKeyCode)
{
    if (input.isText()) return key;
    if (isDecimalKey(input, key, lastKeyCode)) {
        const QChar separator = decimalSeparator(input.locale);
        if (at.before.contains(separator) || at.behind.contains(separator)) return {};
        return separator;
    }
    if (key == u'-' && input.min < 0 && at.before.isEmpty()) return key;
    if (key >= u'0' && key <= u'9') return key;
    return {};
}

TypedText textTyped(const NumberInput &input, TypingPlace at, const QString &inserted)
{
    if (input.isText()) return {inserted};
    TypedText typed;
    for (const QChar c : input.readsLocale ? typedNumber(inserted, input.locale) : inserted) {
        const auto key = keyTyped(input, at, c, 0);
        if (key) typed.text += *key, at.before += *key;
        else typed.dropped = true;
    }
    return typed;
}

CheckedNumber checkedNumber(const NumberInput &input, const QString &text)
{
    if (input.readsLocale) {
        const auto meant = numberMeant(text, input.format, input.locale);
        return meant ? checkedNumber(input, *meant) : notANumber();
    }
    if (!isNumeric(text, input.locale)) return notANumber();
    // Read alike in every locale, so that "1,5" is 1 where the comma is the decimal separator: on purpose.
    return checkedNumber(input, leadingNumber(text));
}

CheckedNumber checkedNumber(const NumberInput &input, double value)
{
    if (std::isnan(value)) return notANumber();
    if (value >= input.min && value <= input.max) return {value};
    return refused(join(input.formatted(input.min), kAnd, input.formatted(input.max),
                        Text{3021, u" közé eső értéket kell megadni!"}));
}

CheckedText checkedText(const NumberInput &input, const QString &text)
{
    const int most = std::max(0, input.lenMax);
    if (text.size() < most) return {text};      // a text of exactly that length draws the message, on purpose
    return {text.left(most), Message{Icon::Exclamation, appTitle(),
                                     join(Text{3023, u"A megengedettnél ("}, input.lenMax,
                                          Text{3022, u") hosszabb szöveg!"})}};
}

std::optional<Message> refusedMin(const NumberInput &input, double min, double value)
{
    if (min <= input.max && (input.isText() || min <= value)) return {};
    return Message{Icon::Exclamation, txt(kError), txt(Text{3019, u"Hibás minimum!"})};
}

std::optional<Message> refusedMax(const NumberInput &input, double max, double value)
{
    if (max >= input.min && (input.isText() || max >= value)) return {};
    return Message{Icon::Exclamation, txt(kError), txt(Text{3018, u"Hibás maximum!"})};
}

QString rangeHint(const NumberInput &input)
{
    if (input.isText())
        return join(Text{3016, u"Maximum "}, input.lenMax, Text{3015, u" karakter"});
    return join(input.formatted(input.min), kAnd, input.formatted(input.max),
                Text{3013, u" közé eső érték!"});
}

} // namespace QV_DOC_CONTROLS
