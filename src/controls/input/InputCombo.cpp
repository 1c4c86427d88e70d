#include "controls/input/InputCombo.h"

#include "controls/input/TypingFilter.h"
#include "controls/input/InputComboAccessible.h"
#include "facade/services/Prompts.h"

#include <QAccessible>
#include <QAction>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

namespace QV_DOC_CONTROLS {

InputCombo::InputCombo(const NumberInput &input, QWidget *parent)
    : QComboBox(parent), m_input(input), m_filter(new TypingFilter(input, this)), m_mark(nullptr)
{
    static const bool readable = (QAccessible::installFactory(makeInputComboAccessible), true);
    Q_UNUSED(readable);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setFocusPolicy(Qt::StrongFocus);            // not by the wheel
    setValidator(m_filter);
    QLineEdit &line = *lineEdit();
    m_mark = line.addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    m_mark->setVisible(false);
    line.installEventFilter(this);
    connect(&line, &QLineEdit::textEdited, this, [this, &line] {
        m_touched = line.isUndoAvailable() || line.text() != m_filter->shown(); // all undone: as it was
        if (m_filter->takeDropped()) prompts().alert();
    });
    connect(&line, &QLineEdit::textChanged, this, [this] { if (!m_showing) emit edited(); });
    connect(this, &QComboBox::activated, this, [this](int index) { emit chosen(itemData(index)); });
}

/// A change that is neither filtered nor the user's.
template <class Change> void InputCombo::showing(Change change)
{
    const QScopedValueRollback guard(m_showing, true);
    m_filter->passing(change);
    m_filter->takeDropped();
}

void InputCombo::showText(const QString &text)
{
    showing([&] {
        const QSignalBlocker quiet(this);
        // Where the arrow keys start.
        setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        setEditText(text);
    });
    forgetTyping();
}

void InputCombo::forgetTyping()
{
    m_filter->setShown(currentText());
    m_touched = false;
    setMarked({});
}

bool InputCombo::touched() const { return m_touched || currentText() != m_filter->shown(); }

TypingPlace InputCombo::place() const
{
    const QLineEdit &line = *lineEdit();
    const QString text = line.text();
    if (!line.hasSelectedText())
        return {text.left(line.cursorPosition()), text.mid(line.cursorPosition())};
    return {text.left(line.selectionStart()), text.mid(line.selectionEnd())};
}

void InputCombo::type(const QString &text)
{
    m_filter->passing([&] { lineEdit()->insert(text); });
}

void InputCombo::addChoice(const QString &text, const QVariant &value)
{
    const QString before = currentText();
    const int chosen = currentIndex();
    showing([&] {
        const QSignalBlocker quiet(this);
        addItem(text, value);
        setCurrentIndex(chosen);                // the list only offers
        setEditText(before);
    });
}

void InputCombo::setMarked(const QString &refusal)
{
    m_mark->setVisible(!refusal.isEmpty());
    m_mark->setToolTip(refusal);
}

bool InputCombo::isMarked() const { return m_mark->isVisible(); }

void InputCombo::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return; // the user is back
    m_enteredByMouse = reason == Qt::MouseFocusReason;
    emit entered();
}

/// Only the box that the user works in takes the wheel. A wheel that turns finely steps when it has turned
/// far.
void InputCombo::wheelEvent(QWheelEvent *event)
{
    const int turned = event->angleDelta().y();
    const bool steps = stepsByWheel();
    if (!hasFocus() || turned == 0 || (!steps && count() == 0)) return event->ignore();
    if (!steps) return QComboBox::wheelEvent(event);
    event->accept();
    const QPointer<InputCombo> alive(this);
    m_turned += turned;
    int n = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    for (; alive && n != 0; n += n > 0 ? -1 : 1) emit wheelStepped(n > 0);
}

/// A click that brings the focus would put the cursor where it hits; what was selected on entry stays so
/// unless the mouse selects something itself.
bool InputCombo::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(m_enteredByMouse, false)
        && !lineEdit()->hasSelectedText())
        emit entered();
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        arrangeLine(); // the base class lays it out anew after many an event
    return QComboBox::eventFilter(watched, event);
}

/// Without a list there is no arrow to open one: the line takes all the room, with the frame of a plain line.
void InputCombo::arrangeLine()
{
    const bool plain = count() == 0;
    lineEdit()->setFrame(plain);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    lineEdit()->setGeometry(plain ? rect()
                                  : style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                            QStyle::SC_ComboBoxEditField, this));
}

void InputCombo::resizeEvent(QResizeEvent *event)
{
    QComboBox::resizeEvent(event);
    arrangeLine();
}

void InputCombo::showEvent(QShowEvent *event)
{
    QComboBox::showEvent(event);
    arrangeLine();
}

void InputCombo::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) arrangeLine();
}

} // namespace QV_DOC_CONTROLS
