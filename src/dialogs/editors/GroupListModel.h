#pragma once

#include "facade/contract/Records.h"

#include <QAbstractTableModel>
#include <QMimeData>

#include <functional>

namespace QV_DOC_CONTROLS {

/// The groups of a manager: a list of one column, each marked as the chosen one, empty or other.
class GroupListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    struct Group {
        qint16 id;
        QString name;
        int count; ///< its records
    };
    struct Drops {
        std::function<bool(const QMimeData &)> takes;
        std::function<void(const QMimeData &, qint16 group)> drop;
    };
    void setGroups(std::vector<Group> groups);
    const std::vector<Group> &groups() const { return m_groups; }
    int rowOf(qint16 id) const; ///< -1 = not there
    void setChosen(qint16 id);
    void setDrops(Drops drops) { m_drops = std::move(drops); }
    void retranslate() { emit headerDataChanged(Qt::Horizontal, 0, 0); }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_groups.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation turned, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    QStringList mimeTypes() const override { return {QStringLiteral("text/plain")}; }
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    std::vector<Group> m_groups;
    Drops m_drops;
    qint16 m_chosen = -1;
};

} // namespace QV_DOC_CONTROLS
