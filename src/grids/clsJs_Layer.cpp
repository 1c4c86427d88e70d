#include "grids/clsJs_Layer.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

clsJs_Layer::clsJs_Layer() : TableManager("clsJs_Layer") { m_groupRows.setDrags(groupDrags()); }
clsJs_Layer::~clsJs_Layer() { TearDown(); }

void clsJs_Layer::init(ZOLW_Doc &doc, Grid &itemGrid, Grid *groupGrid, bool singleSelection)
{
    TearDown();
    attach(doc, itemGrid);
    itemGrid.setMultiSelection(!singleSelection);
    m_groupGrid = groupGrid;
    armDrags();
    if (!groupGrid) return;
    readBeside();
    m_groupRows.setGroups(std::move(m_readGroups));
    m_members = std::move(m_readMembers);
    groupGrid->setSource(&m_groupRows);
    groupGrid->setTooltips(
        readBoolSetting(QStringLiteral("setup"), QStringLiteral("ShowTooltipsOnGrid"), false));
    groupGrid->setVisible(bShowGroups());
    groupGrid->setCurrentRow(0);
    connect(groupGrid, &Grid::currentRowMoved, this,
            [this](int row) { relay().guard([&] { chooseGroup(row); }); });
}

void clsJs_Layer::TearDown()
{
    if (m_groupGrid) {
        disconnect(m_groupGrid, nullptr, this, nullptr);
        m_groupGrid->setSource(nullptr);
        m_groupGrid = nullptr;
    }
    m_groupRows.setGroups({});
    m_members.clear(), m_inGroup.clear();
    m_group = GroupRows::kAll;
    m_current = m_previous = -1;
    TableManager::TearDown();
}

void clsJs_Layer::ml_RuntimeSupport_LanguageChanged()
{
    TableManager::ml_RuntimeSupport_LanguageChanged();
    m_groupRows.readCaptions();
    if (m_groupGrid) m_groupGrid->captionsChanged();
}

void clsJs_Layer::readBeside()
{
    if (!m_groupGrid) return;
    m_readGroups = document()->layers().groups();
    m_readMembers = document()->layers().members();
}

/// The chosen group stays with its identifier; when it is gone, the one in its place is chosen.
void clsJs_Layer::showBeside()
{
    if (!m_groupGrid) return;
    m_groupGrid->refill([this] { m_groupRows.setGroups(std::move(m_readGroups)); });
    m_members = std::move(m_readMembers);
    narrowTo(m_groupGrid->currentRow());
}

void clsJs_Layer::narrowTo(int row)
{
    m_group = m_groupRows.groupAt(row);
    m_inGroup.clear();
    for (const tLayMember &m : m_members)
        if (m.GroupId == m_group) m_inGroup.insert(m.LayId);
}

void clsJs_Layer::setAllowEdit(bool on)
{
    TableManager::setAllowEdit(on);
    armDrags();
}

/// What is dragged changes memberships: only where the table can be edited and has its groups beside it.
void clsJs_Layer::armDrags()
{
    for (Grid *const g : {grid(), m_groupGrid})
        if (g) g->setDragOut(AllowEdit() && m_groupGrid);
}

QMimeData *clsJs_Layer::dragData(std::span<const int> rows) const
{
    std::vector<qint16> ids;
    for (const int row : rows) ids.push_back(qint16(rowId(row)));
    return ids.empty() ? nullptr : m_drag.layers(ids);
}

bool clsJs_Layer::canDrop(const QMimeData &mime, const DropTarget &) const
{
    return m_drag.groupIn(mime).has_value();
}

/// A group dropped on the layers shows what is in it: it is chosen, and its layers are selected.
void clsJs_Layer::drop(const QMimeData &mime, const DropTarget &)
{
    command([&] {
        showGroup(*m_drag.groupIn(mime));
        grid()->selectAll();
    });
}

GroupDrags clsJs_Layer::groupDrags()
{
    return {[this](const std::vector<qint16> &groups) { return m_drag.groups(groups); },
            [this](const QMimeData &mime, qint16 group) {
                return canEditGroups() && m_drag.canDropOn(group, mime);
            },
            [this](const QMimeData &mime, qint16 group) {
                command([&] { m_drag.dropOn(group, mime); });
            }};
}

void clsJs_Layer::showGroup(qint16 group)
{
    if (m_groupGrid) m_groupGrid->setCurrentRow(m_groupGrid->rowWithId(group));
}

void clsJs_Layer::chooseGroup(int row)
{
    if (row < 0) return;
    narrowTo(row);
    showAgain();
}

bool clsJs_Layer::fits(const tLay &lay) const
{
    return (m_group == GroupRows::kAll || m_inGroup.contains(lay.LayId)) && (!m_onlyVisible || lay.Visible);
}

ZOLW_Doc &clsJs_Layer::doc()
{
    if (!isOpen()) ErrorRelay::stop();
    return *document();
}

void clsJs_Layer::write(const QString &command, const std::function<void()> &body)
{
    writeAndFill(doc(), command, body);
    forgetGone();
}

/// A layer that is gone is not current any more; what the document made current instead is.
void clsJs_Layer::forgetGone()
{
    if (m_current < 0 || currentLayerAsRead()) return;
    m_current = doc().layers().currentId();
    grid()->stylesChanged();
    emit currentLayerMoved();
}

/// The delete key.
bool clsJs_Layer::removeRows(std::span<const int>)
{
    command([this] { m_edits.remove(true); });
    return true;
}

/// The current layer stands out.
RowStyles clsJs_Layer::styles(int row) const
{
    RowStyles styles = TableManager::styles(row);
    styles.bold = rowId(row) == m_current;
    return styles;
}

void clsJs_Layer::fill()
{
    TableManager::fill();
    emit currentLayerMoved();
}

bool clsJs_Layer::edit(int row, int column, const QVariant &value)
{
    const bool stored = TableManager::edit(row, column, value);
    if (stored && rowId(row) == m_current) emit currentLayerMoved();
    return stored;
}

void clsJs_Layer::setbShowGroups(bool on)
{
    GridManager::setbShowGroups(on);
    if (m_groupGrid) m_groupGrid->setVisible(on);
}

void clsJs_Layer::setbShowVisibleItems(bool on)
{
    m_onlyVisible = on;
    showAgain();
}

void clsJs_Layer::setCurrentLayer(qint16 layId)
{
    if (!document()) return;
    if (layId != m_current) m_previous = std::exchange(m_current, layId);
    if (m_automatic) selectById(layId);
    grid()->stylesChanged();
    emit currentLayerMoved();
}

std::optional<tLay> clsJs_Layer::currentLayerAsRead() const
{
    const auto found = std::ranges::find(all(), m_current, &tLay::LayId);
    return found == all().end() ? std::nullopt : std::optional(*found);
}

qint16 clsJs_Layer::previousLayer()
{
    if (document() && !document()->layers().find(m_previous)) m_previous = m_current;
    return m_previous;
}

qint16 clsJs_Layer::numberOf(qint16 layId) const
{
    const auto lay = document() ? document()->layers().find(layId) : std::nullopt;
    return lay ? lay->gNr : qint16(-1);
}

void clsJs_Layer::raiseSelection(int count)
{
    qint32 selectedRows = count;
    emit SelectedChanched(selectedRows, currentRecord().value_or(tLay{}));
}

} // namespace QV_DOC_CONTROLS
