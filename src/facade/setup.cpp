#include "facade/setup.h"

#include "dialogs/select/frmSetup.h"
#include "facade/managers.h"

namespace QV_DOC_CONTROLS {

bool editTable(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::TableKind kind)
{
    if (kind == ZolWDoc::TableKind::Symbols && usesManagers()) return editSymbols(doc);
    frmSetup dialog;
    const bool confirmed = dialog.bDoShow(doc, qint16(kind), true);
    dialog.TearDown();
    return confirmed;
}

bool setUp(ZolWDoc::ZOLW_Doc &doc, qint16 page, const SetupOptions &options)
{
    frmSetup dialog;
    dialog.setWarnInvisibleCurrentLayer(options.warnInvisible);
    dialog.setAutomaticItemSelection(options.automaticItemSelection);
    dialog.setoDocList(options.documents);
    const bool confirmed = dialog.bDoShow(doc, page);
    dialog.TearDown();
    return confirmed;
}

} // namespace QV_DOC_CONTROLS
