#pragma once

#include "kit/grid/AbstractGrid.h"

namespace tests {

/// A grid without rows: what the view tools read and write, and a log of what was written.
struct PlainGrid final : QV_DOC_CONTROLS::AbstractGrid {
    using Keys = std::vector<QV_DOC_CONTROLS::SortKey>;
    std::vector<QV_DOC_CONTROLS::GridColumn> all;
    std::vector<int> shown;
    Keys sort, groups;
    QStringList written;

    explicit PlainGrid(const QStringList &captions)
    {
        for (const QString &c : captions) {
            shown.push_back(int(all.size()));
            all.push_back({c, c});
        }
    }
    /// "+0 -2": columns with their order.
    static QString dump(const Keys &keys)
    {
        QStringList out;
        for (const auto &k : keys)
            out << (k.order == QV_DOC_CONTROLS::SortOrder::Ascending ? u'+' : u'-')
                       + QString::number(k.column);
        return out.join(u' ');
    }
    static Keys keys(const QString &dumped)
    {
        Keys out;
        for (const QString &k : dumped.split(u' ', Qt::SkipEmptyParts))
            out.push_back({k.mid(1).toInt(), k[0] == u'+' ? QV_DOC_CONTROLS::SortOrder::Ascending
                                                          : QV_DOC_CONTROLS::SortOrder::Descending});
        return out;
    }

    const std::vector<QV_DOC_CONTROLS::GridColumn> &columns() const override { return all; }
    std::vector<int> shownColumns() const override { return shown; }
    void showColumns(std::span<const int> inOrder) override
    {
        shown.assign(inOrder.begin(), inOrder.end());
        QStringList list;
        for (const int c : shown) list << QString::number(c);
        written << QStringLiteral("show ") + list.join(u' ');
    }
    Keys sortKeys() const override { return sort; }
    void setSortKeys(std::span<const QV_DOC_CONTROLS::SortKey> keys) override
    {
        sort.assign(keys.begin(), keys.end());
        written << QStringLiteral("sort ") + dump(sort);
    }
    Keys groupLevels() const override { return groups; }
    void setGroupLevels(std::span<const QV_DOC_CONTROLS::SortKey> levels) override
    {
        groups.assign(levels.begin(), levels.end());
        written << QStringLiteral("group ") + dump(groups);
    }
    void setAllExpanded(bool expanded) override
    {
        written << (expanded ? QStringLiteral("expand") : QStringLiteral("collapse"));
    }
};

} // namespace tests
