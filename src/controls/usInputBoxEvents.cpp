#include "controls/usInputBox.h"

#include "controls/input/StepArrows.h"
#include "controls/input/InputCombo.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/KeyCodes.h"
#include "kit/forms/TabIndex.h"
#include "kit/forms/Twips.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kFirstDelay = 500;                ///< ms until an arrow that is held repeats

/// What a key types: characters, Enter or Backspace; nothing for shortcuts and keys that move.
QString charactersOf(const QKeyEvent &event)
{
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return QString(QChar(kEnter));
    const Qt::KeyboardModifiers held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (key == Qt::Key_Backspace) return held ? QString() : QString(QChar(kBackspace));
    const QString text = event.text();
    const bool typed = held != Qt::ControlModifier && std::ranges::all_of(text, [](QChar c) {
        return c.isPrint() || c.isSurrogate();
    });
    return typed ? text : QString();
}

/// A single precision step as one reads it: 0.1 and not 0.10000000149.
double plain(float step) { return QString::number(double(step), 'g', 7).toDouble(); }
/// The same for their sum, as far as digits that one reads can tell neighbours apart.
double sum(double value, float step)
{
    const double exact = value + plain(step);
    return std::abs(exact) < 1e15 ? QString::number(exact, 'g', 15).toDouble() : exact;
}

} // namespace

bool usInputBox::eventFilter(QObject *watched, QEvent *event)
{
    const Alive alive(this);
    bool consumed = false;
    ErrorRelay &user = ErrorRelay::reporting();
    switch (event->type()) {
    case QEvent::KeyPress:
        if (watched != txtCombo) break;
        return !user.guard([&] { consumed = keyPressed(static_cast<QKeyEvent &>(*event)); }) || consumed;
    case QEvent::KeyRelease: {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (watched != txtCombo || key.isAutoRepeat()) break;
        user.guard([&] {
            qint16 code = keyCodeOf(key);
            emit KeyUp(code, shiftOf(key.modifiers()));
        });
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (watched != txtCombo)
            user.guard([&] { raiseMouse(watched, static_cast<QMouseEvent &>(*event)); });
        break;
    default: break;
    }
    return !alive;
}

bool usInputBox::keyPressed(QKeyEvent &event)
{
    const Alive alive(this);
    const qint16 pressed = keyCodeOf(event);
    qint16 code = pressed;
    emit KeyDown(code, shiftOf(event.modifiers()));
    if (!alive || (code == 0 && pressed != 0)) return true;
    m_lastKeyCode = code;
    const bool typed = charactersTyped(event);
    return !alive || navigated(code, event.modifiers()) || typed;
}

/// False when the box is to see the key as well.
bool usInputBox::charactersTyped(const QKeyEvent &event)
{
    const Alive alive(this);
    const QString keys = charactersOf(event);
    QString typed;
    for (const QChar pressed : keys) {
        auto ascii = qint16(pressed.unicode());
        emit KeyPress(ascii);
        if (!alive) return true;
        const QChar key(static_cast<char16_t>(ascii));
        if (key == QChar(kEnter)) enterTyped();
        else if (key == QChar(kBackspace) && key == pressed) return false;
        else if (key == QChar(kBackspace)) box().lineEdit()->backspace();
        else if (!key.isNull()) characterTyped(key, typed);
        if (!alive) return true;
    }
    if (!typed.isEmpty()) box().type(typed);
    return !keys.isEmpty();
}

void usInputBox::characterTyped(QChar key, QString &typed)
{
    TypingPlace at = box().place();
    at.before += typed;
    if (const auto passed = keyTyped(*m_input, at, key, m_lastKeyCode)) typed += *passed;
    else prompts().alert();
}

bool usInputBox::navigated(int keyCode, Qt::KeyboardModifiers modifiers)
{
    const bool back = keyCode == kUp;
    if (!back && keyCode != kDown && keyCode != kEnter) return false;
    if (modifiers & Qt::AltModifier && keyCode != kEnter) return false; // opens and closes the list
    const int index = back ? m_back : m_next;
    const bool steps = UpDownVisible() && keyCode != kEnter && (index < 0 || modifiers & Qt::ControlModifier);
    if (steps) return stepOnce(back), true;
    if (QWidget *const to = siblingAt(*this, index))
        to->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    return keyCode == kEnter || index >= 0;
}

void usInputBox::raiseMouse(QObject *watched, QMouseEvent &event)
{
    const QPointF at = static_cast<QWidget *>(watched)->mapTo(this, event.position());
    const double x = at.x() * 1440.0 / logicalDpiX(), y = at.y() * 1440.0 / logicalDpiY();
    const qint16 button = buttonsOf(event.button()), shift = shiftOf(event.modifiers());
    switch (event.type()) {
    case QEvent::MouseButtonPress: m_pressed = true; return emit MouseDown(button, shift, x, y);
    case QEvent::MouseMove: return emit MouseMove(buttonsOf(event.buttons()), shift, x, y);
    case QEvent::MouseButtonDblClick: return emit DblClick();
    default: break;
    }
    const bool inside = static_cast<QWidget *>(watched)->rect().contains(event.position().toPoint());
    const bool clicked =
        std::exchange(m_pressed, false) && button == 1 && inside; // no second time after DblClick
    const Alive alive(this);
    emit MouseUp(button, shift, x, y);
    if (alive && clicked) emit Click();
}

void usInputBox::entered()
{
    if (m_autoSelect) box().lineEdit()->selectAll();
    else box().lineEdit()->end(false);
}

void usInputBox::startSteps(bool up)
{
    if (!enterTyped() || m_input->isText()) return;
    if (!static_cast<StepArrows *>(UpDown1)->isDown()) return; // let go while a handler of Change was busy
    m_step = up ? std::abs(m_step) : -std::abs(m_step);
    if (m_timerInterval > 0) Timer1->start(kFirstDelay);
    step();
}

void usInputBox::endSteps()
{
    Timer1->stop();
    m_step = std::abs(m_step);
}

void usInputBox::repeat()
{
    if (m_timerInterval <= 0) return Timer1->stop();
    Timer1->setInterval(m_timerInterval);
    step();
}

/// At a bound the value changes without an event, on purpose.
void usInputBox::step()
{
    const double next = sum(number(), m_step);
    const bool up = !(m_step < 0);
    if (up ? next > m_input->max : next < m_input->min) {
        Timer1->stop();
        m_value = up ? m_input->max : m_input->min;
        return showValue();
    }
    const Alive alive(this);
    m_value = next;
    showValue();
    raiseChange();
    if (alive) showValue();
}

void usInputBox::stepOnce(bool up)
{
    if (!enterTyped() || m_input->isText()) return;
    const Alive alive(this);
    m_step = up ? std::abs(m_step) : -std::abs(m_step);
    step();
    if (alive) m_step = std::abs(m_step);
}

} // namespace QV_DOC_CONTROLS
