#include "dialogs/editors/frmEditSid.h"
#include "facade/contract/RecordEditors.h"

namespace QV_DOC_CONTROLS {
namespace {

/// Edits a symbol in a new form and writes it when the user confirmed another one.
bool editSymbol(ZolWDoc::ZOLW_Doc &doc, qint16 id, QWidget *owner)
{
    const auto symbol = doc.symbols().find(id);
    if (!symbol) return false;
    frmEditSid form(owner);
    form.Init(doc, *symbol);
    const bool confirmed = form.edit();
    const ZolWDoc::tSid edited = form.GetSid();
    form.TearDown();
    if (confirmed && edited != *symbol)
        ZolWDoc::inCommand(doc, txt(Text{20056, u"Szerkesztés"}), [&] { doc.symbols().update(edited); });
    return confirmed;
}

/// The editors that there are, for those below the roof.
struct Editors final : RecordEditors {
    bool canEdit(ZolWDoc::TableKind kind) const override { return kind == ZolWDoc::TableKind::Symbols; }
    bool edit(ZolWDoc::TableKind kind, ZolWDoc::ZOLW_Doc &doc, qint16 id, QObject *owner) override
    {
        return canEdit(kind) && editSymbol(doc, id, qobject_cast<QWidget *>(owner));
    }
};
[[maybe_unused]] const bool s_entered = [] {
    static Editors editors;
    setRecordEditors(&editors);
    return true;
}();

} // namespace
} // namespace QV_DOC_CONTROLS
