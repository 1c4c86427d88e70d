#pragma once

#include <QSize>
#include <QString>

class QWidget;

namespace QV_DOC_CONTROLS {

/// Gives a window the size it had when its user closed it last, else `usual`; without one, a size that fits a
/// table.
void restoreSize(QWidget &window, const QString &form, QSize usual = {});
QSize sizeOfLetters(const QWidget &window, int across, int down); ///< room for so many average letters
void keepSizeOf(const QWidget &window, const QString &form); ///< stored in twips; errors are swallowed

} // namespace QV_DOC_CONTROLS
