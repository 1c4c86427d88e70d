#include "dialogs/values/NumberEntry.h"

#include "controls/usInputBox.h"
#include "rules/NumberWording.h"
#include "facade/services/InterfaceLocale.h"
#include "kit/forms/Twips.h"
#include "kit/forms/WindowSize.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace QV_DOC_CONTROLS {

NumberEntry::NumberEntry(const NumberField &field, QWidget *parent)
    : QWidget(parent), m_field(field), m_box(new usInputBox(this)), m_hint(new QLabel(this))
{
    setFocusProxy(m_box->txtCombo);
    m_hint->setObjectName(QStringLiteral("lblHint"));
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_hint->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing moves when it refuses
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_box);
    column->addWidget(m_hint, 1);
    fill();
    setNumber(field.preset);
    connect(m_box, &usInputBox::TextChecked, this, [this](QString &refusal) {
        refusal = refusalFor(m_box->txtCombo->currentText(), m_field);
        m_hint->setText(refusal.isEmpty() ? allowedIn(m_field) : refusal);
        emit changed();
    });
    connect(m_box, &usInputBox::Change, this, [this] {
        showHint();
        emit changed();
    });
    m_box->txtCombo->installEventFilter(this);
    showHint();
}

void NumberEntry::fill()
{
    m_box->setLocale(interfaceLocale());
    m_box->setReadsLocale(true);
    m_box->setErrorsInPlace(true);
    m_box->setInputType(m_field.decimals > 0 ? 3 : 0);
    m_box->setFormatString(patternOf(m_field.decimals));
    m_box->setWidthBeforeString(0);
    m_box->setWidthValue(twipsOf(sizeOfLetters(*this, 16, 0).width(), *this));
    m_box->setAfterString(m_field.unit);
    if (m_field.unit.isEmpty()) m_box->setWidthAfterString(0);
    m_box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_box->LetValue(std::clamp(m_field.preset, m_field.min, m_field.max), m_field.min, m_field.max);
    for (const double preset : m_field.presets) m_box->ComboValue(preset);
}

std::optional<double> NumberEntry::number() const { return m_box->acceptableNumber(); }

/// A number that cannot be taken is shown all the same, as if it was typed.
void NumberEntry::setNumber(double number)
{
    QLineEdit &line = *m_box->txtCombo->lineEdit();
    if (number >= m_field.min && number <= m_field.max) m_box->LetValue(number);
    else line.setText(textOf(number, m_field.decimals));
    line.selectAll();
}

void NumberEntry::type(const QString &digits)
{
    takeFocus();
    m_box->txtCombo->lineEdit()->insert(digits);
}

void NumberEntry::takeFocus()
{
    focusProxy()->setFocus();
    m_box->txtCombo->lineEdit()->selectAll();
}

void NumberEntry::setCaption(const QString &spoken) { m_box->setBeforeString(spoken); }

void NumberEntry::showHint()
{
    const QString refusal = number() ? QString() : refusalFor(m_box->txtCombo->currentText(), m_field);
    m_hint->setText(refusal.isEmpty() ? allowedIn(m_field) : refusal);
}

bool NumberEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) return event->ignore(), true;
    }
    return QWidget::eventFilter(watched, event);
}

NumberEntry *makeNumberEntry(const NumberField &field, QWidget *parent)
{
    return new NumberEntry(field, parent);
}

} // namespace QV_DOC_CONTROLS
