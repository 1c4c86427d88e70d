#pragma once

#include "dialogs/select/GridPage.h"
#include "facade/contract/ZOLW_Doc.h"
#include "kit/forms/WindowSize.h"

#include <QDialog>

#include <array>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace QV_DOC_CONTROLS {

class clsJs_Layer;
class clsJS_Sid;
class SymbolSide;

/// The modal dialog in which the user edits the resources of a document, a page for each table. Made anew for
/// every call. Every edit is written at once and stays, also when the user cancels. An error of the host
/// closes the dialog and reaches the caller.
///
/// A layer becomes the document's current one by a double click or Ctrl+Enter on its row, and by nothing
/// else.
class frmSetup final : public QDialog {
    Q_OBJECT
public:
    frmSetup();
    ~frmSetup() override;

    bool WarnInvisibleCurrentLayer() const { return m_warnInvisible; }
    void setWarnInvisibleCurrentLayer(bool on) { m_warnInvisible = on; }
    qint32 lDebugId() const { return m_identity; }
    ZolWDoc::DocumentList *oDocList() const { return m_docList; }
    void setoDocList(ZolWDoc::DocumentList *list) { m_docList = list; } ///< the host's; null = none
    void TearDown(); ///< drops managers, document and document list; may be repeated

    void jsLayer_CurrentChanced(ZolWDoc::tLay &lay);    // published spelling
    void jsLayer_GroupChanged(bool &bIsGrouped);
    void jsLayer_GridView(qint16 &js_View);

    bool AutomaticItemSelection() const { return m_automatic; }
    void setAutomaticItemSelection(bool on) { m_automatic = on; } ///< the grid goes to the current layer
    /// Shows the page `iType`, 0 to 5 in the order of the table of kinds; another number selects no page.
    /// True = confirmed. `edit` only chooses the name under which the width is kept.
    bool bDoShow(ZolWDoc::ZOLW_Doc &oDoc, qint16 iType, bool edit = false);
    void ml_RuntimeSupport_LanguageChanged();           // published spelling

    void jsSid_CurrentChanced(ZolWDoc::tSid &symbol);   // published spelling
    void jsSid_GroupChanged(bool &bIsGrouped);
    void jsSid_GridView(qint16 &js_View);
    void jsSid_FillSample(qint32 &count, std::vector<ZolWDoc::tSid> &symbols);
    void jsSid_RefreshSample(const ZolWDoc::tSid &symbol);

    clsJS_Sid *jsSid = nullptr;                         ///< its page's, once that was shown
    clsJs_Layer *jsLayer = nullptr;                     ///< its page's, once that was shown
    QPushButton *const cmdOkAllDocument;                ///< published name

    void accept() override;
    void reject() override;

private:
    using Opener = void (frmSetup::*)(GridPage &);      ///< makes a page's manager and fills its grid
    static const Opener kOpeners[kKinds];
    void build();
    ToolSet::Tables tools();
    void connectTools();
    void selectPage(int page);
    void showPage(int page);
    void openLayers(GridPage &page);
    void openSymbols(GridPage &page);
    void offerAllDocuments();
    void confirmInAllDocuments();
    void makeCurrent();
    bool canMakeCurrent() const;
    void showCurrentLayer();
    std::vector<bool ZolWDoc::tLay::*> chosenParts() const;
    bool run();                                         ///< modal; true = confirmed; throws the host's error
    bool isBusy() const;                                ///< tells the user to wait
    void keepView();

    DebugIdentity m_identity{"frmSetup"};
    ErrorRelay m_relay;
    std::vector<Tool> m_pageTools;
    ToolSet *m_tools;                                   ///< of the dialog; the pages have their own
    QStackedWidget *m_stack;
    std::array<GridPage *, kKinds> m_pages{};           ///< null until first shown
    SymbolSide *m_side = nullptr;                       ///< the page's of the symbols
    QLabel *m_hint, *m_current;
    QPushButton *m_parts;                               ///< what goes to all documents
    QDialogButtonBox *m_buttons;
    ZolWDoc::ZOLW_Doc *m_doc = nullptr;                 ///< the host's, until TearDown()
    ZolWDoc::DocumentList *m_docList = nullptr;
    SizeKeys m_sizeKeys;
    int m_page = -1;                                    ///< -1 = none is selected
    bool m_warnInvisible = false, m_automatic = true;
    bool m_ok = false;                                  ///< set by a confirmation that succeeded
};

} // namespace QV_DOC_CONTROLS
