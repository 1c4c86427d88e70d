#include "dialogs/values/NumberBox.h"

#include "dialogs/values/NumberEntry.h"
#include "kit/forms/AccessKeys.h"
#include "kit/forms/Buttons.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace QV_DOC_CONTROLS {

NumberBox::NumberBox(const NumberQuestion &q, QWidget *owner) : QDialog(owner)
{
    setWindowTitle(q.title);
    auto *const text = new QLabel(q.text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    QStringList labels;
    for (const NumberField &field : q.fields) labels << field.label;
    labels = withAccessKeys(labels);
    auto *const buttons = okCancelButtons(*this);
    auto *const form = new QFormLayout;
    for (const NumberField &field : q.fields) {
        auto *const entry = makeNumberEntry(field, this);
        entry->setCaption(field.label);
        form->addRow(labels[qsizetype(m_entries.size())], entry);
        m_entries.push_back(entry);
        connect(entry, &NumberEntry::changed, this,
                [this, buttons] { buttons->button(QDialogButtonBox::Ok)->setEnabled(!refused()); });
    }
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!refused());
    auto *const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addLayout(form);
    column->addStretch(1);
    column->addWidget(buttons);
    if (!m_entries.empty()) m_entries.front()->setFocus();
}

std::vector<double> NumberBox::numbers() const
{
    std::vector<double> out;
    for (const NumberEntry *entry : m_entries) out.push_back(entry->number().value_or(0));
    return out;
}

NumberEntry *NumberBox::refused() const
{
    const auto found = std::ranges::find_if(m_entries, [](const NumberEntry *e) { return !e->number(); });
    return found == m_entries.end() ? nullptr : *found;
}

void NumberBox::accept()
{
    NumberEntry *const entry = refused();
    if (!entry) return QDialog::accept();
    entry->setFocus();
    entry->line().selectAll();
}

} // namespace QV_DOC_CONTROLS
