#include "fonts/FontViewer.h"
#include "fonts/frmTrueTypeSel.h"
#include "fonts/frmVectorFontSel.h"

namespace QV_DOC_CONTROLS {
namespace {

/// The font dialogs, for those below the roof: a new one for each call.
struct Picker final : FontPicker {
    std::optional<ScriptedFace> pickTrueType(const ScriptedFace &first, QObject *owner) override
    {
        ScriptedFace face = first;
        return frmTrueTypeSel(qobject_cast<QWidget *>(owner)).getFace(face) ? std::optional(face)
                                                                            : std::nullopt;
    }
    std::optional<QString> pickVector(const ZolWDoc::ZOLW_Doc *doc, const QString &first,
                                      QObject *owner) override
    {
        QString name = first;
        return frmVectorFontSel(qobject_cast<QWidget *>(owner)).getFont(doc, name) ? std::optional(name)
                                                                                   : std::nullopt;
    }
    std::optional<FontCharacter> pickCharacter(const ZolWDoc::ZOLW_Doc *doc, const FontCharacter &first,
                                               QObject *owner) override
    {
        FontCharacter character = first;
        FontViewer viewer(first.kind, doc, qobject_cast<QWidget *>(owner));
        return viewer.getCharacter(character) ? std::optional(character) : std::nullopt;
    }
};
[[maybe_unused]] const bool s_entered = [] {
    static Picker picker;
    setFontPicker(&picker);
    return true;
}();

} // namespace
} // namespace QV_DOC_CONTROLS
