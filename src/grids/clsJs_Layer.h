#pragma once

#include "facade/contract/ResourcePicker.h"
#include "grids/LayerTable.h"
#include "grids/frame/GroupedManager.h"
#include "grids/layer/LayerDrag.h"
#include "grids/layer/LayerEdits.h"
#include "grids/layer/LayerFiles.h"
#include "grids/layer/LayerValues.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

/// The grid manager of the layer table, with its groups in a second grid. It keeps track of the current and
/// the previously current layer of its form.
class clsJs_Layer final : public GroupedManager<LayerTable> { // published spelling
    Q_OBJECT
public:
    clsJs_Layer();
    ~clsJs_Layer() override;

    void TearDown() override;

    bool AutomaticItemSelection() const { return m_automatic; }
    void setAutomaticItemSelection(bool on)
    {
        m_automatic = on;
    } ///< a layer made current becomes the grid's current row
    bool bShowVisibleItems() const { return m_onlyVisible; }
    void setbShowVisibleItems(bool on);                 ///< lists visible layers only

    qint16 currentLayer() const { return m_current; }   ///< identifier, -1 = none yet
    void setCurrentLayer(qint16 layId);                 ///< the layer current before becomes the previous one
    std::optional<ZolWDoc::tLay> currentLayerAsRead() const; ///< asks no document; empty = none or unknown
    qint16 previousLayer(); ///< the current one when the previous one is gone, which it then becomes
    qint16 numberOf(qint16 layId) const;                ///< -1 = the document has no such layer
    ZolWDoc::tLayArr selectedLayers() const { return selected(); } ///< in grid order

    // --- commands, for the table kLayerCommands; an error goes to the relay
    void newLayer() { command([this] { addLayer(); }); }
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
    template <ZolWDoc::TableKind Kind> bool canPick() const
    {
        return canEditSelected() && canPickResource(Kind);
    }
    void fill() override;
    bool canEditLayersOfGroup() const
    {
        return canEditAll() && (chosenGroup() == GroupRows::kAll || !m_inGroup.isEmpty());
    }
    bool canAddFromFile() const { return canEditTable() && document()->layerFiles(); }
    bool canDeleteElements() const { return canEditSelected() && document()->layerElements(); }

signals:
    void CurrentChanced(ZolWDoc::tLay &lay);                          // published spelling
    void currentLayerMoved(); ///< another layer is the current one, or it may look otherwise
    void SelectedChanched(qint32 &count, const ZolWDoc::tLay &lay);   // published spelling

    void GroupChanged(bool &bIsGrouped);
    void GridView(qint16 &js_View);

private:
    void addLayer();
    void raiseView(qint16 view) override { emit GridView(view); }
    void raiseGrouped(bool grouped) override { emit GroupChanged(grouped); }
    void raiseCurrent(ZolWDoc::tLay lay) override { emit CurrentChanced(lay); }
    void raiseSelection(int count) override;
    bool fits(const ZolWDoc::tLay &lay) const override;
    RowStyles styles(int row) const override;
    bool edit(int row, int column, const QVariant &value) override;
    bool removeRows(std::span<const int> rows) override;
    void readBeside(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLayArr &all) override;
    void showBeside() override;
    void groupChosen() override;
    QMimeData *dragData(std::span<const int> rows) const override;
    bool canDrop(const QMimeData &mime, const DropTarget &) const override;
    void drop(const QMimeData &mime, const DropTarget &) override;
    GroupDrags groupDrags();
    void write(const QString &command, const std::function<void()> &body) override;
    void forgetGone();

    LayerEdits m_edits{*this};
    LayerValues m_values{*this};
    LayerGroups m_groups{*this};
    LayerFiles m_files{*this};
    LayerDrag m_drag{m_groups};

    std::vector<ZolWDoc::tLayMember> m_readMembers, m_members; ///< m_members: as last shown
    QSet<qint16> m_inGroup;                             ///< layers of the chosen group
    qint16 m_current = -1, m_previous = -1;
    bool m_automatic = true, m_onlyVisible = false;
};

} // namespace QV_DOC_CONTROLS
