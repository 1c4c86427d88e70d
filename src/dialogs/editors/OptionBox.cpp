#include "dialogs/editors/OptionBox.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

namespace QV_DOC_CONTROLS {

OptionBox::OptionBox(QWidget *parent)
    : QGroupBox(parent), m_options(new QButtonGroup(this)), m_row(new QHBoxLayout(this))
{
    m_row->addStretch(1);
    connect(m_options, &QButtonGroup::idClicked, this, &OptionBox::chosen);
}

void OptionBox::setChoices(const QStringList &captions)
{
    for (int i = int(m_options->buttons().size()); i < captions.size(); ++i) {
        auto *const option = new QRadioButton(this);
        m_options->addButton(option, i);
        m_row->insertWidget(i, option);
        if (i == 0) setFocusProxy(option);
    }
    for (int i = 0; i < captions.size(); ++i) m_options->button(i)->setText(captions[i]);
}

int OptionBox::value() const { return m_options->checkedId(); }

void OptionBox::setValue(int value)
{
    QAbstractButton *const wanted = m_options->button(value);
    m_options->setExclusive(false); // or none could be on
    for (QAbstractButton *option : m_options->buttons()) option->setChecked(option == wanted);
    m_options->setExclusive(true);
}

} // namespace QV_DOC_CONTROLS
