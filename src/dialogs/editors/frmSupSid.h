#pragma once

#include "dialogs/editors/ChangeSpan.h"
#include "dialogs/editors/ItemList.h"
#include "facade/contract/enumSetupMode.h"
#include "facade/services/Trace.h"
#include "grids/grouped/OwnDrag.h"
#include "grids/symbol/SymbolFiles.h"
#include "grids/symbol/SymbolRemoval.h"
#include "kit/forms/WindowSize.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QSplitter;
class QTreeView;

namespace QV_DOC_CONTROLS {

class GroupListModel;
class SymbolListModel;
class SymbolPictures;
class ToolSet;
class usSiInfo;

/// The symbol manager: groups on the left, the symbols of one on the right; one is picked, or all are edited.
/// What is edited is written at once and can be dropped until it is committed, when the document offers that.
/// Made for one call. An error of the host closes it and reaches the caller; what was written stays.
class frmSupSid final : public QDialog, private SymbolDesk {
    Q_OBJECT
public:
    explicit frmSupSid(QWidget *owner = nullptr); ///< null = the active window
    ~frmSupSid() override;

    /// Modal. `SidId`: the symbol that is current at first; on true the one that the user chose. In edit mode
    /// true = the changes were kept. Throws the host's error.
    bool bDoModal(ZolWDoc::ZOLW_Doc &oDoc, enumSetupMode mode, qint16 &SidId);
    /// Asks for a symbol number that is free; false = cancelled. `SidId` is proposed. Throws the host's
    /// error.
    bool bGetSidId(qint16 &SidId);
    void TearDown(); ///< lets go of the document; may be repeated
    qint32 lDebugId() const { return m_identity; }
    void ml_RuntimeSupport_LanguageChanged(); // published spelling

    QTreeView *const lvGroups; // published names
    ItemList *const lvSids;
    usSiInfo *const usSiItem; ///< hidden; draws the pictures of the list

    // --- what the tools do, for the table kSymbolManagerCommands
    void toggleMode();
    void toggleGroups();
    template <ItemList::View V> void showView() { changeView(V); }
    void sortItems();
    void zoomIn();
    void zoomOut();
    template <int step> void resizeCells() { changeCell(step); }
    void addSymbol() { m_edits.addNew(); }
    void addFromFont();
    void editSymbol() { m_edits.edit(); }
    void renumber();
    void renameSymbol() { m_edits.rename(); }
    void setSize() { m_edits.setSize(); }
    void setThickness() { m_edits.setThickness(); }
    void setTrueType() { m_edits.setTrueType(); }
    void setVectorFont() { m_edits.setVectorFont(); }
    void setLayer() { m_edits.setLayer(); }
    void removeSymbols() { m_removal.removeSelected(); }
    void loadSet() { m_files.load(); }
    void saveSet() { m_files.save(); }
    void addGroup() { m_groupWork.addNew(); }
    void renameGroup() { m_groupWork.rename(); }
    void removeGroups();

    // --- and when they can be used
    bool isEditMode() const { return m_edit && m_doc; }
    bool isByGroups() const { return m_byGroups; }
    template <ItemList::View V> bool isView() const { return lvSids->view() == V; }
    template <int step> bool canResizeCells() const { return hasCell(step); }
    bool hasSelected() const { return lvSids->hasSelection(); }
    bool canEditSelected() const { return isEditMode() && hasSelected(); }
    bool canEditCurrent() const { return isEditMode() && lvSids->currentRow() >= 0; }
    bool canEditSymbol() const { return canEditCurrent() && SymbolEdits::canEdit(); }
    bool canRenumber() const;
    bool canPickFont() const;
    bool canSetFont() const { return canPickFont() && hasSelected(); }
    bool canPickLayer() const;
    bool canEditGroup() const;

    void accept() override;
    void reject() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    // --- the desk of the commands
    ZolWDoc::ZOLW_Doc *document() const override { return m_doc; }
    int selectedCount() const override { return int(lvSids->selectedRows().size()); }
    qint16 chosenGroup() const override;
    void write(const QString &command, const std::function<void()> &body) override;
    void refillAfter(const std::function<void()> &body) override;
    bool selectById(qint16 id) override;
    ErrorRelay &relay() const override { return m_relay; }
    QObject *asker() const override { return lvSids; }
    std::vector<ZolWDoc::tSid> selected() const override;
    std::optional<ZolWDoc::tSid> currentRecord() const override;

    void build();
    void buildLists();
    void connectParts();
    void fill();
    void showGroups(const std::vector<ZolWDoc::tSid> &all, const std::vector<ZolWDoc::tGroup> &groups);
    void chooseGroup(int row);
    std::optional<qint16> shownGroup() const;
    void setEditMode(bool on);
    void showMode();
    void settleChanges(); ///< asks whether they stay; drops them or commits
    void changeView(ItemList::View view);
    void changeCell(int step);
    bool hasCell(int step) const;
    void showCell();
    void showHint(int column = -1);
    void popUp(const char *band, QPoint where);
    std::optional<qint16> askForNumber(NumberQuestion question, qint16 own);
    std::vector<qint16> removableGroups(const std::vector<ZolWDoc::tSid> &symbols);
    SizeKeys sizeKeys() const;
    QString columnsKey() const;
    void restoreView();
    void keepView();

    DebugIdentity m_identity{"frmSupSid"};
    mutable ErrorRelay m_relay;
    ZolWDoc::ZOLW_Doc *m_doc = nullptr; ///< the host's, until TearDown()
    std::optional<ChangeSpan> m_span;   ///< while there is a document
    SymbolPictures *m_pictures;
    SymbolListModel *m_symbols;
    GroupListModel *m_groups;
    SymbolGroups m_groupWork{*this};
    SymbolEdits m_edits{*this, m_groupWork};
    SymbolRemoval m_removal;
    SymbolFiles m_files;
    OwnDrag m_drag{SymbolTable::dragToken};
    ToolSet *m_tools;
    QSplitter *m_splitter;
    QLabel *m_hint;
    QDialogButtonBox *m_buttons;
    std::array<int, 4> m_cells{1, 0, 0, 0}; ///< by view: index of the size of its cells
    qint16 m_group = -1;
    std::optional<qint16> m_chosen;
    bool m_toEdit = false;                              ///< was opened to edit
    bool m_edit = false, m_editForbidden = false, m_byGroups = true, m_ok = false;
};

} // namespace QV_DOC_CONTROLS
