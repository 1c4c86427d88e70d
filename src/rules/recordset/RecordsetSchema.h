#pragma once

#include "rules/recordset/Recordset.h"

namespace QV_DOC_CONTROLS {

class XmlScanner;

/// The columns that the schema element describes whose start tag came last, as a set without rows. Columns
/// stand in the row's type, or behind it and are referred to. Throws Refused.
Recordset schemaIn(XmlScanner &scanner);

} // namespace QV_DOC_CONTROLS
