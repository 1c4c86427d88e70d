#pragma once

#include "facade/contract/ZOLW_Doc.h"

/// The layer selection in its states and the print preview from it, side by side, saved under that path; false
/// when a text has no room or a bar is too short for its tools.
bool saveSelection(ZolWDoc::ZOLW_Doc &doc, const QString &path);
