#pragma once

#include "kit/grid/SheetSource.h"

#include <QMimeData>

#include <memory>
#include <span>

namespace QV_DOC_CONTROLS {

/// Rows of a table for a spreadsheet: text with tabs and captions, and HTML with colours. Check marks become
/// words.
std::unique_ptr<QMimeData> copySheet(const SheetSource &source);                            ///< all rows
/// Of the sheet, in this order
std::unique_ptr<QMimeData> copySheet(const SheetSource &source, std::span<const int> rows);

} // namespace QV_DOC_CONTROLS
