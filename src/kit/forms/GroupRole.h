#pragma once

#include <QAccessibleWidget>

namespace QV_DOC_CONTROLS {

/// Screen readers hear of such a control by that role, with its accessible name and description.
template <class Control, QAccessible::Role role> void announceAs()
{
    static const auto make = [](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *const control = qobject_cast<Control *>(object);
        return control ? new QAccessibleWidget(control, role) : nullptr;
    };
    static const bool once = (QAccessible::installFactory(make), true);
    Q_UNUSED(once)
}

/// As one group of fields.
template <class Control> void announceAsGroup() { announceAs<Control, QAccessible::Grouping>(); }

} // namespace QV_DOC_CONTROLS
