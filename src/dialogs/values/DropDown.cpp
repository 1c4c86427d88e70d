#include "dialogs/values/DropDown.h"

#include "kit/forms/QuietWheel.h"

#include <QComboBox>

namespace QV_DOC_CONTROLS {

QComboBox *dropDown(const QStringList &items, const QString &text, QWidget *parent)
{
    auto *const list = new QComboBox(parent);
    list->setObjectName(QStringLiteral("cboItems"));
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);                // it would finish, and so change, what the user types
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->addItems(items);
    list->setCurrentIndex(int(items.indexOf(text))); // the arrow keys start there
    list->setEditText(text);
    quietWheel(*list);
    return list;
}

} // namespace QV_DOC_CONTROLS
