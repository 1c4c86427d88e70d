#pragma once

#include "facade/contract/Records.h"
#include "facade/services/Text.h"
#include "kit/grid/GridSource.h"

#include <functional>

namespace QV_DOC_CONTROLS {

/// What is dragged from a group list and dropped on its groups; the manager of the table sees to it. The
/// pseudo-group is neither dragged nor a target.
struct GroupDrags {
    std::function<QMimeData *(const std::vector<qint16> &groups)> data; ///< the caller's
    std::function<bool(const QMimeData &, qint16 group)> takes;
    std::function<void(const QMimeData &, qint16 group)> drop;
};

/// Gives a group another name; false = it was refused, and the user knows why.
using GroupRenaming = std::function<bool(qint16 group, const QString &name)>;

/// The group list beside a table: the pseudo-group "MIND", which stands for all records, and the table's
/// groups.
class GroupRows final : public GridSource {
public:
    static constexpr qint16 kAll = -1;                  ///< identifier of the pseudo-group
    explicit GroupRows(Text caption) : m_caption(caption) { readCaptions(); }
    /// `strays`: groups that records name and that are not there; they are listed behind the others.
    void setGroups(std::vector<ZolWDoc::tGroup> groups, std::vector<qint16> strays = {})
    {
        m_groups = std::move(groups), m_strays = std::move(strays);
    }
    const std::vector<ZolWDoc::tGroup> &groups() const { return m_groups; }
    bool isGroup(qint16 id) const; ///< false: the pseudo-group, or one that is not there
    qint16 groupAt(int row) const;
    void setDrags(GroupDrags drags) { m_drags = std::move(drags); }
    void setRenaming(GroupRenaming rename); ///< names can be edited in place; none = they cannot
    void setRemoval(std::function<void()> remove) { m_remove = std::move(remove); } ///< of the chosen group
    void readCaptions();

    const std::vector<GridColumn> &columns() const override { return m_columns; }
    int rowCount() const override { return int(m_groups.size() + m_strays.size()) + 1; }
    qint64 rowId(int row) const override { return groupAt(row); }
    QVariant value(int row, int column) const override { return text(row, column); }
    QString text(int row, int column) const override;
    bool edit(int row, int column, const QVariant &value) override;
    bool removeRows(std::span<const int> rows) override;
    Qt::DropAction dragAction() const override { return Qt::CopyAction; }
    QMimeData *dragData(std::span<const int> rows) const override;
    bool canDrop(const QMimeData &mime, const DropTarget &target) const override;
    void drop(const QMimeData &mime, const DropTarget &target) override;

private:
    Text m_caption;
    GroupDrags m_drags;
    GroupRenaming m_rename;
    std::function<void()> m_remove;
    std::vector<ZolWDoc::tGroup> m_groups;
    std::vector<qint16> m_strays;
    std::vector<GridColumn> m_columns;
};

} // namespace QV_DOC_CONTROLS
