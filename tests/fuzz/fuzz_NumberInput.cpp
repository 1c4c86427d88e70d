// Random keys, pastes and overwritten pieces in a box for one number: only what may be typed stands in it,
// and what is accepted lies in the bounds.
#include "../fuzz/Feed.h"
#include "rules/NumberFormat.h"
#include "rules/NumberInput.h"

#include <algorithm>

using namespace QV_DOC_CONTROLS;

namespace {

QString overwritten(const QString &text, tests::Feed &feed, TypingPlace &at)
{
    const qsizetype a = feed.take<uint8_t>() % (text.size() + 1),
                    b = feed.take<uint8_t>() % (text.size() + 1);
    at = {text.left(std::min(a, b)), text.mid(std::max(a, b))};
    return at.before + at.behind;
}

void checkText(const NumberInput &input, const QString &text)
{
    const QChar separator = decimalSeparator(input.locale);
    PROMISE(text.count(separator) <= (input.takesDecimals() ? 1 : 0));
    for (const QChar c : text)
        PROMISE((c >= u'0' && c <= u'9') || c == separator || (c == u'-' && input.min < 0));
    const CheckedNumber checked = checkedNumber(input, text);
    PROMISE(!checked.value || (*checked.value >= input.min && *checked.value <= input.max));
    PROMISE(checked.value || !checked.refusal.text.isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QLocale kLocales[] = {QLocale::c(), QLocale(QLocale::Hungarian, QLocale::Hungary),
                                       QLocale(QLocale::Romanian, QLocale::Romania)};
    tests::Feed feed(data, size);
    NumberInput input;
    const auto kind = feed.take<uint8_t>();
    input.type = kind & 1 ? NumberInput::kDecimal : 0;
    input.readsLocale = kind & 2;
    input.format = kind & 4 ? QStringLiteral("#,##0.00") : QStringLiteral("0");
    input.locale = kLocales[(kind >> 3) % std::size(kLocales)];
    input.min = feed.take<int16_t>(), input.max = feed.take<double>();
    QString text;
    while (!feed.atEnd()) {
        TypingPlace at;
        overwritten(text, feed, at);
        const auto how = feed.take<uint8_t>();
        QString typed;
        if (how & 1) typed = textTyped(input, at, feed.text(how >> 3)).text;
        else if (const auto key =
                     keyTyped(input, at, QChar(feed.take<char16_t>()), how & 2 ? kKeypadDecimal : 0))
            typed = *key;
        text = at.before + typed + at.behind;
        checkText(input, text);
    }
    return 0;
}
