#pragma once

#include "rules/NumberInput.h"

#include <QComboBox>

#include <functional>

namespace QV_DOC_CONTROLS {

class TypingFilter;

/// A line for one value, with a list behind it as soon as there is something in it. Whatever way text gets in
/// (keys, paste, drop, input methods), it passes the same filter.
class InputCombo final : public QComboBox {
    Q_OBJECT
public:
    InputCombo(const NumberInput &input, QWidget *parent); ///< `input` outlives the box
    void showText(const QString &text);         ///< the user has not touched it from now on
    void forgetTyping();                        ///< the text is taken and will be shown anew
    bool touched() const;                       ///< by the user or by hand of a program, since it was shown
    TypingPlace place() const;                  ///< where the next key goes
    void type(const QString &text);             ///< as if typed; no longer filtered
    void addChoice(const QString &text, const QVariant &value); ///< leaves the text as it is
    void setMarked(const QString &refusal);     ///< a sign that the text cannot be taken, and why; or none
    bool isMarked() const;
    const NumberInput &input() const { return m_input; }
    std::function<bool()> stepsByWheel;
    double number = 0, step = 0;                ///< for screen readers: what is stored, and its step
signals:
    void edited();                              ///< the text is another, whoever changed it but showText()
    void chosen(const QVariant &value);         ///< from the list
    void entered();
    void wheelStepped(bool up);
protected:
    void focusInEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
private:
    template <class Change> void showing(Change change);
    void arrangeLine();
    const NumberInput &m_input;
    TypingFilter *m_filter;
    QAction *m_mark;
    int m_turned = 0;                           ///< of the wheel, in eighths of a degree, short of a step
    bool m_touched = false, m_showing = false, m_enteredByMouse = false;
};

} // namespace QV_DOC_CONTROLS
