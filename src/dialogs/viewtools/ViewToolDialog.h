#pragma once

#include "facade/services/Trace.h"

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

namespace QV_DOC_CONTROLS {

/// What the view tools share: made for one call, modal over its owner, closed by OK or Cancel, in the
/// language of the moment. Nothing is written before the user confirmed.
class ViewToolDialog : public QDialog {
    Q_OBJECT
public:
    qint32 lDebugId() const { return m_identity; }
    virtual void TearDown() = 0;                ///< lets go of what the call was made for; may be repeated
    void ml_RuntimeSupport_LanguageChanged();   // published spelling

protected:
    ViewToolDialog(const char *form, QWidget *owner); ///< `owner` null = the active window
    bool run();                                 ///< modal; true = confirmed
    virtual void readCaptions() = 0;            ///< in the current language; buttons apart
    QDialogButtonBox *buttons() const { return m_buttons; }

private:
    DebugIdentity m_identity;
    QDialogButtonBox *m_buttons;

public:
    QPushButton *const cmdOk;                   // published names
    QPushButton *const cmdCancel;
};

} // namespace QV_DOC_CONTROLS
