#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace QV_DOC_CONTROLS {

/// What a screen reader sees of a InputCombo: its name and text, and of a number its bounds; else null.
QAccessibleInterface *makeInputComboAccessible(const QString &type, QObject *object);

} // namespace QV_DOC_CONTROLS
