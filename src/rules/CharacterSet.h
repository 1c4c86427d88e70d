#pragma once

#include <QChar>

namespace QV_DOC_CONTROLS {

/// Character set numbers that the rules know by name; codePageOf() has the others.
inline constexpr int kSymbolCharSet = 2, kCentralEuropean = 238, kOemCharSet = 255;

/// The code page of a character set number, by the name that text decoders know it by. The sets that stand
/// for the machine's own are those of a Central European one: windows-1250 for 1 and for unknown numbers,
/// IBM852 for 255. Null for the symbol set, which has none.
const char *codePageOf(int charSet);

/// The character that a symbol's or a label's code stands for; null = nothing to show.
///
/// Codes below 256 go through the code page of the character set; those of the symbol set stand at U+F000 +
/// code. Codes up to 65535 are the character itself. Nothing to show are control characters, bytes that the
/// code page leaves free or that only begin a pair, halves of surrogate pairs, non-characters and all else.
/// Bytes from 128 need a Qt with the usual code pages; without them they are nothing to show either.
QChar characterOf(int code, int charSet);

} // namespace QV_DOC_CONTROLS
