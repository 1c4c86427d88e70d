#include "facade/selection.h"

#include "dialogs/select/frmSelect.h"

namespace QV_DOC_CONTROLS {
namespace {

/// A new dialog for the call, its entry operation without an owner, TearDown, gone.
template <class Rec>
bool selectWith(frmSelect &dialog, bool (frmSelect::*entry)(ZolWDoc::ZOLW_Doc &, Rec &, QWidget *),
                ZolWDoc::ZOLW_Doc &doc, Rec &record)
{
    const bool confirmed = (dialog.*entry)(doc, record, nullptr);
    dialog.TearDown();
    return confirmed;
}

} // namespace

bool selectLayer(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLay &lay, bool warnInvisible)
{
    frmSelect dialog;
    dialog.setWarnInvisibleCurrentLayer(warnInvisible);
    return selectWith(dialog, &frmSelect::bDoSelect_Lay, doc, lay);
}

} // namespace QV_DOC_CONTROLS
