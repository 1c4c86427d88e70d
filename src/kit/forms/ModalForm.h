#pragma once

#include "facade/services/Trace.h"

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// What forms made for one call share: modal over their owner, closed by OK or Cancel, as large as their user
/// left them, in the language of the moment. Nothing is written before the user confirmed.
class ModalForm : public QDialog {
    Q_OBJECT
public:
    qint32 lDebugId() const { return m_identity; }
    virtual void TearDown() = 0;                ///< lets go of what the call was made for; may be repeated
    void ml_RuntimeSupport_LanguageChanged();   // published spelling

protected:
    ModalForm(const char *form, QWidget *owner); ///< `owner` null = the active window
    /// Modal; true = confirmed. A form that can reach the host runs in its relay, which throws what it kept.
    bool run(ErrorRelay *relay = nullptr);
    virtual void readCaptions() = 0;            ///< in the current language; buttons apart
    QDialogButtonBox *buttons() const { return m_buttons; }

private:
    void putButtonsLast();
    DebugIdentity m_identity;
    QDialogButtonBox *m_buttons;

public:
    QPushButton *const cmdOk;                   // published names
    QPushButton *const cmdCancel;
};

} // namespace QV_DOC_CONTROLS
