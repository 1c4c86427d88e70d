#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/contract/enumSetupMode.h"

#include <QObject>
#include <QString>

namespace QV_DOC_CONTROLS {

/// The library's front door: every dialog for picking or editing a resource of a drawing is one call here.
///
/// A call named b... blocks until its dialog is closed and returns true when the user confirmed; a record
/// passed in is the first choice and, on true, the result; on false it is unchanged. An error of the document
/// reaches the caller as the exception that the document threw, with the dialog gone. Nothing is kept between
/// calls but the properties; title and language are shared by all objects of the process.
class clsDocDlgs : public QObject {
    Q_OBJECT
    Q_PROPERTY(
        bool WarnInvisibleCurrentLayer READ WarnInvisibleCurrentLayer WRITE setWarnInvisibleCurrentLayer)
    Q_PROPERTY(QString sAppTitle READ sAppTitle WRITE setsAppTitle)
    Q_PROPERTY(bool AutomaticItemSelection READ AutomaticItemSelection WRITE setAutomaticItemSelection)
public:
    clsDocDlgs();

    bool WarnInvisibleCurrentLayer() const { return m_warnInvisible; }
    void setWarnInvisibleCurrentLayer(bool on)
    {
        m_warnInvisible = on;
    }                  ///< asks before an invisible layer becomes current
    void TearDown() {} ///< does nothing, on purpose; as every class of the library has it
    QString sAppTitle() const;
    void setsAppTitle(const QString &title);            ///< of every message box; "ZOLDocDlgs" when never set

    bool bSelect_Lay(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLay &lay);
    /// Several layers: which are selected at first, and then the chosen ones in the order of the grid. The
    /// document's current layer stays.
    bool bSelect_LayArr(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tLayArr &layers);
    /// The setup dialog on its page of layers. Edits are written at once and stay, whatever is returned.
    bool bEdit_Layers(ZolWDoc::ZOLW_Doc &oDoc);

    bool bSelect_Sid(ZolWDoc::ZOLW_Doc &oDoc, ZolWDoc::tSid &symbol);
    bool bEdit_Sids(ZolWDoc::ZOLW_Doc &oDoc); ///< as bEdit_Layers(), on the page of symbols

    bool AutomaticItemSelection() const { return m_automatic; }
    void setAutomaticItemSelection(bool on) { m_automatic = on; } ///< see frmSetup; for bSetup()
    /// The setup dialog with this object's properties, on page `iType`: 0 layers, 1 text types, 2 line types,
    /// 3 symbols, 4 pen colours, 5 line symbolizations; another number selects no page. The last argument
    /// becomes the property, for later calls too.
    bool bSetupEx(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType, bool AutomaticItemSelection);
    bool bSetup(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType); ///< with the property as it is
    ZolWDoc::DocumentList *oDocList() const { return m_docList; }
    /// The open documents, to which bSetup() can take layer settings over; the host's, null = none.
    void setoDocList(ZolWDoc::DocumentList *list) { m_docList = list; }
    void ml_RuntimeSupport_LanguageChanged() {}         ///< the façade keeps no captions; published spelling

private:
    bool showSetup(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType);
    bool m_warnInvisible = false;
    bool m_automatic = true;
    ZolWDoc::DocumentList *m_docList = nullptr;
};

} // namespace QV_DOC_CONTROLS
