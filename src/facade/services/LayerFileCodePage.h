#pragma once

#include <QString>

namespace QV_DOC_CONTROLS {

/// The code page of the texts in layer files (".z3l"), by its name such as "windows-1250"; empty = the
/// system's own, which is the default. A file from a machine with another system reads right when this names
/// that machine's.
///
/// A setting of the user: application "ZolWOp", section "Settings", key "LayerFileCodePage".
QString layerFileCodePage();
void setLayerFileCodePage(const QString &name);
bool isCodePage(const QString &name);           ///< whether texts can be written in it here; "" is one

} // namespace QV_DOC_CONTROLS
