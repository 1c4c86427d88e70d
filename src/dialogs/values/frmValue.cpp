#include "dialogs/values/frmValue.h"

#include "dialogs/values/NumberEntry.h"
#include "kit/forms/AccessKeys.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace QV_DOC_CONTROLS {

frmValue::frmValue(const NumberQuestion &q, QWidget *owner) : ValueBox(q.title, q.text, owner)
{
    auto *const form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fields().addLayout(form);
    fields().addStretch(1);
    QStringList captions;
    for (const NumberField &field : q.fields) captions << field.label;
    captions = withAccessKeys(captions);
    for (const NumberField &field : q.fields) {
        auto *const label = new QLabel(captions[qsizetype(m_entries.size())], this);
        auto *const entry = m_entries.emplace_back(makeNumberEntry(field, this));
        entry->setCaption(field.label);
        label->setBuddy(entry->focusProxy());
        form->addRow(label, entry);
    }
    m_entries.front()->takeFocus();
}

std::vector<double> frmValue::numbers() const
{
    std::vector<double> out;
    for (const NumberEntry *entry : m_entries) out.push_back(entry->number().value_or(0));
    return out;
}

void frmValue::accept()
{
    const auto refused = std::ranges::find_if(m_entries, [](const NumberEntry *e) { return !e->number(); });
    if (refused == m_entries.end()) QDialog::accept();
    else (*refused)->takeFocus();
}

} // namespace QV_DOC_CONTROLS
