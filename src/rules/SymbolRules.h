#pragma once

#include "facade/contract/Records.h"

#include <QStringList>

#include <span>

namespace QV_DOC_CONTROLS {

constexpr int kVectorFont = 1;                  ///< tSid::Type
constexpr int kHighestWeight = 300;             ///< thickness, hundredths of a millimetre
constexpr double kLeastSymbolSize = 0.1, kMostSymbolSize = 1000; ///< millimetres

/// A symbol as it is made, without its number. It is of TrueType although its face is a vector font, on
/// purpose.
ZolWDoc::tSid newSymbol(const QString &name, const ZolWDoc::tGroup &group);

void makeVector(ZolWDoc::tSid &symbol);         ///< what a symbol gets when its font becomes a vector font
inline void followFontType(ZolWDoc::tSid &symbol) { if (symbol.Type == kVectorFont) makeVector(symbol); }

constexpr double kPreviewZoom = 3;              ///< of a symbol that says none: the preview's own
inline double previewZoomOf(const ZolWDoc::tSid &s) { return s.DspZoom > 0 ? s.DspZoom : kPreviewZoom; }

inline qint16 weightOf(double millimetres) { return qint16(qRound(millimetres * 100)); }

/// Symbols of a set, made ready for a document: numbers, group, no name twice.
struct LoadedSymbols {
    std::vector<ZolWDoc::tSid> symbols;
    QStringList known;                          ///< names that were left out, as the document has them
    bool roomForAll = true;                     ///< false: numbers ran out, the rest is left out
};
LoadedSymbols loaded(std::span<const ZolWDoc::tSid> read, const ZolWDoc::tGroup &group,
                     std::span<const ZolWDoc::tSid> all);

} // namespace QV_DOC_CONTROLS
