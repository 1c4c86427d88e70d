#include "dialogs/values/NumberEntry.h"

#include "dialogs/values/DropDown.h"
#include "dialogs/values/NumberText.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

NumberEntry::NumberEntry(const NumberField &field, QWidget *parent)
    : QWidget(parent), m_field(field), m_hint(new QLabel(this)), m_sign(new QAction(this))
{
    QWidget *const box = makeLine();
    setFocusProxy(box);
    m_line->setObjectName(QStringLiteral("txtNumber"));
    m_sign->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    m_line->addAction(m_sign, QLineEdit::TrailingPosition);
    m_hint->setObjectName(QStringLiteral("lblHint"));
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_hint->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing moves when it refuses
    auto *const row = new QHBoxLayout;
    row->addWidget(box, 1);
    if (!field.unit.isEmpty()) row->addWidget(new QLabel(field.unit, this));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(row);
    column->addWidget(m_hint, 1);
    setNumber(field.preset);
    connect(m_line, &QLineEdit::textChanged, this, [this] {
        showRefusal();
        emit changed();
    });
    showRefusal();
}

QWidget *NumberEntry::makeLine()
{
    if (m_field.presets.empty()) return m_line = new QLineEdit(this);
    QStringList items;
    for (const double preset : m_field.presets) items << textOf(preset, m_field.decimals);
    QComboBox *const list = dropDown(items, textOf(m_field.preset, m_field.decimals), this);
    m_line = list->lineEdit();
    return list;
}

std::optional<double> NumberEntry::number() const
{
    const bool refused = !refusalFor(m_line->text(), m_field).isEmpty();
    return refused ? std::nullopt : numberOf(m_line->text(), m_field.unit);
}

void NumberEntry::setNumber(double number)
{
    m_line->setText(textOf(number, m_field.decimals));
    m_line->selectAll();
}

void NumberEntry::type(const QString &digits)
{
    takeFocus();
    m_line->insert(digits);
}

void NumberEntry::takeFocus()
{
    focusProxy()->setFocus();
    m_line->selectAll();
}

void NumberEntry::setCaption(const QString &spoken)
{
    focusProxy()->setAccessibleName(spoken);
    m_line->setAccessibleName(spoken);
}

void NumberEntry::showRefusal()
{
    const QString refusal = refusalFor(m_line->text(), m_field);
    const QString hint = refusal.isEmpty() ? allowedIn(m_field) : refusal;
    m_hint->setText(hint);
    m_line->setAccessibleDescription(hint);
    m_sign->setVisible(!refusal.isEmpty());
    m_sign->setToolTip(refusal);
}

NumberEntry *makeNumberEntry(const NumberField &field, QWidget *parent)
{
    return new NumberEntry(field, parent);
}

} // namespace QV_DOC_CONTROLS
