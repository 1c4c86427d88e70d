#pragma once

#include <QSize>
#include <QString>

class QWidget;

namespace QV_DOC_CONTROLS {

/// What the width and the height of a window are stored under, behind the name of its form.
struct SizeKeys {
    const char *width = "-Width", *height = "-Height";
};

/// Gives a window the size it had when its user closed it last, else `usual`; without one, a size that fits a
/// table.
void restoreSize(QWidget &window, const QString &form, QSize usual = {}, SizeKeys keys = {});
QSize sizeOfLetters(const QWidget &window, int across, int down); ///< room for so many average letters
/// Stored in twips; errors are swallowed.
void keepSizeOf(const QWidget &window, const QString &form, SizeKeys keys = {});

/// The width of one part of a form, in pixels, under `suffix`; `usual` when none is stored.
int storedWidth(const QWidget &part, const QString &form, const char *suffix, int usual);
void keepWidthOf(const QWidget &part, const QString &form, const char *suffix);

} // namespace QV_DOC_CONTROLS
