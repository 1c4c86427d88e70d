#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/GridStyles.h"

#include <QAbstractTableModel>

namespace QV_DOC_CONTROLS {

/// The visible rows of a grid for Qt's views. The grid's own.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSource(const GridSource *source);   ///< null = empty
    void setWritable(GridSource *source) { m_writable = source; } ///< null = nothing can be edited
    void refill();                              ///< the source's rows changed as a whole
    void rowEdited(int row);
    void captionsChanged();

    int sourceRow(const QModelIndex &index) const { return index.isValid() ? index.row() : -1; }
    QModelIndex indexOf(int sourceRow, int column = 0) const { return index(sourceRow, column); }
    int rowWithId(qint64 id) const;             ///< -1 = none
    GridStyles &formatStyles() { return m_styles; }
    GridStyle styleOf(const QModelIndex &index) const;  ///< the cell's own over the row's
    const GridColumn *column(int c) const;      ///< null beyond the last
    std::vector<GridChoice> choices(int c) const { return m_source ? m_source->choices(c) : std::vector<GridChoice>{}; }
    bool tooltips = false;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    QVariant accessibleText(const QModelIndex &index) const;
    const GridSource *m_source = nullptr;
    GridSource *m_writable = nullptr;
    GridStyles m_styles;
};

} // namespace QV_DOC_CONTROLS
