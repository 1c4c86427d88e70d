#include "dialogs/values/TextBox.h"

#include "kit/forms/Buttons.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

TextBox::TextBox(const TextQuestion &q, QWidget *owner)
    : QDialog(owner), m_line(new QLineEdit(q.preset, this))
{
    setWindowTitle(q.title);
    auto *const text = new QLabel(q.text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setBuddy(m_line);
    m_line->setObjectName(QStringLiteral("txtAnswer"));
    m_line->setAccessibleName(q.text);
    m_line->setMinimumWidth(m_line->fontMetrics().averageCharWidth() * 40);
    m_line->selectAll();

    auto *const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_line);
    column->addStretch(1);
    column->addWidget(okCancelButtons(*this));
    m_line->setFocus();
}

QString TextBox::answer() const { return m_line->text(); }

} // namespace QV_DOC_CONTROLS
