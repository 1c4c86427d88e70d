#pragma once

#include "facade/contract/ZOLW_Doc.h"

namespace QV_DOC_CONTROLS {

class Grid;

/// By pen, 0xRRGGBB; pen 0 does not exist and counts as colour value 0. Throws the host's error.
std::vector<quint32> screenColorsOfPens(ZolWDoc::ZOLW_Doc &doc);

/// Makes the 256 styles "0ColorId" to "255ColorId": style n shows the screen colour of pen n. Digits on
/// colour value 0 are white. The grid's other styles are cleared; the row styles "OddRow" and "Grayed" are
/// created again.
void buildColorStyles(Grid &grid, ZolWDoc::ZOLW_Doc &doc);
inline QString colorStyleName(int pen) { return QString::number(pen) + QLatin1String("ColorId"); }

} // namespace QV_DOC_CONTROLS
