#include "dialogs/values/ValueBox.h"

#include "kit/forms/Buttons.h"
#include "kit/forms/WindowSize.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

ValueBox::ValueBox(const QString &title, const QString &text, QWidget *owner)
    : QDialog(owner), m_fields(new QVBoxLayout)
{
    setWindowTitle(title);
    setAccessibleDescription(text);
    auto *const question = new QLabel(text, this); // no buddy: a name in the text may hold "&"
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    question->setMinimumWidth(sizeOfLetters(*this, 50, 0).width());
    auto *const column = new QVBoxLayout(this);
    column->addWidget(question);
    column->addLayout(m_fields, 1);
    column->addWidget(okCancelButtons(*this));
}

void ValueBox::allowOk(bool on)
{
    findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setEnabled(on);
}

} // namespace QV_DOC_CONTROLS
