#pragma once

#include "dialogs/editors/ItemList.h"
#include "dialogs/editors/frmSupSid.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/OwnStore.h"
#include "support/ScriptedPrompts.h"
#include "support/SymbolForm.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QPushButton>
#include <QTreeView>

namespace tests {

using QV_DOC_CONTROLS::frmSupSid;
using ManagerAct = std::function<void(frmSupSid &)>;
using PromptSteps = std::vector<ScriptedPrompts::Step>;

/// The size of a symbol is asked for, and 7 is typed.
inline const ScriptedPrompts::Step kSizeAsked{
    "numbers", QStringLiteral("Betűnagyság"),
    QStringLiteral("A jelkulcstípus betűnagysága mm-ben|Nagyság=|5"), QVariantList{7.0}};

/// Whether what was changed is to stay.
inline ScriptedPrompts::Step keepAsked(bool yes)
{
    return {"yesNo", QStringLiteral("Változások rögzítése"),
            QStringLiteral("Akarod rögzíteni a változtatásokat ?"), yes, QV_DOC_CONTROLS::Icon::Question};
}

inline void run(frmSupSid &form, const char *tool) { child<QAction>(form, tool).trigger(); }
inline void click(frmSupSid &form, const char *button) { child<QPushButton>(form, button).click(); }
/// Selects what is listed, by its first column; the last one is current.
inline void select(QTreeView &list, const QStringList &names)
{
    list.clearSelection();
    const QAbstractItemModel &rows = *list.model();
    for (const QString &name : names)
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.index(row, 0).data().toString() == name)
                list.selectionModel()->setCurrentIndex(rows.index(row, 0), QItemSelectionModel::Select |
                                                                               QItemSelectionModel::Rows);
}
inline void select(frmSupSid &form, int number) { select(*form.lvSids->report(), {QString::number(number)}); }

/// The symbol manager on a document with the symbols A (1) and B (2) in group "Egy" and C (30) in "Kettő".
struct ManagerForm {
    OwnStore store;
    std::unique_ptr<refhost::SqliteDoc> doc =
        symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(30, "C", "Kettő")});
    ManagerForm()
    {
        QV_DOC_CONTROLS::setLanguage(QV_DOC_CONTROLS::Hungarian, {});
        ZolWDoc::tSid c = *doc->symbols().find(30);
        c.GroupId = doc->symbols().groups().readAll()[1].GroupId;
        doc->symbols().update(c);
    }
    bool open(ZolWDoc::ZOLW_Doc &of, QV_DOC_CONTROLS::enumSetupMode mode, const ManagerAct &act, qint16 &id)
    {
        frmSupSid form;
        const QAbstractItemModelTester rows(form.lvSids->report()->model());
        const QAbstractItemModelTester groups(form.lvGroups->model());
        const auto user = whileModal<frmSupSid>(act);
        return form.bDoModal(of, mode, id);
    }
    bool open(QV_DOC_CONTROLS::enumSetupMode mode, const ManagerAct &act, qint16 id)
    {
        return open(*doc, mode, act, id);
    }
    QString symbols() const { return dumpSymbols(doc->symbols().readAll()); }
    QString groups() const
    {
        QStringList names;
        for (const ZolWDoc::tGroup &g : doc->symbols().groups().readAll()) names << g.GroupName;
        return names.join(u' ');
    }
    bool isSpanOpen() const { return doc->changeScopes()->changesOpen(ZolWDoc::TableKind::Symbols); }
};

} // namespace tests

Q_DECLARE_METATYPE(tests::ManagerAct)
Q_DECLARE_METATYPE(tests::PromptSteps)
