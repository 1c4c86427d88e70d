#pragma once

#include "facade/services/Prompts.h"

#include <QDialog>

class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A line of text: what is asked, the proposed answer selected, OK and Cancel.
class TextBox final : public QDialog {
    Q_OBJECT
public:
    TextBox(const TextQuestion &, QWidget *owner);
    QString answer() const;
private:
    QLineEdit *m_line;
};

} // namespace QV_DOC_CONTROLS
