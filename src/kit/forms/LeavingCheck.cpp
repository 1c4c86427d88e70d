#include "kit/forms/LeavingCheck.h"

#include "kit/ask/ErrorRelay.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPointer>

namespace QV_DOC_CONTROLS {
namespace {

/// A button of a row says its role; one that stands alone is known by name.
bool rejects(const QWidget &widget)
{
    auto *const button = qobject_cast<QAbstractButton *>(const_cast<QWidget *>(&widget));
    const auto *const row = button ? qobject_cast<QDialogButtonBox *>(button->parentWidget()) : nullptr;
    return row ? row->buttonRole(button) == QDialogButtonBox::RejectRole
               : button && button->objectName() == u"cmdCancel";
}

/// The only button of the window that has this access key; null = there is none.
QAbstractButton *buttonFor(const QKeyEvent &key, const QWidget &window)
{
    const QKeySequence pressed(key.keyCombination());
    QAbstractButton *found = nullptr;
    for (auto *button : window.findChildren<QAbstractButton *>()) {
        if (button->shortcut() != pressed || !button->isVisible() || !button->isEnabled()) continue;
        if (std::exchange(found, button)) return nullptr;
    }
    return found;
}

} // namespace

LeavingCheck::LeavingCheck(QWidget &field, std::function<Tell()> check)
    : m_field(field), m_check(std::move(check))
{
    field.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *to) { focusWent(to); });
}

bool LeavingCheck::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_field) return false;
    const QPointer<QObject> alive(watched);
    switch (event->type()) {
    case QEvent::FocusIn: m_waiting = false; break;
    case QEvent::FocusOut: left(static_cast<QFocusEvent *>(event)->reason()); break;
    case QEvent::ShortcutOverride:
        if (!stopsPress(static_cast<QKeyEvent &>(*event))) break;
        event->accept();
        return true;
    default: break;
    }
    return !alive;                              // the check's owner may take the field away
}

void LeavingCheck::left(Qt::FocusReason reason)
{
    const bool away = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
        || reason == Qt::MenuBarFocusReason || !m_field.isVisible();
    const QWidget *const now = QApplication::focusWidget();
    m_waiting = !away && now && rejects(*now);
    if (!away && !m_waiting) check();
}

/// The user who went to such a button and on to another field has left after all.
void LeavingCheck::focusWent(QWidget *to)
{
    if (!m_waiting || !to || to == &m_field || to->window() != m_field.window() || rejects(*to)) return;
    m_waiting = false;
    check();
}

bool LeavingCheck::stopsPress(const QKeyEvent &key)
{
    QAbstractButton *const button = buttonFor(key, *m_field.window());
    if (!button || rejects(*button)) return false;
    const QPointer<LeavingCheck> alive(this);
    button->setFocus(Qt::ShortcutFocusReason);
    return !alive || m_telling;
}

void LeavingCheck::check()
{
    const QPointer<LeavingCheck> alive(this);
    const auto check = m_check;                 // outlives this
    Tell tell;
    try {
        tell = check();
    } catch (...) {
        tell = [error = std::current_exception()] { std::rethrow_exception(error); };
    }
    if (!alive || !tell) return;
    m_telling = true;
    const auto later = [this, tell] {
        m_telling = false;
        ErrorRelay::reporting().guard(tell);
    };
    QMetaObject::invokeMethod(this, later, Qt::QueuedConnection);
}

} // namespace QV_DOC_CONTROLS
