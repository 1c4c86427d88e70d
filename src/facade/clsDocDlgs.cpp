#include "facade/clsDocDlgs.h"

#include "facade/selection.h"
#include "facade/setup.h"
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

bool clsDocDlgs::bSelect_LayArr(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLayArr &layers)
{
    Trace trace("clsDocDlgs", "bSelect_LayArr");
    trace.step(1);
    const bool confirmed = selectLayers(oDoc, layers);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::bEdit_Layers(ZolWDoc::ZOLW_Doc &oDoc)
{
    Trace trace("clsDocDlgs", "bEdit_Layers");
    trace.step(1);
    const bool confirmed = editTable(oDoc, ZolWDoc::TableKind::Layers);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::bSelect_Sid(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tSid &symbol)
{
    Trace trace("clsDocDlgs", "bSelect_Sid");
    trace.step(1);
    const bool confirmed = selectSymbol(oDoc, symbol);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::bEdit_Sids(ZolWDoc::ZOLW_Doc &oDoc)
{
    Trace trace("clsDocDlgs", "bEdit_Sids");
    trace.step(1);
    const bool confirmed = editTable(oDoc, ZolWDoc::TableKind::Symbols);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::bSetupEx(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType, bool AutomaticItemSelection)
{
    Trace trace("clsDocDlgs", "bSetupEx");
    m_automatic = AutomaticItemSelection;
    trace.step(1);
    const bool confirmed = showSetup(oDoc, iType);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::bSetup(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType)
{
    Trace trace("clsDocDlgs", "bSetup");
    trace.step(1);
    const bool confirmed = showSetup(oDoc, iType);
    trace.step(2);
    return confirmed;
}

bool clsDocDlgs::showSetup(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType)
{
    return setUp(oDoc, iType, {m_warnInvisible, m_automatic, m_docList});
}

} // namespace QV_DOC_CONTROLS
