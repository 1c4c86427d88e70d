#include "grids/clsJs_Layer.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

clsJs_Layer::clsJs_Layer() : GroupedManager("clsJs_Layer")
{
    groupRows().setDrags(groupDrags());
    groupRows().setRenaming([this](qint16 group, const QString &name) {
        return guardedOr(false, [&] { return m_groups.renameInPlace(group, name); });
    });
    groupRows().setRemoval([this] { deleteGroup(); });
}
clsJs_Layer::~clsJs_Layer() { TearDown(); }

void clsJs_Layer::TearDown()
{
    m_members.clear(), m_inGroup.clear();
    m_current = m_previous = -1;
    GroupedManager::TearDown();
}

void clsJs_Layer::readBeside(ZOLW_Doc &doc, tLayArr &all)
{
    GroupedManager::readBeside(doc, all);
    if (groupGrid()) m_readMembers = doc.layers().members();
}

void clsJs_Layer::showBeside()
{
    m_members = std::move(m_readMembers);
    GroupedManager::showBeside();
}

void clsJs_Layer::groupChosen()
{
    m_inGroup.clear();
    for (const tLayMember &m : m_members)
        if (m.GroupId == chosenGroup()) m_inGroup.insert(m.LayId);
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
        if (grid()) grid()->selectAll();        // a handler may have torn the manager down
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

bool clsJs_Layer::fits(const tLay &lay) const
{
    return (chosenGroup() == GroupRows::kAll || m_inGroup.contains(lay.LayId)) &&
           (!m_onlyVisible || lay.Visible);
}

void clsJs_Layer::write(const QString &command, const std::function<void()> &body)
{
    GroupedManager::write(command, body);
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
    RowStyles styles = GroupedManager::styles(row);
    styles.bold = rowId(row) == m_current;
    return styles;
}

void clsJs_Layer::fill()
{
    GroupedManager::fill();
    emit currentLayerMoved();
}

bool clsJs_Layer::edit(int row, int column, const QVariant &value)
{
    const bool stored = GroupedManager::edit(row, column, value);
    if (stored && rowId(row) == m_current) emit currentLayerMoved();
    return stored;
}

/// The new layer is current and seen; it may be invisible in the drawing as its model is.
void clsJs_Layer::addLayer()
{
    const auto id = m_edits.addNew(m_current);
    if (!id || selectById(*id) || !m_onlyVisible) return;
    setbShowVisibleItems(false);
    selectById(*id);
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
