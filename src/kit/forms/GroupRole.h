#pragma once

#include <QAccessibleWidget>

namespace QV_DOC_CONTROLS {

/// Screen readers hear of such a control as one group of fields, with its accessible name and description.
template <class Control> void announceAsGroup()
{
    static const auto make = [](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *const control = qobject_cast<Control *>(object);
        return control ? new QAccessibleWidget(control, QAccessible::Grouping) : nullptr;
    };
    static const bool once = (QAccessible::installFactory(make), true);
    Q_UNUSED(once)
}

} // namespace QV_DOC_CONTROLS
