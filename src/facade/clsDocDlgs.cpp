#include "facade/clsDocDlgs.h"

#include "facade/selection.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "facade/services/Trace.h"

namespace QV_DOC_CONTROLS {

clsDocDlgs::clsDocDlgs()
{
    Trace trace("clsDocDlgs", "Class_Initialize");
    ensureResourcesLoaded();
    LanguageHub &hub = LanguageHub::instance();
    hub.connectToRuntime();
    connect(&hub, &LanguageHub::LanguageChanged, this, &clsDocDlgs::ml_RuntimeSupport_LanguageChanged);
    trace.step(1);
    hub.takeOver();
    trace.step(2);
    if (appTitle().isEmpty()) setsAppTitle(QStringLiteral("ZOLDocDlgs"));
}

QString clsDocDlgs::sAppTitle() const { return appTitle(); }
void clsDocDlgs::setsAppTitle(const QString &title) { setAppTitle(title); }

bool clsDocDlgs::bSelect_Lay(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLay &lay)
{
    Trace trace("clsDocDlgs", "bSelect_Lay");
    trace.step(1);
    const bool confirmed = selectLayer(oDoc, lay, m_warnInvisible);
    trace.step(2);
    return confirmed;
}

} // namespace QV_DOC_CONTROLS
