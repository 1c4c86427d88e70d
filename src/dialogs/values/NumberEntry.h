#pragma once

#include "facade/services/Prompts.h"

#include <QWidget>

class QLabel;

namespace QV_DOC_CONTROLS {

class usInputBox;

/// A number being typed: the input box with its presets and unit and, below, what is allowed and why the text
/// cannot be taken. What is typed stays as it is until the user changes it. Enter is the dialog's.
class NumberEntry final : public QWidget {
    Q_OBJECT
public:
    NumberEntry(const NumberField &, QWidget *parent);
    std::optional<double> number() const;       ///< empty = refused
    void setNumber(double number);              ///< selected, so that typing replaces it
    void type(const QString &digits);           ///< as if the user had cleared the line and typed them
    void takeFocus();                           ///< with the whole text selected
    void setCaption(const QString &spoken);     ///< for those who hear the box; without an access key

signals:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void showHint();
    NumberField m_field;
    usInputBox *m_box;
    QLabel *m_hint;
};

/// The field that a number is typed into, wherever a prompt asks for one. The parent's own.
NumberEntry *makeNumberEntry(const NumberField &, QWidget *parent);

} // namespace QV_DOC_CONTROLS
