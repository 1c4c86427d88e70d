#pragma once

#include "kit/grid/GridSource.h"

#include <QStringList>

namespace benchmarks {

/// A table as layers are: ten columns of numbers, names, switches and lists.
struct GridRows : QV_DOC_CONTROLS::GridSource {
    static constexpr int kColumns = 10;
    struct Record {
        qint16 id, nr;
        QString name, lineType, textType;
        bool visible;
        qint16 color, print, groups, weight;
    };
    std::vector<Record> all;
    std::vector<QV_DOC_CONTROLS::GridColumn> cols;

    explicit GridRows(int count)
    {
        using QV_DOC_CONTROLS::CellKind;
        constexpr CellKind kinds[kColumns] = {
            CellKind::Number, CellKind::Text, CellKind::Check,  CellKind::List,   CellKind::Color,
            CellKind::Color,  CellKind::List, CellKind::Number, CellKind::Number, CellKind::Number};
        for (int c = 0; c < kColumns; ++c)
            cols.push_back(
                {QStringLiteral("c%1").arg(c), QStringLiteral("Oszlop %1").arg(c), {}, kinds[c], true});
        QStringList lineTypes, textTypes; // as in a document: the names belong to tables of their own
        for (int i = 0; i < 30; ++i)
            lineTypes << QStringLiteral("vonal %1").arg(i), textTypes << QStringLiteral("Felirat %1").arg(i);
        for (int i = 0; i < count; ++i) {
            const int mixed = int(i * 7919LL % count);
            all.push_back({qint16(i + 1), qint16(mixed + 1), QStringLiteral("Réteg %1").arg(mixed + 1),
                           lineTypes[i % 12], textTypes[i % 30], i % 3 != 0,
                           qint16(i % 256), qint16(i % 16), qint16(i % 7), qint16(i % 5)});
        }
    }
    const std::vector<QV_DOC_CONTROLS::GridColumn> &columns() const override { return cols; }
    int rowCount() const override { return int(all.size()); }
    qint64 rowId(int row) const override { return all[size_t(row)].id; }
    QVariant value(int row, int column) const override
    {
        const Record &r = all[size_t(row)];
        switch (column) {
        case 0: return r.nr;
        case 1: return r.name;
        case 2: return r.visible;
        case 3: return r.lineType;
        case 4: return r.color;
        case 5: return r.print;
        case 6: return r.textType;
        case 7: return r.groups;
        case 8: return r.weight;
        default: return r.id;
        }
    }
    QString text(int row, int column) const override
    {
        const Record &r = all[size_t(row)];
        switch (column) {
        case 1: return r.name;
        case 2: return {};
        case 3: return r.lineType;
        case 6: return r.textType;
        default: return QString::number(value(row, column).toInt());
        }
    }
    bool edit(int row, int column, const QVariant &v) override
    {
        Record &r = all[size_t(row)];
        if (column == 2) r.visible = v.toBool();
        if (column == 1) r.name = v.toString();
        return true;
    }
};

} // namespace benchmarks
