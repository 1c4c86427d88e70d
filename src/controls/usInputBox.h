#pragma once

#include "controls/CaptionedField.h"

#include <QPointer>
#include <QTimer>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

class QComboBox;
class QKeyEvent;
class QMouseEvent;

namespace QV_DOC_CONTROLS {

struct Message;
struct NumberInput;
class InputCombo;
class LeavingCheck;

/// One bounded number, or in text mode one short text.
///
/// Keys are filtered; the value is checked against its bounds on Enter and on leaving, shown in a number
/// format pattern of the widget's locale and stepped by arrows. A text that the user has not touched is never
/// read back. What is wrong is told through prompts(); the value before it stays.
///
/// 16-bit and single precision properties are cut to what they hold. What a form or a bag says is kept as it
/// comes and checked when the control is first shown: crossed bounds change places, a value outside goes to
/// the nearest bound, nobody is told. A handler of keys, mouse or Change may delete the control.
///
/// Keys beyond those published, while the arrows are shown: Ctrl+Up and Ctrl+Down step, and so do Up and Down
/// that move no focus. Alt+Down opens the list.
class usInputBox final : public CaptionedField {
    Q_OBJECT
    Q_PROPERTY(QString Value READ valueText WRITE loadValue)
    Q_PROPERTY(double Min READ Min WRITE loadMin)
    Q_PROPERTY(double Max READ Max WRITE loadMax)
    Q_PROPERTY(QString FormatString READ FormatString WRITE setFormatString)
    Q_PROPERTY(int TimerInterval READ TimerInterval WRITE setTimerInterval)
    Q_PROPERTY(int SetFocusNextTabIndex READ SetFocusNextTabIndex WRITE setSetFocusNextTabIndex)
    Q_PROPERTY(int SetFucusBackTabIndex READ SetFucusBackTabIndex WRITE setSetFucusBackTabIndex)
    Q_PROPERTY(int InputType READ InputType WRITE setInputType)
    Q_PROPERTY(bool AutoSelect READ AutoSelect WRITE setAutoSelect)
    Q_PROPERTY(double UpDownInc READ UpDownInc WRITE setUpDownInc)
    Q_PROPERTY(int LenMax READ LenMax WRITE setLenMax)
    Q_PROPERTY(bool ReadsLocale READ ReadsLocale WRITE setReadsLocale)
    Q_PROPERTY(bool ErrorsInPlace READ ErrorsInPlace WRITE setErrorsInPlace)
public:
    explicit usInputBox(QWidget *parent = nullptr);
    ~usInputBox() override;

    QVariant Value() const;                             ///< a double, in text mode a string
    void setValue(const QVariant &value) { LetValue(value); }
    double Min() const;
    void setMin(double min);                            ///< told and refused above Max or the value
    double Max() const;
    void setMax(double max);                            ///< told and refused below Min or the value
    QString FormatString() const;
    void setFormatString(const QString &pattern);       ///< see NumberFormat
    int TimerInterval() const { return m_timerInterval; } ///< ms between steps; 0 or less: one step a press
    void setTimerInterval(int ms);
    /// Tab index of the sibling that Enter and Down go to, -1 = none. It is the sibling's property
    /// "TabIndex", or else its place, from 0, in the tab order of the container.
    int SetFocusNextTabIndex() const { return m_next; }
    void setSetFocusNextTabIndex(int index);
    int SetFucusBackTabIndex() const { return m_back; } // published spelling: where Up goes
    void setSetFucusBackTabIndex(int index);            // published spelling
    int InputType() const;                              ///< 3 decimal number, 4 text, others whole number
    void setInputType(int type);
    bool AutoSelect() const { return m_autoSelect; }    ///< on entry all is selected, else the cursor is last
    void setAutoSelect(bool on) { m_autoSelect = on; }
    double UpDownInc() const;                           ///< step of the arrows
    void setUpDownInc(double step);
    int LenMax() const;                                 ///< a text of that length is already too long
    void setLenMax(int length);
    bool ReadsLocale() const;
    /// Typed numbers are read as a person of the widget's locale writes them. Off, "1,5" is read as 1.
    void setReadsLocale(bool on);
    bool ErrorsInPlace() const { return m_errorsInPlace; }
    /// What cannot be taken stays in the box, marked and described, and nobody is interrupted by a message.
    /// Off, it is told and the value before it comes back.
    void setErrorsInPlace(bool on) { m_errorsInPlace = on; }

    /// New bounds, where they are numeric, without a look at each other; then checks and stores the value.
    /// False = refused and told.
    bool LetValue(const QVariant &value, const QVariant &min = {}, const QVariant &max = {});
    void ComboValue(const QVariant &item);              ///< adds to the list of the value box; text or number
    QVariantMap propertyBag() const;                    ///< by published key, what differs from its default
    void setPropertyBag(const QVariantMap &bag);        ///< what it lacks gets its default
    /// The number in the box as it stands, typed or stored; nothing when it cannot be taken.
    std::optional<double> acceptableNumber() const;
    void ml_RuntimeSupport_LanguageChanged();           // published spelling

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<NumberInput> m_input;               ///< outlives the box that reads it
public:
    QComboBox *const txtCombo;
    QWidget *const UpDown1;
    QTimer *const Timer1;

signals:
    // Places are twips from the control's top left corner.
    void MouseDown(qint16 Button, qint16 Shift, double X, double Y);
    void MouseMove(qint16 Button, qint16 Shift, double X, double Y);
    void MouseUp(qint16 Button, qint16 Shift, double X, double Y);
    void Click();
    void DblClick();
    void KeyDown(qint16 &KeyCode, qint16 Shift);        ///< 0 takes the key away
    void KeyPress(qint16 &KeyAscii);                    ///< a UTF-16 unit; 0 takes the character away
    void KeyUp(qint16 &KeyCode, qint16 Shift);
    void Change(double &NumValue);                      ///< another value in the bounds is taken silently
    /// The text is another. `Refusal` says why it cannot be taken; with ErrorsInPlace a reason of the host's
    /// own, or none, may be put in.
    void TextChecked(QString &Refusal);

protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;

private:
    // For the property system: kept as it comes until the control is first shown.
    QString valueText() const;
    void loadValue(const QString &value);
    void loadMin(double min);
    void loadMax(double max);
    bool isLoading() const;
    void settle();
    void settleValue();

    InputCombo &box() const;
    double number() const { return m_value.toDouble(); }
    using Alive = QPointer<usInputBox>;                 ///< to be asked after every event raised
    using Refusal = std::optional<Message>;
    Refusal take(const QVariant &value);                ///< checks and stores; none = taken
    Refusal takeNumber(const QVariant &value);
    Refusal takeText(const QString &text);
    bool enter(const QVariant &value);                  ///< takes or tells, then shows what is stored
    bool enterTyped();                                  ///< what the user has typed, if anything
    std::function<void()> leave();                      ///< takes it; what is left to tell
    void tell(const Message &refusal);
    void raiseChange();
    void showValue();
    void refresh();                                     ///< the display too, unless the user is typing
    void checkTyped();
    bool staysTyped() const { return m_errorsInPlace && !m_refusal.isEmpty(); }
    void captionsChanged() override { describe(); }
    void describe();

    bool keyPressed(QKeyEvent &event);
    bool charactersTyped(const QKeyEvent &event);
    void characterTyped(QChar key, QString &typed);
    bool navigated(int keyCode, Qt::KeyboardModifiers modifiers);
    void raiseMouse(QObject *watched, QMouseEvent &event);
    void entered();
    void startSteps(bool up);
    void endSteps();
    void repeat();
    void step();
    void stepOnce(bool up);

    std::unique_ptr<LeavingCheck> m_leaving;
    QVariant m_value = 0.0;
    int m_timerInterval = 50, m_next = -1, m_back = -1;
    float m_step = 0;                                   ///< signed while the arrows are pressed
    bool m_autoSelect = true, m_errorsInPlace = false;
    bool m_loading = false, m_polished = false, m_raw = false;
    bool m_pressed = false;                             ///< a release is going to be a click
    QString m_refusal;                                  ///< read out until the user goes on
    int m_lastKeyCode = 0;
};

} // namespace QV_DOC_CONTROLS
