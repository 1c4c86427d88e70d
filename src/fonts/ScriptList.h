#pragma once

#include <QString>

class QComboBox;

namespace QV_DOC_CONTROLS {

/// Fills the list with the scripts of the face, each with its character set number, in the current language,
/// and chooses `wanted`; false = the face has no letters for it, and its first script is chosen. A number
/// that means no script is kept: it is one of the list then. Signals nothing.
bool fillScripts(QComboBox &list, const QString &face, qint32 wanted);
qint32 charSetOf(const QComboBox &list);        ///< of the script chosen; 1 = none

} // namespace QV_DOC_CONTROLS
