#pragma once

#include "grids/frame/TableManager.h"

namespace QV_DOC_CONTROLS {

/// The records of a table that has groups, with the group list in a second grid. The chosen group says which
/// records are listed and where new ones go.
template <class Table> class GroupedManager : public TableManager<Table> {
    using Base = TableManager<Table>;

public:
    using Base::grid, Base::AllowEdit, Base::bShowGroups, Base::canEditTable, Base::canEditSelected;

    explicit GroupedManager(const char *type) : Base(type) {}
    /// Builds the columns and fills both grids. `groupGrid` may be null. Throws the host's error.
    void init(ZolWDoc::ZOLW_Doc &doc, Grid &itemGrid, Grid *groupGrid, bool singleSelection)
    {
        TearDown();
        m_groupGrid = groupGrid;
        this->attach(doc, itemGrid);
        itemGrid.setMultiSelection(!singleSelection);
        armGrids();
        if (!groupGrid) return;
        groupGrid->setSource(&m_groupRows);
        showBeside();
        this->readTooltips(*groupGrid);
        groupGrid->setVisible(bShowGroups());
        groupGrid->setCurrentRow(0);
        QObject::connect(groupGrid, &Grid::currentRowMoved, this,
                         [this](int row) { this->relay().guard([&] { chooseGroup(row); }); });
    }
    void TearDown() override
    {
        if (m_groupGrid) {
            QObject::disconnect(m_groupGrid, nullptr, this, nullptr);
            m_groupGrid->setSource(nullptr);
            m_groupGrid = nullptr;
        }
        m_groupRows.setGroups({});
        m_group = GroupRows::kAll;
        Base::TearDown();
    }
    void ml_RuntimeSupport_LanguageChanged() override
    {
        Base::ml_RuntimeSupport_LanguageChanged();
        m_groupRows.readCaptions();
        if (m_groupGrid) m_groupGrid->captionsChanged();
    }
    void setbShowGroups(bool on) override
    {
        Base::setbShowGroups(on);
        if (!m_groupGrid) return;
        if (!on) showGroup(GroupRows::kAll); // nothing is left out by a list that nobody sees
        m_groupGrid->setVisible(on);
    }
    void setAllowEdit(bool on) override
    {
        Base::setAllowEdit(on);
        armGrids();
    }
    template <bool On> void showGroups() { setbShowGroups(On); }
    void showAllGroups() { this->command([this] { showGroup(GroupRows::kAll); }); }
    void collapseGroup() { this->command([this] { grid()->collapseBandOf(grid()->currentRow()); }); }

    // --- when a command can be used
    bool canEditGroups() const { return canEditTable() && m_groupGrid; }
    bool canEditGroup() const { return canEditGroups() && m_groupRows.isGroup(m_group); }
    bool canGroupSelected() const { return canEditSelected() && !m_groupRows.groups().empty(); }
    bool canShowAllGroups() const { return m_groupGrid && m_group != GroupRows::kAll; }
    template <bool On> bool canShowGroups() const { return m_groupGrid && bShowGroups() != On; }
    bool canCollapseGroup() const { return grid() && grid()->canCollapseBandOf(grid()->currentRow()); }

protected:
    qint16 chosenGroup() const override { return m_group; }
    Grid *groupGrid() const { return m_groupGrid; }
    GroupRows &groupRows() { return m_groupRows; }
    void endEditing() override
    {
        Base::endEditing();
        if (m_groupGrid) m_groupGrid->endEditing();
    }
    void showGroup(qint16 group)
    {
        if (m_groupGrid) m_groupGrid->setCurrentRow(m_groupGrid->rowWithId(group));
    }
    void readBeside(ZolWDoc::ZOLW_Doc &doc, std::vector<typename Table::Record> &) override
    {
        if (m_groupGrid) m_readGroups = Table::groupsOf(doc);
    }
    /// The chosen group stays with its identifier; when it is gone, the one in its place is chosen.
    void showBeside() override
    {
        if (!m_groupGrid) return;
        m_groupGrid->refill([this] {
            auto strays = strayGroups(m_readGroups);
            m_groupRows.setGroups(std::move(m_readGroups), std::move(strays));
        });
        narrowTo(m_groupGrid->currentRow());
    }
    /// The groups that records name though they are not among those read.
    virtual std::vector<qint16> strayGroups(const std::vector<ZolWDoc::tGroup> &) const { return {}; }
    /// Of a table whose records name their group: in the list, which is not read again.
    void groupRenamed(qint16 group, const QString &name)
    {
        const auto before = this->currentRecord();
        RecordRows<Table>::patchAll([&](auto &record) {
            if (record.GroupId == group) record.GroupName = name;
        });
        if (const auto now = this->currentRecord(); now && now != before) this->raiseCurrent(*now);
    }
    virtual void groupChosen() {}                       ///< chosenGroup() may be another one now
    Qt::DropAction dragAction() const override { return Qt::CopyAction; }

private:
    /// What is dragged changes groups: only where the table can be edited and has its groups beside it.
    void armGrids()
    {
        for (Grid *const g : {grid(), m_groupGrid})
            if (g) g->setDragOut(AllowEdit() && m_groupGrid);
        if (m_groupGrid) m_groupGrid->setAllowEdit(AllowEdit());
    }
    void narrowTo(int row)
    {
        m_group = m_groupRows.groupAt(row);
        groupChosen();
    }
    void chooseGroup(int row)
    {
        if (row < 0) return;
        narrowTo(row);
        this->showAgain();
    }

    GroupRows m_groupRows{Table::groupCaption};
    Grid *m_groupGrid = nullptr;                        ///< the form's, until TearDown()
    std::vector<ZolWDoc::tGroup> m_readGroups;          ///< until the refill that read them shows them
    qint16 m_group = GroupRows::kAll;
};

} // namespace QV_DOC_CONTROLS
