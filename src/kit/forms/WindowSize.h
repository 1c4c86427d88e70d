#pragma once

#include <QString>

class QWidget;

namespace QV_DOC_CONTROLS {

/// Gives a window the size it had when its user closed it last, or a size that fits its content and letters.
void restoreSize(QWidget &window, const QString &form);
void keepSizeOf(const QWidget &window, const QString &form); ///< stored in twips; errors are swallowed

} // namespace QV_DOC_CONTROLS
