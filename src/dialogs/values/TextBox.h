#pragma once

#include "dialogs/values/ValueBox.h"
#include "facade/services/Prompts.h"

class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A line of text with the proposed answer selected; offered answers are in its drop-down.
class TextBox final : public ValueBox {
    Q_OBJECT
public:
    TextBox(const TextQuestion &, QWidget *owner);
    QString answer() const;
private:
    QWidget *makeLine(const TextQuestion &);
    QLineEdit *m_line = nullptr;
};

} // namespace QV_DOC_CONTROLS
