#include "facade/selection.h"

#include "dialogs/select/frmSelect.h"
#include "facade/contract/ResourcePicker.h"

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

/// The selection dialogs that there are, for those who pick from below the roof.
struct Picker final : ResourcePicker {
    bool canPick(ZolWDoc::TableKind kind) const override { return kind == ZolWDoc::TableKind::Layers; }
    std::optional<qint16> pick(ZolWDoc::TableKind kind, ZolWDoc::ZOLW_Doc &doc, qint16 first,
                               QObject *owner) override
    {
        if (!canPick(kind)) return std::nullopt;
        frmSelect dialog;
        ZolWDoc::tLay lay{.LayId = first};
        if (!selectWith(dialog, &frmSelect::bDoSelect_Lay, doc, lay, qobject_cast<QWidget *>(owner)))
            return std::nullopt;
        return lay.LayId;
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

} // namespace QV_DOC_CONTROLS
