#include "grids/frame/GroupRows.h"

#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

void GroupRows::readCaptions()
{
    m_columns = {{QStringLiteral("GroupName"), txt(Text{2834, u"Név"}), {}, CellKind::Text, false, 0}};
}

QString GroupRows::text(int row, int) const
{
    return row == 0 ? txt(Text{3235, u"MIND"}) : m_groups[size_t(row - 1)].GroupName;
}

bool GroupRows::edit(int, int, const QVariant &) { return false; } // groups are renamed by command

QMimeData *GroupRows::dragData(std::span<const int> rows) const
{
    std::vector<qint16> groups;
    for (const int row : rows)
        if (groupAt(row) != kAll) groups.push_back(groupAt(row));
    return m_drags.data && !groups.empty() ? m_drags.data(groups) : nullptr;
}

bool GroupRows::canDrop(const QMimeData &mime, const DropTarget &target) const
{
    const qint16 group = groupAt(target.row);
    return m_drags.takes && group != kAll && m_drags.takes(mime, group);
}

void GroupRows::drop(const QMimeData &mime, const DropTarget &target)
{
    m_drags.drop(mime, groupAt(target.row));
}

} // namespace QV_DOC_CONTROLS
