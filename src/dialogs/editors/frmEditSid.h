#pragma once

#include "dialogs/editors/RecordFields.h"
#include "facade/contract/ZOLW_Doc.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/ModalForm.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QVBoxLayout;

namespace QV_DOC_CONTROLS {

class OptionBox;
class ZOL3_LayInfo;
class usInputBox;
class usSiInfo;
class usTxAlign;

/// The form in which one symbol is edited, with a preview that follows every change. Works on a copy and
/// writes nothing; a value that the user leaves alone stays as it is, also where it is shown rounded.
///
/// Made for one call: Init(), edit(), GetSid().
class frmEditSid final : public ModalForm {
    Q_OBJECT
    ErrorRelay m_relay; // before the controls, which are made with them
    RecordFields<ZolWDoc::tSid> m_fields;

public:
    explicit frmEditSid(QWidget *owner = nullptr);
    ~frmEditSid() override { TearDown(); }

    /// `doc` supplies layers, names and vector fonts until TearDown(). Throws the host's error.
    void Init(ZolWDoc::ZOLW_Doc &doc, const ZolWDoc::tSid &record);
    bool edit();                       ///< modal; IsOk(). Throws the host's error
    bool IsOk() const { return m_ok; } ///< closed with cmdOk
    ZolWDoc::tSid GetSid() const { return m_ok ? m_fields.record() : m_before; } ///< the edited record
    void TearDown() override;
    void accept() override; ///< not with a value that is refused, or a name that is taken

    // published names
    QLineEdit *const txtShortName, *const txtFullName;
    OptionBox *const optFontType;
    QComboBox *const cboFonts;
    usInputBox *const usNumAscIICode;
    QPushButton *const cmdChooseChar;
    usInputBox *const usNumSize, *const usNumWidth;
    QGroupBox *const fraMove;
    usInputBox *const usNumXMove, *const usNumYMove;
    QGroupBox *const fraAlign;
    usTxAlign *const usTxAlign1;
    QComboBox *const cboProtType;
    usInputBox *const usNumProtParam1, *const usNumProtParam2;
    ZOL3_LayInfo *const usLayInfo1;
    QCheckBox *const chkGrid;
    usSiInfo *const usSiInfo1;
    QPushButton *const cmdNok; ///< Cancel

private:
    void build();
    QVBoxLayout *buildFields();
    void buildFont(QVBoxLayout &column);
    void buildPlace(QVBoxLayout &column);
    void buildMarker(QVBoxLayout &column);
    void connectParts();
    void changed(const char *control);
    void fontTypeChanged();
    void followFace();
    void fillFaces();
    void enableByFont();
    void resetMarker();
    void describeMarker();
    void chooseCharacter();
    bool isNameFree();
    void showSymbol();
    void readCaptions() override;

    ZolWDoc::ZOLW_Doc *m_doc = nullptr; ///< the host's, until TearDown()
    ZolWDoc::tSid m_before;
    qint32 m_charSet = 0; ///< what the symbol was given or its user chose; a face may lack it
    QGroupBox *m_marker;
    bool m_ok = false;
};

} // namespace QV_DOC_CONTROLS
