#include "controls/usInputBox.h"

#include "controls/DesignMode.h"
#include "controls/input/InputCombo.h"
#include "facade/services/Text.h"
#include "kit/forms/PropertyBag.h"

#include <QEvent>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace QV_DOC_CONTROLS {
namespace {

// The alignment is read twice, the second time counts; published so.
constexpr BagRow kBag[] = {
    {"BackColor", "Backcolor", kWindowBackground},
    {"ForeColor", "ForeColor", kWindowText},
    {"Enabled", "Enabled", true},
    {"Font", "Font", ContainerFont{}},
    {"BorderStyle", "BorderStyle", 0},
    {"BeforeStringAlign", "BeforeStringAlign", 0},
    {"BeforeString", "BeforeString", u"Value ="},
    {"BeforeStringAlign", "BeforeStringAlign", 0},
    {"InputType", "InputType", 0},
    {"Value", "Value", u"0"},
    {"Min", "Min", 0.0},
    {"Max", "Max", 2147483647.0},
    {"FormatString", "FormatString", u"0"},
    {"WidthBeforeString", "WidthBeforeString", 1200},
    {"AfterString", "AfterString", Text{2820, u"mm"}},
    {"InfoMode", "InfoMode", false},
    {"UpDownInc", "UpDownInc", 0.0},
    {"UpDownVisible", "UpDownVisible", false},
    {"WidthValue", "WidthValue", 1200},
    {"WidthAfterString", "WidthAfterString", 300},
    {"TimerInterval", "TimerInterval", 50},
    {"SetFocusNextTabIndex", "SetFocusNextTabIndex", -1},
    {"SetFucusBackTabIndex", "SetFucusBackTabIndex", -1}, // published spelling
    {"AutoSelect", "AutoSelect", true},
    {"LenMax", "LenMax", 20},
    {"ReadsLocale", "ReadsLocale", false},
    {"ErrorsInPlace", "ErrorsInPlace", false},
};

int shortOf(int value) { return std::clamp<int>(value, -32768, 32767); }

} // namespace

QVariantMap usInputBox::propertyBag() const { return bagOf(*this, kBag); }

void usInputBox::setPropertyBag(const QVariantMap &bag)
{
    m_loading = true;
    readBag(*this, kBag, bag);
    m_loading = false;
    if (m_polished && !isDesigned(*this)) settle();
    refresh();
}

bool usInputBox::isLoading() const { return m_loading || !m_polished || isDesigned(*this); }

QString usInputBox::valueText() const
{
    if (m_input->isText() || m_value.typeId() == QMetaType::QString) return m_value.toString();
    return QString::number(number(), 'g', QLocale::FloatingPointShortest);
}

void usInputBox::loadValue(const QString &value)
{
    if (!isLoading()) return setValue(value);
    m_value = value;
    m_raw = true;
    showValue();
}

void usInputBox::loadMin(double min)
{
    if (!isLoading()) return setMin(min);
    m_input->min = std::isnan(min) ? 0 : min;
    m_raw = true;
    refresh();
}

void usInputBox::loadMax(double max)
{
    if (!isLoading()) return setMax(max);
    m_input->max = std::isnan(max) ? 0 : max;
    m_raw = true;
    refresh();
}

void usInputBox::settle()
{
    if (!std::exchange(m_raw, false)) return;
    if (m_input->min > m_input->max) std::swap(m_input->min, m_input->max);
    settleValue();
}

void usInputBox::settleValue()
{
    if (m_input->isText()) m_value = m_value.toString().left(std::max(0, m_input->lenMax));
    else if (m_input->min <= m_input->max) m_value = std::clamp(number(), m_input->min, m_input->max);
    refresh();
}

QVariant usInputBox::Value() const
{
    return m_input->isText() ? QVariant(valueText()) : QVariant(number());
}

double usInputBox::Min() const { return m_input->min; }
double usInputBox::Max() const { return m_input->max; }

void usInputBox::setMin(double min)
{
    if (const Refusal refusal = refusedMin(*m_input, min, number())) return prompts().tell(*refusal, this);
    m_input->min = min;
    refresh();
}

void usInputBox::setMax(double max)
{
    if (const Refusal refusal = refusedMax(*m_input, max, number())) return prompts().tell(*refusal, this);
    m_input->max = max;
    refresh();
}

QString usInputBox::FormatString() const { return m_input->format; }
void usInputBox::setFormatString(const QString &pattern)
{
    m_input->format = pattern;
    refresh();
}

int usInputBox::InputType() const { return m_input->type; }
void usInputBox::setInputType(int type)
{
    m_input->type = shortOf(type);
    box().lineEdit()->setInputMethodHints(m_input->isText() ? Qt::ImhNone : Qt::ImhFormattedNumbersOnly);
    if (isLoading()) showValue();
    else settleValue();
}

int usInputBox::LenMax() const { return m_input->lenMax; }
void usInputBox::setLenMax(int length)
{
    m_input->lenMax = shortOf(length);
    m_raw |= isLoading();
    refresh();
}

bool usInputBox::ReadsLocale() const { return m_input->readsLocale; }
void usInputBox::setReadsLocale(bool on) { m_input->readsLocale = on; }

double usInputBox::UpDownInc() const { return QString::number(std::abs(m_step), 'g', 7).toDouble(); }
void usInputBox::setUpDownInc(double step)
{
    constexpr double most = std::numeric_limits<float>::max();
    const float magnitude = std::isnan(step) ? 0 : float(std::min(std::abs(step), most));
    m_step = std::copysign(magnitude, m_step);  // an arrow that is held goes on its way
}

void usInputBox::setTimerInterval(int ms) { m_timerInterval = shortOf(ms); }
void usInputBox::setSetFocusNextTabIndex(int index) { m_next = shortOf(index); }
void usInputBox::setSetFucusBackTabIndex(int index) { m_back = shortOf(index); } // published spelling

void usInputBox::ml_RuntimeSupport_LanguageChanged()
{
    translateUnit();
    refresh();
}

void usInputBox::changeEvent(QEvent *event)
{
    CaptionedField::changeEvent(event);
    if (event->type() == QEvent::LocaleChange) refresh();
}

bool usInputBox::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !std::exchange(m_polished, true) && !isDesigned(*this)) settle();
    return CaptionedField::event(event);
}

} // namespace QV_DOC_CONTROLS
