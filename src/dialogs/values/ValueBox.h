#pragma once

#include <QDialog>

class QVBoxLayout;

namespace QV_DOC_CONTROLS {

/// What every box with fields has: a title, the question as plain text, the fields, OK and Cancel. Enter is
/// OK, Esc is Cancel.
class ValueBox : public QDialog {
    Q_OBJECT
protected:
    ValueBox(const QString &title, const QString &text, QWidget *owner);
    QVBoxLayout &fields() const { return *m_fields; }
    void allowOk(bool on);

private:
    QVBoxLayout *m_fields;
};

} // namespace QV_DOC_CONTROLS
