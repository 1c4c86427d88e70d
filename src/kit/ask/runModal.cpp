#include "kit/ask/runModal.h"

#include <QApplication>
#include <QDialog>
#include <QScopeGuard>

namespace QV_DOC_CONTROLS {

int runModal(QDialog &dialog, const std::function<void()> &shown)
{
    QMetaObject::Connection owned;
    const auto parted = qScopeGuard([&] { QObject::disconnect(owned); });
    if (const QWidget *const owner = dialog.parentWidget())
        owned = QObject::connect(owner, &QObject::destroyed, &dialog, [&dialog] {
            closeDownTo(dialog);
            dialog.setParent(nullptr, dialog.windowFlags()); // before the owner deletes its children
        });
    dialog.setModal(true);
    dialog.show(); // not left to exec(), which would wait for ever for what is closed while it is being shown
    if (shown) shown();
    return dialog.isVisible() ? dialog.exec() : dialog.result();
}

void closeDownTo(QDialog &last)
{
    while (last.isVisible()) {
        auto *const inner = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QDialog &victim = inner ? *inner : last;
        victim.QDialog::done(QDialog::Rejected); // not through an override that could ask or refuse
        if (&victim == &last) break;
    }
}

} // namespace QV_DOC_CONTROLS
