#include "kit/forms/Buttons.h"

#include "facade/services/Text.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace QV_DOC_CONTROLS {

QDialogButtonBox *okCancelButtons(QDialog &dialog)
{
    auto *const box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    box->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOk"));
    box->button(QDialogButtonBox::Ok)->setDefault(true);
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    retranslate(*box);
    return box;
}

void retranslate(QDialogButtonBox &buttons)
{
    buttons.button(QDialogButtonBox::Ok)->setText(txt(Text{2802, u"OK"}));
    buttons.button(QDialogButtonBox::Cancel)->setText(txt(Text{2801, u"Mégse"}));
}

} // namespace QV_DOC_CONTROLS
