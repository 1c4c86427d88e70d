#pragma once

#include <QSize>
#include <QString>

class QWidget;

namespace QV_DOC_CONTROLS {

/// Gives a window the size it had when its user closed it last, or else `letters` across and down, or a size
/// that suits a table.
void restoreSize(QWidget &window, const QString &form, QSize letters = {120, 28});
void keepSizeOf(const QWidget &window, const QString &form); ///< stored in twips; errors are swallowed

} // namespace QV_DOC_CONTROLS
