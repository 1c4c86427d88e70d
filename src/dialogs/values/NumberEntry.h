#pragma once

#include "facade/services/Prompts.h"

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A number being typed: the line, its drop-down of presets, its unit and, below, what is allowed and why the
/// text cannot be taken. What is typed stays as it is until the user changes it.
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

private:
    QWidget *makeLine();
    void showRefusal();
    NumberField m_field;
    QLineEdit *m_line = nullptr;
    QLabel *m_hint;
    QAction *m_sign;
};

/// The field that a number is typed into, wherever a prompt asks for one. The parent's own.
NumberEntry *makeNumberEntry(const NumberField &, QWidget *parent);

} // namespace QV_DOC_CONTROLS
