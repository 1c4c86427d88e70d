#include "facade/managers.h"

#include "dialogs/editors/frmSupSid.h"
#include "facade/services/Services.h"

namespace QV_DOC_CONTROLS {

bool usesManagers()
{
    return readBoolSetting(QStringLiteral("setup"), QStringLiteral("OldStyleSetupForms"), false);
}

bool selectInManager(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tSid &symbol, enumSetupMode mode, QWidget *owner)
{
    frmSupSid form(owner);
    qint16 id = symbol.SidId;
    const bool confirmed = form.bDoModal(doc, mode, id);
    form.TearDown();
    const auto chosen = confirmed ? doc.symbols().find(id) : std::nullopt;
    if (chosen) symbol = *chosen;
    return chosen.has_value();
}

bool editSymbols(ZolWDoc::ZOLW_Doc &doc)
{
    frmSupSid form;
    qint16 id = -1;
    const bool confirmed = form.bDoModal(doc, MODE_EDIT, id);
    form.TearDown();
    return confirmed;
}

} // namespace QV_DOC_CONTROLS
