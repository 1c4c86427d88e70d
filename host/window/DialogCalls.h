#pragma once

#include "window/Icons.h"

#include "facade/services/Text.h"

#include <QKeySequence>

#include <span>

namespace QV_DOC_CONTROLS { class clsDocDlgs; }

namespace refhost {

class DrawingPage;

/// One call of the library that opens a dialog.
struct DialogCall {
    const char *name;                               ///< of the façade's member
    QV_DOC_CONTROLS::Text text;
    Sign sign;
    bool (*run)(QV_DOC_CONTROLS::clsDocDlgs &, DrawingPage &); ///< whether the user confirmed
};
std::span<const DialogCall> dialogCalls();          ///< in the order of menu and toolbar

} // namespace refhost
