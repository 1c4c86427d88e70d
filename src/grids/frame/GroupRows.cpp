#include "grids/frame/GroupRows.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

void GroupRows::readCaptions()
{
    m_columns = {{QStringLiteral("GroupName"), txt(m_caption), {}, CellKind::Text, bool(m_rename), 0}};
}

bool GroupRows::isGroup(qint16 id) const
{
    return std::ranges::count(m_groups, id, &ZolWDoc::tGroup::GroupId) > 0;
}

qint16 GroupRows::groupAt(int row) const
{
    const size_t i = size_t(row - 1);
    if (row <= 0) return kAll;
    return i < m_groups.size() ? m_groups[i].GroupId : m_strays[i - m_groups.size()];
}

QString GroupRows::text(int row, int) const
{
    if (row == 0) return txt(Text{3235, u"MIND"});
    const size_t i = size_t(row - 1);
    return i < m_groups.size() ? m_groups[i].GroupName : txt(Text{3204, u"HIBÁS CSOPORT"});
}

void GroupRows::setRenaming(GroupRenaming rename)
{
    m_rename = std::move(rename);
    readCaptions();
}

bool GroupRows::edit(int row, int, const QVariant &value)
{
    const QString name = value.toString().trimmed();
    if (!m_rename || !isGroup(groupAt(row)) || name.isEmpty() || name == text(row, 0)) return false;
    if (!m_rename(groupAt(row), name)) return false;
    m_groups[size_t(row - 1)].GroupName = name;
    return true;
}

/// The delete key: the list selects one group, the chosen one.
bool GroupRows::removeRows(std::span<const int> rows)
{
    if (!m_remove || rows.size() != 1 || !isGroup(groupAt(rows.front()))) return false;
    m_remove();
    return true;
}

QMimeData *GroupRows::dragData(std::span<const int> rows) const
{
    std::vector<qint16> groups;
    for (const int row : rows)
        if (isGroup(groupAt(row))) groups.push_back(groupAt(row));
    return m_drags.data && !groups.empty() ? m_drags.data(groups) : nullptr;
}

bool GroupRows::canDrop(const QMimeData &mime, const DropTarget &target) const
{
    const qint16 group = groupAt(target.row);
    return m_drags.takes && isGroup(group) && m_drags.takes(mime, group);
}

void GroupRows::drop(const QMimeData &mime, const DropTarget &target)
{
    m_drags.drop(mime, groupAt(target.row));
}

} // namespace QV_DOC_CONTROLS
