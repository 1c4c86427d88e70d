#include "window/DialogCalls.h"

#include "window/DrawingPage.h"

#include "facade/clsDocDlgs.h"

using QV_DOC_CONTROLS::clsDocDlgs;

namespace refhost {
namespace {

/// Starts from the current layer; the dialog makes the chosen one current.
bool selectLayer(clsDocDlgs &dialogs, DrawingPage &page)
{
    SqliteDoc &doc = page.doc();
    ZolWDoc::tLay lay = doc.layers().find(doc.layers().currentId()).value_or(ZolWDoc::tLay{});
    return dialogs.bSelect_Lay(doc, lay);
}

/// Starts from the layers of what is selected, and selects what stands on the chosen ones.
bool selectLayers(clsDocDlgs &dialogs, DrawingPage &page)
{
    ZolWDoc::tLayArr layers = page.edits().layersOfSelection();
    if (!dialogs.bSelect_LayArr(page.doc(), layers)) return false;
    page.refreshIfChanged();
    page.edits().selectOn(layers);
    return true;
}

bool editLayers(clsDocDlgs &dialogs, DrawingPage &page) { return dialogs.bEdit_Layers(page.doc()); }
/// Starts from the symbol that is placed; the chosen one is placed next.
bool selectSymbol(clsDocDlgs &dialogs, DrawingPage &page)
{
    ZolWDoc::tSid symbol = page.edits().symbol().value_or(ZolWDoc::tSid{});
    if (!dialogs.bSelect_Sid(page.doc(), symbol)) return false;
    page.edits().setSymbol(symbol.SidId);
    page.view().setTool(DrawingView::Tool::Symbol);
    return true;
}

bool editSymbols(clsDocDlgs &dialogs, DrawingPage &page) { return dialogs.bEdit_Sids(page.doc()); }
bool setUp(clsDocDlgs &dialogs, DrawingPage &page) { return dialogs.bSetup(page.doc(), 0); }

constexpr DialogCall kCalls[] = {
    {"bSelect_Lay", {30440, u"Réteg&választás…"}, Sign::Layers, selectLayer},
    {"bSelect_LayArr", {30525, u"&Több réteg kiválasztása…"}, Sign::SeveralLayers, selectLayers},
    {"bEdit_Layers", {30526, u"Rétegek &szerkesztése…"}, Sign::EditLayers, editLayers},
    {"bSelect_Sid", {30902, u"&Jelkulcsválasztás…"}, Sign::SelectSymbol, selectSymbol},
    {"bEdit_Sids", {30903, u"Jelkulcsok s&zerkesztése…"}, Sign::EditSymbols, editSymbols},
    {"bSetup", {30527, u"Minden &erőforrás…"}, Sign::Setup, setUp},
};

} // namespace

std::span<const DialogCall> dialogCalls() { return kCalls; }

} // namespace refhost
