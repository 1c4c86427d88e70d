#pragma once

#include <QColor>

class QPalette;

namespace QV_DOC_CONTROLS {

/// A published colour: 0xRRGGBB, or 0x80000000 and the number of a colour that follows the desktop.
struct SystemColor {
    quint32 number = 0;
    bool operator==(const SystemColor &) const = default;
};
inline constexpr SystemColor kWindowBackground{0x80000005}; ///< what is written on: the palette's base
inline constexpr SystemColor kWindowText{0x80000008};       ///< what it is written with: the palette's text

/// The colour to paint with; a desktop colour that is not known is the palette's base.
QColor shownColor(SystemColor color, const QPalette &palette);

/// The same colour for the property system, so that forms keep it and the designer offers its colour dialog:
/// a desktop colour is told by its alpha of 0x80. Back again, the alpha of any other colour is dropped.
QColor propertyColor(SystemColor color);
SystemColor systemColor(const QColor &property);

} // namespace QV_DOC_CONTROLS
