#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/contract/enumSetupMode.h"

class QWidget;

namespace QV_DOC_CONTROLS {

/// Whether the user works with the managers of single tables, by the host's setting, instead of the selection
/// and setup dialogs.
bool usesManagers();

/// Picks a symbol in a new manager; true = confirmed, `symbol` is the chosen one. With MODE_SELECT its user
/// may go over to editing. `owner` null = the active window.
bool selectInManager(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tSid &symbol, enumSetupMode mode, QWidget *owner);
bool editSymbols(ZolWDoc::ZOLW_Doc &doc); ///< in a new manager; true = changes were kept

} // namespace QV_DOC_CONTROLS
