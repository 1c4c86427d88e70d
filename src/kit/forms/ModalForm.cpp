#include "kit/forms/ModalForm.h"

#include "facade/services/Language.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/ask/runModal.h"
#include "kit/forms/Buttons.h"
#include "kit/forms/WindowSize.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>

namespace QV_DOC_CONTROLS {

ModalForm::ModalForm(const char *form, QWidget *owner)
    : QDialog(owner ? owner->window() : QApplication::activeWindow()), m_identity(form),
      m_buttons(okCancelButtons(*this)), cmdOk(m_buttons->button(QDialogButtonBox::Ok)),
      cmdCancel(m_buttons->button(QDialogButtonBox::Cancel))
{
    setObjectName(QLatin1String(form));
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &ModalForm::ml_RuntimeSupport_LanguageChanged);
}

void ModalForm::ml_RuntimeSupport_LanguageChanged()
{
    retranslate(*m_buttons);
    readCaptions();
}

/// In the order of Tab: they are made before what the form adds.
void ModalForm::putButtonsLast()
{
    QWidget *const last = previousInFocusChain();
    if (last != m_buttons && !m_buttons->isAncestorOf(last)) setTabOrder(last, m_buttons);
}

bool ModalForm::run(ErrorRelay *relay)
{
    readCaptions();
    ensurePolished();
    putButtonsLast();
    restoreSize(*this, objectName(), sizeHint());
    const bool confirmed = (relay ? relay->exec(*this) : runModal(*this)) == Accepted;
    keepSizeOf(*this, objectName());
    return confirmed;
}

} // namespace QV_DOC_CONTROLS
