#pragma once

#include <QIcon>

namespace QV_DOC_CONTROLS {

/// One idea, one picture: outlines on a grid of 16 by 16, y downward, in the path language of SVG.
struct IconRow {
    const char *name;
    const char *lines;                          ///< drawn as strokes
    const char *areas = "";                     ///< filled
};
std::span<const IconRow> iconRows();

/// The picture of an idea in the palette's text colour, sharp at any size and scale. Null when there is no
/// such row.
QIcon toolIcon(const char *name);

} // namespace QV_DOC_CONTROLS
