#pragma once

#include <QIcon>

namespace refhost {

/// The signs of the program's commands. Each idea has one.
enum class Sign {
    New,
    Open,
    Import,
    Save,
    Sample,
    Fit,
    ZoomIn,
    ZoomOut,
    ZoomWindow,
    Dark,
    Select,
    Point,
    Line,
    Lettering,
    Delete,
    Layers,
    SeveralLayers,
    EditLayers,
    Setup,
    NewElement,
    Symbol,
    SelectSymbol,
    EditSymbols
};

/// Drawn from paths in the palette's text colour, sharp at any size, and anew when the palette changes.
QIcon iconOf(Sign);

} // namespace refhost
