#include "dialogs/editors/GroupListModel.h"

#include "dialogs/editors/ManagerImages.h"
#include "facade/services/Text.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

struct ListColumn {
    const char *key; ///< published
    Text caption;
};
constexpr ListColumn kColumn{"GroupId", {20028, u"Jelkulcs csoportok"}};

} // namespace

void GroupListModel::setGroups(std::vector<Group> groups)
{
    beginResetModel();
    m_groups = std::move(groups);
    endResetModel();
}

int GroupListModel::rowOf(qint16 id) const
{
    const auto found = std::ranges::find(m_groups, id, &Group::id);
    return found == m_groups.end() ? -1 : int(found - m_groups.begin());
}

void GroupListModel::setChosen(qint16 id)
{
    m_chosen = id;
    if (!m_groups.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DecorationRole});
}

QVariant GroupListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) return {};
    const Group &group = m_groups[size_t(index.row())];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return group.name;
    if (role == Qt::DecorationRole)
        return managerImage(group.id == m_chosen ? "Open" : group.count == 0 ? "Empty" : "Egyéb");
    if (role == Qt::AccessibleDescriptionRole) return QString::number(group.count);
    return {};
}

QVariant GroupListModel::headerData(int, Qt::Orientation turned, int role) const
{
    return turned == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(txt(kColumn.caption)) : QVariant();
}

Qt::ItemFlags GroupListModel::flags(const QModelIndex &index) const
{
    return index.isValid()
               ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled | Qt::ItemNeverHasChildren
               : Qt::NoItemFlags;
}

bool GroupListModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int,
                                     const QModelIndex &parent) const
{
    return data && parent.isValid() && m_drops.takes && m_drops.takes(*data);
}

/// False to the view, which would otherwise take the dragged rows out of the list by itself.
bool GroupListModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                  const QModelIndex &parent)
{
    if (canDropMimeData(data, action, row, column, parent))
        m_drops.drop(*data, m_groups[size_t(parent.row())].id);
    return false;
}

} // namespace QV_DOC_CONTROLS
