#include "controls/usInputBox.h"

#include "controls/input/StepArrows.h"
#include "controls/input/InputCombo.h"
#include "facade/services/Language.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/LeavingCheck.h"
#include "rules/NumberText.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

template <class Child> Child *named(Child *child, const char *name)
{
    child->setObjectName(QLatin1String(name));
    return child;
}

bool isText(const QVariant &value) { return value.typeId() == QMetaType::QString; }

/// Not a number when the value is none.
double numberOf(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? number : std::nan("");
}

std::optional<double> bound(const NumberInput &input, const QVariant &value)
{
    if (isText(value) && input.readsLocale) return numberMeant(value.toString(), input.format, input.locale);
    if (isText(value) && !isNumeric(value.toString(), input.locale)) return {};
    const double number = isText(value) ? leadingNumber(value.toString()) : numberOf(value);
    return std::isnan(number) ? std::nullopt : std::optional(number);
}

} // namespace

usInputBox::usInputBox(QWidget *parent)
    : CaptionedField(parent), m_input(std::make_unique<NumberInput>()),
      txtCombo(named(new InputCombo(*m_input, this), "txtCombo")),
      UpDown1(named(new StepArrows(this), "UpDown1")), Timer1(named(new QTimer(this), "Timer1"))
{
    m_input->locale = locale();
    surround(txtCombo, UpDown1);
    box().stepsByWheel = [this] { return UpDownVisible(); };
    const std::initializer_list<QObject *> watched{this, txtCombo, box().lineEdit(), picValue};
    for (QObject *const child : watched) child->installEventFilter(this);
    const auto user = [this](auto member) {     // what the user does must not throw through the event loop
        return [this, member](const auto &...given) {
            ErrorRelay::reporting().guard([&] { (this->*member)(given...); });
        };
    };
    connect(&box(), &InputCombo::edited, this, &usInputBox::checkTyped);
    connect(&box(), &InputCombo::entered, this, &usInputBox::entered);
    connect(&box(), &InputCombo::chosen, this, user(&usInputBox::enter));
    connect(&box(), &InputCombo::wheelStepped, this, user(&usInputBox::stepOnce));
    connect(static_cast<StepArrows *>(UpDown1), &StepArrows::pressed, this, user(&usInputBox::startSteps));
    connect(static_cast<StepArrows *>(UpDown1), &StepArrows::released, this, &usInputBox::endSteps);
    connect(Timer1, &QTimer::timeout, this,
            [this] { ErrorRelay::reporting().guard([this] { repeat(); }); });
    m_leaving = std::make_unique<LeavingCheck>(*txtCombo, [this] { return leave(); });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &usInputBox::ml_RuntimeSupport_LanguageChanged);
    showValue();
}

usInputBox::~usInputBox() = default;

InputCombo &usInputBox::box() const { return *static_cast<InputCombo *>(txtCombo); }

bool usInputBox::LetValue(const QVariant &value, const QVariant &min, const QVariant &max)
{
    if (const auto given = bound(*m_input, min)) m_input->min = *given;
    if (const auto given = bound(*m_input, max)) m_input->max = *given;
    return enter(value);
}

bool usInputBox::enter(const QVariant &value)
{
    const auto afterwards = qScopeGuard([alive = Alive(this)] { // in every case, an error of the host too
        if (alive) alive->showValue();
    });
    const Refusal refusal = take(value);
    if (refusal) tell(*refusal);
    return !refusal;
}

usInputBox::Refusal usInputBox::take(const QVariant &value)
{
    m_refusal.clear();
    return m_input->isText() ? takeText(value.toString()) : takeNumber(value);
}

usInputBox::Refusal usInputBox::takeNumber(const QVariant &value)
{
    const CheckedNumber checked = isText(value) ? checkedNumber(*m_input, value.toString())
                                                : checkedNumber(*m_input, numberOf(value));
    if (!checked.value) return checked.refusal;
    const bool differs = *checked.value != number();
    m_value = *checked.value;
    box().forgetTyping();
    if (differs) raiseChange();
    return {};
}

usInputBox::Refusal usInputBox::takeText(const QString &text)
{
    box().showText(text);
    const CheckedText checked = checkedText(*m_input, text);
    m_value = checked.text;
    return checked.refusal;
}

/// The number goes out by reference; another one comes back into the value when the bounds allow it.
void usInputBox::raiseChange()
{
    const Alive alive(this);
    const double told = number();
    double given = told;
    emit Change(given);
    if (alive && given != told && given >= m_input->min && given <= m_input->max) m_value = given;
}

void usInputBox::tell(const Message &refusal)
{
    m_refusal = refusal.text;
    describe();
    QAccessibleEvent alert(txtCombo, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (!m_input->isText()) prompts().alert();
    prompts().tell(refusal, this);
}

bool usInputBox::enterTyped()
{
    const Alive alive(this);
    return !box().touched() || (!staysTyped() && enter(box().currentText()) && alive);
}

LeavingCheck::Tell usInputBox::leave()
{
    if (!box().touched() || staysTyped()) return {};
    const auto afterwards = qScopeGuard([alive = Alive(this)] {
        if (alive) alive->showValue();
    });
    const Refusal refusal = take(box().currentText());
    if (!refusal) return {};
    return [this, refusal = *refusal] {
        if (isVisible()) tell(refusal);
    };
}

void usInputBox::showValue()
{
    const QString text = m_input->isText() ? m_value.toString() : m_input->formatted(number());
    box().number = number();
    box().step = UpDownInc();
    box().showText(text);
    picValue->setText(text);
    describe();
}

void usInputBox::refresh()
{
    m_input->locale = locale();
    if (box().touched()) checkTyped();
    else showValue();
}

void usInputBox::checkTyped()
{
    const QString text = box().currentText();
    m_refusal.clear();
    if (m_input->isText()) {
        const CheckedText checked = checkedText(*m_input, text);
        if (checked.refusal) m_refusal = checked.refusal->text;
    } else {
        m_refusal = checkedNumber(*m_input, text).refusal.text;
    }
    QString refusal = m_refusal;
    ErrorRelay::reporting().guard([&] { emit TextChecked(refusal); });
    if (m_errorsInPlace) m_refusal = refusal;
    box().setMarked(m_refusal);
    describe();
}

std::optional<double> usInputBox::acceptableNumber() const
{
    if (!box().touched()) return number();
    if (box().isMarked()) return {};
    return checkedNumber(*m_input, box().currentText()).value;
}

void usInputBox::ComboValue(const QVariant &item)
{
    const bool shown = isText(item) || m_input->isText() || std::isnan(numberOf(item));
    box().addChoice(shown ? item.toString() : m_input->formatted(item.toDouble()), item);
    arrange();
}

/// Name, range and error for the eye and for a screen reader.
void usInputBox::describe()
{
    const QString hint = rangeHint(*m_input);
    for (QWidget *const shown : std::initializer_list<QWidget *>{txtCombo, box().lineEdit(), picValue}) {
        shown->setToolTip(hint);
        shown->setAccessibleName(spokenName());
        shown->setAccessibleDescription(m_refusal.isEmpty() ? hint : m_refusal);
    }
}

} // namespace QV_DOC_CONTROLS
