#pragma once

#include "facade/services/Prompts.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace QV_DOC_CONTROLS {

/// What a box for one number takes.
struct NumberInput {
    static constexpr int kDecimal = 3, kText = 4; ///< kinds of input; all others are whole numbers
    int type = 0;
    double min = 0, max = 2147483647;           ///< both included
    QString format = QStringLiteral("0");       ///< how the number is shown, see NumberFormat
    int lenMax = 20;                            ///< of texts; a text as long as that is already too long
    bool readsLocale = false;                   ///< typed numbers mean what they mean in the locale
    QLocale locale;

    bool isText() const { return type == kText; }
    bool takesDecimals() const;                 ///< a format "0" has no use for them
    QString formatted(double value) const;
};

/// A line of text where the next key goes: what stands before it and behind it. What it overwrites is gone.
struct TypingPlace {
    QString before, behind;
};
inline constexpr int kKeypadDecimal = 110;      ///< its key code, whatever it types

/// The character that a key types into the box, or nothing: then it is dropped, with the alert sound.
/// `lastKeyCode` is that of the key pressed last. Enter and Backspace are no characters and not asked for.
std::optional<QChar> keyTyped(const NumberInput &input, const TypingPlace &at, QChar key, int lastKeyCode);

/// What of an inserted text gets in when its characters are typed one after the other.
struct TypedText {
    QString text;
    bool dropped = false;                       ///< a character did not get in
};
TypedText textTyped(const NumberInput &input, TypingPlace at, const QString &inserted);

/// The number that a text says, or the refusal to show.
struct CheckedNumber {
    std::optional<double> value;
    Message refusal{};
};
CheckedNumber checkedNumber(const NumberInput &input, const QString &text);
CheckedNumber checkedNumber(const NumberInput &input, double value);

/// A text as long as it may be, and the message if it was longer.
struct CheckedText {
    QString text;
    std::optional<Message> refusal{};
};
CheckedText checkedText(const NumberInput &input, const QString &text);

std::optional<Message> refusedMin(const NumberInput &input, double min, double value);
std::optional<Message> refusedMax(const NumberInput &input, double max, double value);

QString rangeHint(const NumberInput &input);    ///< "0 és 10 közé eső érték!", or how long a text may be

} // namespace QV_DOC_CONTROLS
