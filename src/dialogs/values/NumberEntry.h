#pragma once

#include "facade/services/Prompts.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A number being typed: the line, its drop-down of presets, its unit and, below, why the text cannot be
/// taken. What is typed stays as it is until the user changes it.
class NumberEntry : public QWidget {
    Q_OBJECT
public:
    NumberEntry(const NumberField &, QWidget *parent);
    std::optional<double> number() const;       ///< empty = refused
    void setNumber(double number);
    QLineEdit &line() const { return *m_line; }
    void setCaption(const QString &caption);    ///< read out; without an access key

signals:
    void changed();

private:
    QWidget *makeBox();
    void follow();
    NumberField m_field;
    QLineEdit *m_line = nullptr;
    QLabel *m_refusal;
};

/// The field that a number is typed into, wherever a prompt asks for one.
NumberEntry *makeNumberEntry(const NumberField &, QWidget *parent);

} // namespace QV_DOC_CONTROLS
