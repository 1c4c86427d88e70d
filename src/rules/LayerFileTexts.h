#pragma once

#include "rules/LayerFile.h"

namespace QV_DOC_CONTROLS {

/// What is wrong with a layer file and what to do about it; each names the file, layer, group or code page.
QString notSaved(const LayerFileRefusal &why, const LayerFile &content);
QString notUsable(const LayerFileRefusal &why, const QString &path);

} // namespace QV_DOC_CONTROLS
