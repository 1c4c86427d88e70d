#include "dialogs/values/ChoiceBox.h"

#include "kit/forms/Buttons.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

ChoiceBox::ChoiceBox(const Choice &c, QWidget *owner) : QDialog(owner), m_list(new QListWidget(this))
{
    setWindowTitle(c.title);
    auto *const text = new QLabel(c.text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setBuddy(m_list);
    m_list->addItems(c.items);
    m_list->setCurrentRow(qBound(0, c.preset, int(c.items.size()) - 1));
    m_list->setAccessibleName(c.text);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);

    auto *const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_list);
    column->addWidget(okCancelButtons(*this));
    m_list->setFocus();
}

int ChoiceBox::chosen() const { return m_list->currentRow(); }

} // namespace QV_DOC_CONTROLS
