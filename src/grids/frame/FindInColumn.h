#pragma once

namespace QV_DOC_CONTROLS {

class ErrorRelay;
class Grid;

/// Asks for a value of the column, the current row's at first, and goes to the next row that has it; says so
/// when there is none. Part of a command: runs inside `relay`. No such column: nothing.
void findInColumn(Grid &grid, int column, const ErrorRelay &relay);

} // namespace QV_DOC_CONTROLS
