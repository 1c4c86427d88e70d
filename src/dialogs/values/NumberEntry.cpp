#include "dialogs/values/NumberEntry.h"

#include "dialogs/values/NumberText.h"
#include "facade/services/Text.h"
#include "kit/forms/QuietWheel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

NumberEntry::NumberEntry(const NumberField &field, QWidget *parent)
    : QWidget(parent), m_field(field), m_refusal(new QLabel(this))
{
    QWidget *const box = makeBox();
    setFocusProxy(box);
    m_line->setObjectName(QStringLiteral("txtNumber"));
    m_line->setToolTip(join(Text{21605, u"Megengedett: "}, boundsOf(field)));
    m_refusal->setObjectName(QStringLiteral("lblRefusal"));
    m_refusal->setWordWrap(true);
    m_refusal->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_refusal->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing jumps when it speaks
    auto *const row = new QHBoxLayout;
    row->addWidget(box, 1);
    row->addWidget(new QLabel(field.unit, this));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(row);
    column->addWidget(m_refusal);
    setNumber(field.preset);
    connect(m_line, &QLineEdit::textChanged, this, &NumberEntry::follow);
    follow();
}

QWidget *NumberEntry::makeBox()
{
    if (m_field.presets.empty()) return m_line = new QLineEdit(this);
    auto *const list = new QComboBox(this);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    for (const double preset : m_field.presets) list->addItem(textOf(preset, m_field.decimals));
    quietWheel(*list);
    m_line = list->lineEdit();
    return list;
}

std::optional<double> NumberEntry::number() const
{
    return refusalFor(m_line->text(), m_field).isEmpty() ? numberOf(m_line->text(), m_field.unit)
                                                         : std::nullopt;
}

void NumberEntry::setNumber(double number)
{
    m_line->setText(textOf(number, m_field.decimals));
    m_line->selectAll();
}

void NumberEntry::setCaption(const QString &caption)
{
    focusProxy()->setAccessibleName(caption);
    m_line->setAccessibleName(caption);
}

void NumberEntry::follow()
{
    const QString refusal = refusalFor(m_line->text(), m_field);
    m_refusal->setText(refusal);
    m_line->setAccessibleDescription(refusal.isEmpty() ? m_line->toolTip() : refusal);
    emit changed();
}

NumberEntry *makeNumberEntry(const NumberField &field, QWidget *parent)
{
    return new NumberEntry(field, parent);
}

} // namespace QV_DOC_CONTROLS
