#pragma once

#include "facade/services/Text.h"
#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

/// Gives a grid what its table says of cards and, where it does, of bands; in the current language.
template <class Table> void captionRows(Grid &grid)
{
    grid.setCardCaption(txt(Table::cardCaption), Table::numberColumn, Table::nameColumn);
    if constexpr (requires { Table::bandCaption; }) grid.setBandCaption(txt(Table::bandCaption));
}

} // namespace QV_DOC_CONTROLS
