#pragma once

#include "facade/contract/ZOLW_Doc.h"

/// The layer controls on a form as a host builds it, saved under that path.
void saveLayerControls(ZolWDoc::ZOLW_Doc &doc, const QString &path);
