#pragma once

#include <QStringList>

class QComboBox;
class QWidget;

namespace QV_DOC_CONTROLS {

/// An editable line that offers the items and leaves what is typed as it was typed. The parent's own.
QComboBox *dropDown(const QStringList &items, const QString &text, QWidget *parent);

} // namespace QV_DOC_CONTROLS
