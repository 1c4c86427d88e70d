// Any pattern with any number: no crash, no endless text, and a text that the pattern's own reading
// understands comes back as the same text.
#include "../fuzz/Feed.h"
#include "rules/NumberFormat.h"
#include "rules/NumberText.h"

#include <cmath>

using namespace QV_DOC_CONTROLS;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QLocale kLocales[] = {QLocale::c(), QLocale(QLocale::Hungarian, QLocale::Hungary),
                                       QLocale(QLocale::Romanian, QLocale::Romania)};
    tests::Feed feed(data, size);
    const QLocale &locale = kLocales[feed.take<uint8_t>() % std::size(kLocales)];
    const double value = feed.take<double>();
    const QString pattern = feed.text(200);
    const NumberFormat format(pattern);
    const QString text = format.text(value, locale);
    PROMISE(text.size() <= 2000);
    if (!std::isfinite(value)) return 0;
    PROMISE(!pattern.isEmpty() || numberMeant(text, pattern, locale) == value);
    isNumeric(text, locale);
    leadingNumber(text);
    typedNumber(pattern, locale);
    if (const auto meant = numberMeant(text, pattern, locale)) format.text(*meant, locale);
    return 0;
}
