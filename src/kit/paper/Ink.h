#pragma once

#include <QColor>

namespace QV_DOC_CONTROLS {

/// Paper is white whatever the palette of the screen: these colours are the paper's own.
inline constexpr QRgb kPaper = 0xffffffff;
inline constexpr QRgb kInk = 0xff000000;
inline constexpr QRgb kGrayInk = 0xff6e6e6e;        ///< of grayed rows; still legible when copied
inline constexpr QRgb kRule = 0xffb8b8b8;           ///< lines of the table
inline constexpr QRgb kCaptionFill = 0xffe6e6e6;

/// The colour that letters get on that ground (invalid = paper): `wanted` when it can be read there, or black
/// or white.
QColor inkOn(QColor ground, QColor wanted);

} // namespace QV_DOC_CONTROLS
