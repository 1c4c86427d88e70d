#include "rules/CharacterSet.h"

#include <QStringDecoder>

#include <algorithm>
#include <iterator>

namespace QV_DOC_CONTROLS {
namespace {

struct CodePageRow {
    int charSet;
    const char *name;
};
constexpr CodePageRow kCodePages[] = {
    {0, "windows-1252"},   // Western European
    {77, "macintosh"},
    {128, "windows-932"},  // Japanese; of the East Asian sets only single bytes are codes
    {129, "windows-949"},  // Korean
    {130, "windows-949"},  // Korean, Johab: single bytes are the same
    {134, "windows-936"},  // Chinese, simplified
    {136, "windows-950"},  // Chinese, traditional
    {161, "windows-1253"}, // Greek
    {162, "windows-1254"}, // Turkish
    {163, "windows-1258"}, // Vietnamese
    {177, "windows-1255"}, // Hebrew
    {178, "windows-1256"}, // Arabic
    {186, "windows-1257"}, // Baltic
    {204, "windows-1251"}, // Cyrillic
    {222, "windows-874"},  // Thai
    {kCentralEuropean, "windows-1250"},
    {kOemCharSet, "IBM852"},
};
constexpr const char *kMachines = "windows-1250";

QChar decoded(char byte, const char *codePage)
{
    if (byte >= 0) return QLatin1Char(byte); // the same in all of them
    QStringDecoder decoder(codePage, QStringConverter::Flag::Stateless);
    if (!decoder.isValid()) return {};
    const QString text = decoder(QByteArrayView(&byte, 1));
    return decoder.hasError() || text.size() != 1 ? QChar() : text.front();
}

bool shows(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate: return false;
    default: return !c.isNonCharacter();
    }
}

} // namespace

const char *codePageOf(int charSet)
{
    if (charSet == kSymbolCharSet) return nullptr;
    const auto row = std::ranges::find(kCodePages, charSet, &CodePageRow::charSet);
    return row == std::end(kCodePages) ? kMachines : row->name;
}

QChar characterOf(int code, int charSet)
{
    if (code < 0 || code > 0xffff) return {};
    QChar c{char16_t(code)};
    if (code < 256) {
        if (charSet == kSymbolCharSet) return QChar(char16_t(0xf000 + code));
        c = decoded(char(code), codePageOf(charSet));
        if (c.category() == QChar::Other_PrivateUse) return {}; // how decoders say that the byte is free
    }
    return shows(c) ? c : QChar();
}

} // namespace QV_DOC_CONTROLS
