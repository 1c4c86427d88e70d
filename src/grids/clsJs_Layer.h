#pragma once

#include "grids/LayerTable.h"
#include "grids/frame/GroupRows.h"
#include "grids/frame/TableManager.h"
#include "grids/layer/LayerEdits.h"

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
    bool bShowVisibleItems() const { return m_onlyVisible; }
    void setbShowVisibleItems(bool on);                 ///< lists visible layers only

    qint16 currentLayer() const { return m_current; }   ///< identifier, -1 = none yet
    void setCurrentLayer(qint16 layId);                 ///< the layer current before becomes the previous one
    qint16 previousLayer(); ///< the current one when the previous one is gone, which it then becomes
    qint16 numberOf(qint16 layId) const;                ///< -1 = the document has no such layer
    ZolWDoc::tLayArr selectedLayers() const { return selected(); } ///< in grid order

    // --- commands, for the table kLayerCommands; an error goes to the relay
    void newLayer() { command([this] { m_edits.addNew(); }); }

    // --- when a command can be used
    bool isEditable() const { return isOpen() && AllowEdit(); }

signals:
    void CurrentChanced(ZolWDoc::tLay &lay);                          // published spelling
    void SelectedChanched(qint32 &count, const ZolWDoc::tLay &lay);   // published spelling

    void GroupChanged(bool &bIsGrouped);
    void GridView(qint16 &js_View);

private:
    void raiseView(qint16 view) override { emit GridView(view); }
    void raiseGrouped(bool grouped) override { emit GroupChanged(grouped); }
    void raiseCurrent(ZolWDoc::tLay lay) override { emit CurrentChanced(lay); }
    void raiseSelection(int count) override;
    bool fits(const ZolWDoc::tLay &lay) const override;
    void readGroups();
    void chooseGroup(int row);
    template <class Body> void command(Body body)
    {
        if (isOpen()) relay().guard(body);
    }

    // --- the desk of the commands
    bool isOpen() const override { return document() != nullptr; }
    ZolWDoc::ZOLW_Doc &doc() override { return *document(); }
    ZolWDoc::tLayArr selected() const override { return TableManager::selected(); }
    int selectedCount() const override { return grid() ? grid()->selectedCount() : 0; }
    std::optional<ZolWDoc::tLay> current() const override { return currentRecord(); }
    qint16 chosenGroup() const override { return m_group; }
    void write(const QString &command, const std::function<void()> &body) override;
    void refill() override;
    void selectLayer(qint16 layId) override { selectById(layId); }
    ErrorRelay &relay() const override { return GridManager::relay(); }
    QObject *asker() const override { return grid(); }

    LayerEdits m_edits{*this};

    GroupRows m_groupRows;
    Grid *m_groupGrid = nullptr;                        ///< the form's, until TearDown()
    std::vector<ZolWDoc::tLayMember> m_members;         ///< as last read
    QSet<qint16> m_inGroup;                             ///< layers of the chosen group
    qint16 m_group = GroupRows::kAll;
    qint16 m_current = -1, m_previous = -1;
    bool m_automatic = true, m_onlyVisible = false;
};

} // namespace QV_DOC_CONTROLS
