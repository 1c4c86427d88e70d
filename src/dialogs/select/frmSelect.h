#pragma once

#include "dialogs/select/GridPage.h"
#include "facade/contract/ZOLW_Doc.h"

#include <QDialog>

class QDialogButtonBox;

namespace QV_DOC_CONTROLS {

class clsJs_Layer;

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

    bool WarnInvisibleCurrentLayer() const { return m_warnInvisible; }
    void setWarnInvisibleCurrentLayer(bool on) { m_warnInvisible = on; } ///< only for a single layer
    qint32 lDebugId() const { return m_identity; }
    void TearDown(); ///< drops the manager and the document; may be repeated
    void ml_RuntimeSupport_LanguageChanged();           // published spelling

    void jsLayer_CurrentChanced(ZolWDoc::tLay &lay);    // published spelling
    void jsLayer_SelectedChanched(qint32 &count, const ZolWDoc::tLay &lay); // published spelling

    void jsLayer_GroupChanged(bool &bIsGrouped);
    void jsLayer_GridView(qint16 &js_View);

    clsJs_Layer *jsLayer = nullptr;                     ///< the page's, while the dialog selects layers

    void accept() override;
    void reject() override;

private:
    void buildFrame(int mode, QWidget *owner);
    void openLayers(ZolWDoc::ZOLW_Doc &doc, bool single);
    void confirmLayer();
    void confirmLayers();
    bool run();                                         ///< modal; true = confirmed; throws the host's error
    bool isBusy() const;                                ///< tells the user to wait

    DebugIdentity m_identity{"frmSelect"};
    ErrorRelay m_relay;
    GridPage *m_page = nullptr;                         ///< of the mode
    QDialogButtonBox *m_buttons;
    int m_mode = 0;
    bool m_many = false;                                ///< several layers are picked
    bool m_warnInvisible = false;
    bool m_ok = false;                                  ///< set by a confirmation that succeeded
    ZolWDoc::tLay m_lay;                                ///< working record
    ZolWDoc::tLayArr m_layers;                          ///< working array
};

} // namespace QV_DOC_CONTROLS
