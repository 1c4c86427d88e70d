#pragma once

class QDialog;
class QDialogButtonBox;

namespace QV_DOC_CONTROLS {

/// OK and Cancel in the platform's order and the current language, connected to accept() and reject(); the
/// buttons are named cmdOk and cmdCancel. The dialog's own.
QDialogButtonBox *okCancelButtons(QDialog &dialog);
void retranslate(QDialogButtonBox &buttons);    ///< after a language change

} // namespace QV_DOC_CONTROLS
