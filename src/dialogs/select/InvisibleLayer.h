#pragma once

#include "facade/contract/Records.h"

class QObject;

namespace QV_DOC_CONTROLS {

/// Asks whether an invisible layer is really meant to be the current one. No checkpoint is made.
bool isConfirmed(const ZolWDoc::tLay &invisible, QObject *asker);

} // namespace QV_DOC_CONTROLS
