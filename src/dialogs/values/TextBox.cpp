#include "dialogs/values/TextBox.h"

#include "dialogs/values/DropDown.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

TextBox::TextBox(const TextQuestion &q, QWidget *owner) : ValueBox(q.title, q.text, owner)
{
    QWidget *const field = makeLine(q);
    field->setAccessibleName(q.text);
    m_line->setObjectName(QStringLiteral("txtAnswer"));
    m_line->setAccessibleName(q.text);
    m_line->selectAll();
    fields().addWidget(field);
    fields().addStretch(1);
    field->setFocus();
}

QWidget *TextBox::makeLine(const TextQuestion &q)
{
    if (q.items.isEmpty()) return m_line = new QLineEdit(q.preset, this);
    QComboBox *const list = dropDown(q.items, q.preset, this);
    m_line = list->lineEdit();
    return list;
}

QString TextBox::answer() const { return m_line->text(); }

} // namespace QV_DOC_CONTROLS
