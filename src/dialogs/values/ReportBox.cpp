#include "dialogs/values/ReportBox.h"

#include "facade/services/Text.h"
#include "kit/forms/WindowSize.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

ReportBox::ReportBox(const Report &r, QWidget *owner) : QDialog(owner)
{
    setWindowTitle(r.title);
    setSizeGripEnabled(true);
    auto *const text = new QLabel(r.text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *const lines = new QPlainTextEdit(r.lines.join(u'\n'), this);
    lines->setObjectName(QStringLiteral("txtLines"));
    lines->setAccessibleName(r.text);
    lines->setReadOnly(true);
    lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const ok = buttons->addButton(txt(Text{2802, u"OK"}), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOk"));
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(lines, 1);
    column->addWidget(buttons);
    resize(sizeOfLetters(*this, 70, 20));
    ok->setFocus();                             // Enter closes; Tab goes to the lines
}

} // namespace QV_DOC_CONTROLS
