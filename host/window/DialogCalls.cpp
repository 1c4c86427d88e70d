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

constexpr DialogCall kCalls[] = {
    {"bSelect_Lay", {30440, u"Réteg&választás…"}, Sign::Layers, selectLayer},
};

} // namespace

std::span<const DialogCall> dialogCalls() { return kCalls; }

} // namespace refhost
