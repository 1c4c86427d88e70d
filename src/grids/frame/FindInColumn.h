#pragma once

namespace QV_DOC_CONTROLS {

class ErrorRelay;
class Grid;
class GridSource;

/// Asks for a value of the column, the current row's at first, and goes to the next row that has it; says so
/// when there is none. Part of a command: runs inside `relay`. `source` is the grid's.
void findInColumn(Grid &grid, const GridSource &source, int column, const ErrorRelay &relay);

} // namespace QV_DOC_CONTROLS
