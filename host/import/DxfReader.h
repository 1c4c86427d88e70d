#pragma once

#include "import/Drawing.h"
#include "import/DxfScan.h"

namespace refhost {

/// Reads what the scan handed on. Throws ImportCancelled, or DocumentError when the reader breaks down over
/// the file.
Drawing readDrawing(const DxfScan &, const DxfScan::Progress &);

} // namespace refhost
