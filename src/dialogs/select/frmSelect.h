#pragma once

#include "dialogs/select/GridPage.h"
#include "facade/contract/ZOLW_Doc.h"

#include <QDialog>

class QDialogButtonBox;

namespace QV_DOC_CONTROLS {

class clsJs_Layer;
class clsJS_Sid;
class SymbolSide;

/// The modal dialog in which the user picks one resource of a document, or several layers. Made anew for
/// every call; the caller's record is written only when the user confirmed, but what was edited on the way is
/// written at once and stays. An error of the host closes the dialog and reaches the caller.
class frmSelect final : public QDialog {
    Q_OBJECT
public:
    frmSelect();
    ~frmSelect() override;

    /// True when the user confirmed: `lay` then is the chosen layer and the document's current one. `lay`
    /// also says which layer is current at first. `owner` null = the active window.
    bool bDoSelect_Lay(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLay &lay, QWidget *owner);
    /// True when the user confirmed: `layers` then are the selected ones, in grid order. They also say which
    /// layers are selected at first, the first of them being current. The document's current layer stays.
    bool bDoSelect_LayArr(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLayArr &layers, QWidget *owner);

    /// True when the user confirmed: `symbol` then is the chosen one. It also says which one is current at
    /// first.
    bool bDoSelect_Sid(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tSid &symbol, QWidget *owner);

    bool WarnInvisibleCurrentLayer() const { return m_warnInvisible; }
    void setWarnInvisibleCurrentLayer(bool on) { m_warnInvisible = on; } ///< only for a single layer
    qint32 lDebugId() const { return m_identity; }
    void TearDown(); ///< drops the manager and the document; may be repeated
    void ml_RuntimeSupport_LanguageChanged();           // published spelling

    void jsLayer_CurrentChanced(ZolWDoc::tLay &lay);    // published spelling
    void jsLayer_SelectedChanched(qint32 &count, const ZolWDoc::tLay &lay); // published spelling

    void jsLayer_GroupChanged(bool &bIsGrouped);
    void jsLayer_GridView(qint16 &js_View);

    void jsSid_CurrentChanced(ZolWDoc::tSid &symbol);   // published spelling
    void jsSid_GroupChanged(bool &bIsGrouped);
    void jsSid_GridView(qint16 &js_View);
    void jsSid_FillSample(qint32 &count, std::vector<ZolWDoc::tSid> &symbols);
    void jsSid_RefreshSample(const ZolWDoc::tSid &symbol);

    clsJs_Layer *jsLayer = nullptr;                     ///< the page's, while the dialog selects layers
    clsJS_Sid *jsSid = nullptr;                         ///< the page's, while the dialog selects a symbol

    void accept() override;
    void reject() override;

private:
    void buildFrame(int mode, QWidget *owner);
    void openLayers(ZolWDoc::ZOLW_Doc &doc, bool single);
    void openSymbols(ZolWDoc::ZOLW_Doc &doc);
    void confirmLayer();
    void confirmLayers();
    void confirmSymbol();
    bool run();                                         ///< modal; true = confirmed; throws the host's error
    bool isBusy() const;                                ///< tells the user to wait

    DebugIdentity m_identity{"frmSelect"};
    ErrorRelay m_relay;
    GridPage *m_page = nullptr;                         ///< of the mode
    QDialogButtonBox *m_buttons;
    int m_mode = 0;
    void (frmSelect::*m_confirm)() = nullptr;           ///< what OK does in the mode
    bool m_warnInvisible = false;
    bool m_ok = false;                                  ///< set by a confirmation that succeeded
    ZolWDoc::tLay m_lay;                                ///< working record
    ZolWDoc::tLayArr m_layers;                          ///< working array
    ZolWDoc::tSid m_symbol;                             ///< working record
    SymbolSide *m_side = nullptr;                       ///< the page's, while the dialog selects a symbol
};

} // namespace QV_DOC_CONTROLS
