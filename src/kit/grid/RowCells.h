#pragma once

#include <QString>

namespace QV_DOC_CONTROLS {

/// What sorting, grouping and filtering ask of a table: cells by row and column, both counted from 0.
class RowCells {
public:
    virtual ~RowCells() = default;
    virtual int cellRows() const = 0;
    virtual bool sortsByNumber(int column) const = 0;
    virtual double number(int row, int column) const = 0;   ///< NaN = no number; sorts before every number
    virtual QString text(int row, int column) const = 0;    ///< as shown
};

} // namespace QV_DOC_CONTROLS
