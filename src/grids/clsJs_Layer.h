#pragma once

#include "grids/LayerTable.h"
#include "grids/frame/GroupRows.h"
#include "grids/frame/TableManager.h"
#include "grids/layer/LayerDrag.h"
#include "grids/layer/LayerEdits.h"
#include "grids/layer/LayerFiles.h"
#include "grids/layer/LayerValues.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

/// The grid manager of the layer table, with its groups in a second grid. It keeps track of the current and
/// the previously current layer of its form.
class clsJs_Layer final : public TableManager<LayerTable>, private LayerDesk { // published spelling
    Q_OBJECT
public:
    clsJs_Layer();
    ~clsJs_Layer() override;

    /// Builds the columns and fills both grids. `groupGrid` may be null. Throws the host's error.
    void init(ZolWDoc::ZOLW_Doc &doc, Grid &itemGrid, Grid *groupGrid, bool singleSelection);
    void TearDown() override;
    void ml_RuntimeSupport_LanguageChanged() override;  // published spelling

    bool AutomaticItemSelection() const { return m_automatic; }
    void setAutomaticItemSelection(bool on)
    {
        m_automatic = on;
    } ///< a layer made current becomes the grid's current row
    void setbShowGroups(bool on) override;
    void setAllowEdit(bool on) override;
    bool bShowVisibleItems() const { return m_onlyVisible; }
    void setbShowVisibleItems(bool on);                 ///< lists visible layers only

    qint16 currentLayer() const { return m_current; }   ///< identifier, -1 = none yet
    void setCurrentLayer(qint16 layId);                 ///< the layer current before becomes the previous one
    std::optional<ZolWDoc::tLay> currentLayerAsRead() const; ///< asks no document; empty = none or unknown
    qint16 previousLayer(); ///< the current one when the previous one is gone, which it then becomes
    qint16 numberOf(qint16 layId) const;                ///< -1 = the document has no such layer
    ZolWDoc::tLayArr selectedLayers() const { return selected(); } ///< in grid order

    // --- commands, for the table kLayerCommands; an error goes to the relay
    void newLayer() { command([this] { m_edits.addNew(); }); }
    void copyLayers() { command([this] { m_edits.copy(); }); }
    void renumberLayers() { command([this] { m_edits.renumber(); }); }
    void deleteLayers() { command([this] { m_edits.remove(false); }); }
    void modifyNames() { command([this] { m_values.trimNames(); }); }
    void renameLayer() { command([this] { m_values.rename(); }); }
    void numberLayer() { command([this] { m_values.number(); }); }
    template <auto Flag, bool On> void setFlag() { command([this] { m_values.setFlag(Flag, On); }); }
    template <bool On> void setAllVisible() { command([this] { m_values.setAllVisible(On); }); }
    template <ZolWDoc::TableKind Kind> void pick() { command([this] { m_values.pick(Kind); }); }
    void toggleVisibleItems() { command([this] { setbShowVisibleItems(!m_onlyVisible); }); }

    void newGroup() { command([this] { m_groups.addNew(); }); }
    void renameGroup() { command([this] { m_groups.rename(); }); }
    void deleteGroup() { command([this] { m_groups.remove(); }); }
    void moveToGroup() { command([this] { m_groups.moveSelected(); }); }
    void copyToGroup() { command([this] { m_groups.copySelected(); }); }
    template <bool On> void setGroupVisible() { command([this] { m_values.setGroupVisible(On); }); }
    template <bool On> void showGroups() { setbShowGroups(On); }
    void showAllLayers() { command([this] { showGroup(GroupRows::kAll); }); }
    void collapseGroup() { command([this] { grid()->collapseBandOf(grid()->currentRow()); }); }

    void OpLay_Save() { command([this] { m_files.save(); }); }                         // published spelling
    void OpLay_VisibleUseFile() { command([this] { m_files.loadVisibilities(); }); }   // published spelling
    /// Saves without asking where; published spelling. False = not saved, the user was told why. Throws the
    /// host's error.
    bool OpLay_Save2File(const QString &path) 
    {
        return isOpen() && !refusesNow() && m_files.saveTo(path);
    }
    void addFromFile() { command([this] { m_files.addFromFile(); }); }
    void renameFromFile() { command([this] { m_files.renameFromFile(); }); }
    void renumberFromFile() { command([this] { m_files.renumberFromFile(); }); }
    void deleteElements() { command([this] { m_files.deleteElements(); }); }

    // --- when a command can be used
    bool canEditTable() const { return isOpen() && AllowEdit(); }
    bool canEditLayers() const { return canEditTable() && !all().empty(); }
    bool canEditCurrent() const { return canEditTable() && grid()->currentRow() >= 0; }
    bool canEditSelected() const { return canEditTable() && grid()->hasSelection(); }
    template <ZolWDoc::TableKind Kind> bool canPick() const
    {
        return canEditSelected() && LayerValues::canPick(Kind);
    }
    bool isOpen() const override { return TableManager::isOpen(); }
    void fill() override;
    bool canEditLayersOfGroup() const
    {
        return canEditLayers() && (m_group == GroupRows::kAll || !m_inGroup.isEmpty());
    }
    bool canEditGroups() const { return canEditTable() && m_groupGrid; }
    bool canEditGroup() const { return canEditGroups() && m_group != GroupRows::kAll; }
    bool canGroupSelected() const { return canEditSelected() && !m_groupRows.groups().empty(); }
    bool canShowAllLayers() const { return m_groupGrid && m_group != GroupRows::kAll; }
    template <bool On> bool canShowGroups() const { return m_groupGrid && bShowGroups() != On; }
    bool canCollapseGroup() const { return grid() && grid()->canCollapseBandOf(grid()->currentRow()); }
    bool canAddFromFile() const { return canEditTable() && document()->layerFiles(); }
    bool canDeleteElements() const { return canEditSelected() && document()->layerElements(); }

signals:
    void CurrentChanced(ZolWDoc::tLay &lay);                          // published spelling
    void currentLayerMoved(); ///< another layer is the current one, or it may look otherwise
    void SelectedChanched(qint32 &count, const ZolWDoc::tLay &lay);   // published spelling

    void GroupChanged(bool &bIsGrouped);
    void GridView(qint16 &js_View);

private:
    void raiseView(qint16 view) override { emit GridView(view); }
    void raiseGrouped(bool grouped) override { emit GroupChanged(grouped); }
    void raiseCurrent(ZolWDoc::tLay lay) override { emit CurrentChanced(lay); }
    void raiseSelection(int count) override;
    bool fits(const ZolWDoc::tLay &lay) const override;
    RowStyles styles(int row) const override;
    bool edit(int row, int column, const QVariant &value) override;
    bool removeRows(std::span<const int> rows) override;
    void readBeside() override;
    void showBeside() override;
    Qt::DropAction dragAction() const override { return Qt::CopyAction; }
    QMimeData *dragData(std::span<const int> rows) const override;
    bool canDrop(const QMimeData &mime, const DropTarget &) const override;
    void drop(const QMimeData &mime, const DropTarget &) override;
    GroupDrags groupDrags();
    void armDrags();
    void showGroup(qint16 group);
    void chooseGroup(int row);
    void narrowTo(int row);
    void forgetGone();

    // --- the desk of the commands
    ZolWDoc::ZOLW_Doc &doc() override;
    ZolWDoc::tLayArr selected() const override { return TableManager::selected(); }
    int selectedCount() const override { return grid() ? grid()->selectedCount() : 0; }
    std::optional<ZolWDoc::tLay> current() const override { return currentRecord(); }
    qint16 chosenGroup() const override { return m_group; }
    void write(const QString &command, const std::function<void()> &body) override;
    void refill() override { fill(); }
    void selectLayer(qint16 layId) override { selectById(layId); }
    ErrorRelay &relay() const override { return GridManager::relay(); }
    QObject *asker() const override { return grid(); }

    LayerEdits m_edits{*this};
    LayerValues m_values{*this};
    LayerGroups m_groups{*this};
    LayerFiles m_files{*this};
    LayerDrag m_drag{m_groups};

    GroupRows m_groupRows;
    Grid *m_groupGrid = nullptr;                        ///< the form's, until TearDown()
    std::vector<ZolWDoc::tGroup> m_readGroups;          ///< until the refill that read them shows them
    std::vector<ZolWDoc::tLayMember> m_readMembers, m_members; ///< m_members: as last shown
    QSet<qint16> m_inGroup;                             ///< layers of the chosen group
    qint16 m_group = GroupRows::kAll;
    qint16 m_current = -1, m_previous = -1;
    bool m_automatic = true, m_onlyVisible = false;
};

} // namespace QV_DOC_CONTROLS
