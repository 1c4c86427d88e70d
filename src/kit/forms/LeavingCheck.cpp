#include "kit/forms/LeavingCheck.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFocusEvent>

namespace QV_DOC_CONTROLS {
namespace {

/// A button of a row says its role; one that stands alone is known by name.
bool rejects(QWidget &widget)
{
    auto *const button = qobject_cast<QAbstractButton *>(&widget);
    const auto *const row = button ? qobject_cast<QDialogButtonBox *>(button->parentWidget()) : nullptr;
    return row ? row->buttonRole(button) == QDialogButtonBox::RejectRole
               : button && button->objectName() == u"cmdCancel";
}

} // namespace

LeavingCheck::LeavingCheck(QWidget &field, std::function<void()> check)
    : QObject(&field), m_field(field), m_check(std::move(check))
{
    field.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &LeavingCheck::later);
}

bool LeavingCheck::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_field || event->type() != QEvent::FocusOut) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
        reason == Qt::MenuBarFocusReason)
        return false;
    m_due = true;
    later();
    return false;
}

void LeavingCheck::later()
{
    if (!m_due || std::exchange(m_queued, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { run(); }, Qt::QueuedConnection);
}

void LeavingCheck::run()
{
    m_queued = false;
    QWidget *const now = QApplication::focusWidget();
    if (!m_field.isVisible() || now == &m_field) m_due = false; // closed, or back again
    if (!m_due || !now || now->window() != m_field.window() || rejects(*now)) return;
    m_due = false;
    m_check();
}

} // namespace QV_DOC_CONTROLS
