#include "facade/selection.h"

#include "dialogs/select/frmSelect.h"
#include "facade/contract/ResourcePicker.h"
#include "facade/managers.h"

namespace QV_DOC_CONTROLS {
namespace {

/// A new dialog for the call, its entry operation, TearDown, gone.
template <class Rec>
bool selectWith(frmSelect &dialog, bool (frmSelect::*entry)(ZolWDoc::ZOLW_Doc &, Rec &, QWidget *),
                ZolWDoc::ZOLW_Doc &doc, Rec &record, QWidget *owner = nullptr)
{
    const bool confirmed = (dialog.*entry)(doc, record, owner);
    dialog.TearDown();
    return confirmed;
}

template <class Rec>
std::optional<Rec> pickIn(bool (frmSelect::*entry)(ZolWDoc::ZOLW_Doc &, Rec &, QWidget *),
                             ZolWDoc::ZOLW_Doc &doc, std::type_identity_t<Rec> first,
                          QObject *owner)
{
    frmSelect dialog;
    if (!selectWith(dialog, entry, doc, first, qobject_cast<QWidget *>(owner))) return std::nullopt;
    return first;
}

/// In the dialog that the user's setting asks for.
bool pickSymbol(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tSid &symbol, enumSetupMode mode, QWidget *owner = nullptr)
{
    if (usesManagers()) return selectInManager(doc, symbol, mode, owner);
    frmSelect dialog;
    return selectWith(dialog, &frmSelect::bDoSelect_Sid, doc, symbol, owner);
}

/// The selection dialogs that there are, for those who pick from below the roof: what is being edited there
/// may refer to what an editing user would delete.
struct Picker final : ResourcePicker {
    using Kind = ZolWDoc::TableKind;
    bool canPick(Kind kind) const override { return kind == Kind::Layers || kind == Kind::Symbols; }
    std::optional<qint16> pick(Kind kind, ZolWDoc::ZOLW_Doc &doc, qint16 first, QObject *owner) override
    {
        if (kind == Kind::Layers) {
            const auto lay = pickIn(&frmSelect::bDoSelect_Lay, doc, {.LayId = first}, owner);
            return lay ? std::optional(lay->LayId) : std::nullopt;
        }
        if (kind == Kind::Symbols) {
            ZolWDoc::tSid symbol{.SidId = first};
            if (!pickSymbol(doc, symbol, MODE_SELECT_ONLY, qobject_cast<QWidget *>(owner))) return {};
            return symbol.SidId;
        }
        return std::nullopt;
    }
};
[[maybe_unused]] const bool s_entered = [] {
    static Picker picker;
    setResourcePicker(&picker);
    return true;
}();

} // namespace

bool selectLayer(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLay &lay, bool warnInvisible)
{
    frmSelect dialog;
    dialog.setWarnInvisibleCurrentLayer(warnInvisible);
    return selectWith(dialog, &frmSelect::bDoSelect_Lay, doc, lay);
}

bool selectLayers(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLayArr &layers)
{
    frmSelect dialog;
    return selectWith(dialog, &frmSelect::bDoSelect_LayArr, doc, layers);
}

bool selectSymbol(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tSid &symbol)
{
    return pickSymbol(doc, symbol, MODE_SELECT);
}

} // namespace QV_DOC_CONTROLS
