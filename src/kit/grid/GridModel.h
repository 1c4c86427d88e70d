#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/GridStyles.h"
#include "kit/grid/RowEngine.h"
#include "kit/grid/RowFilter.h"

#include <QAbstractTableModel>
#include <QCache>

#include <functional>

namespace QV_DOC_CONTROLS {

/// The lines of a grid (rows and group bands) for Qt's views. The grid's own.
class GridModel final : public QAbstractTableModel, private RowCells {
    Q_OBJECT
public:
    explicit GridModel(QObject *parent = nullptr);
    ~GridModel() override;

    void setSource(GridSource *source);         ///< null = empty; keys and filter go
    const GridSource *source() const { return m_source; }
    void setWritable(bool on);
    bool isWritable() const { return m_writable && m_source; }
    RowEngine &engine() { return m_engine; }
    const RowEngine &engine() const { return m_engine; }

    // Other lines: the model resets.
    void refill(const std::function<void()> &change);   ///< `change` gives the source other rows
    void setKeys(std::span<const SortKey> groups, std::span<const SortKey> sorts);
    void setAllExpanded(bool expanded);
    void setFilter(const FilterRule &rule);
    void captionsChanged();                     ///< columns carry new captions, maybe of another language

    void searchColumns(
        const std::vector<int> &columns); ///< what a filter looks in, in the order of its captions
    void toggle(int band);                      ///< its lines come or go
    void rowEdited(int row);                    ///< new values; its line stays where it is until placeRow()
    bool placeRow(int row);                     ///< false = it takes a rebuild()
    void rebuild();
    bool prepareFilter(int rows) { return m_filter.prepare(rows); }

    int sourceRow(const QModelIndex &index) const;      ///< -1 = none, a band
    int bandOf(const QModelIndex &index) const;         ///< -1 = none, a row
    QModelIndex indexOf(int sourceRow, int column = 0) const
    {
        return index(m_engine.lineOf(sourceRow), column);
    }
    int rowWithId(qint64 id) const;             ///< -1 = none
    GridStyles &formatStyles() { return m_styles; }
    GridStyle styleOf(int sourceRow, int column) const; ///< the cell's own over the row's
    void forgetStyles() { m_styledRow = -1; }   ///< the source answers otherwise now
    QPixmap picture(int sourceRow, int column) const;
    void dropPictures() { m_pictures.clear(); }
    const GridColumn *column(int c) const;      ///< null beyond the last
    std::vector<GridChoice> choices(int c) const
    {
        return m_source ? m_source->choices(c) : std::vector<GridChoice>{};
    }
    QString cellText(int sourceRow, int column) const;  ///< as said: "igen" for a check box that is on
    QString bandText(int band) const;           ///< "caption: value (count)", with what stands before it
    void setBandCaption(const QString &caption);
    QString cardCaption(int sourceRow) const;
    void setCard(const QString &caption, int numberColumn, int nameColumn);
    int cardNameColumn() const { return m_nameColumn; }
    static QString chooseHint();                ///< how a value is chosen in a box of its own, with the key
    void choose(const QModelIndex &cell);       ///< asks for its value in a box of its own
    bool tooltips = false;

    QModelIndex index(int line, int column, const QModelIndex &parent = {}) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    void aboutToCollapse(int firstLine, int lastLine); ///< before anybody else hears of it
    void rowChanged(int sourceRow);             ///< by an edit; it may be out of place now

private:
    int cellRows() const override { return m_source ? m_source->rowCount() : 0; }
    bool sortsByNumber(int column) const override;
    double number(int row, int column) const override;
    QString text(int row, int column) const override { return cellText(row, column); }
    QVariant accessibleText(int row, int column) const;
    QString described(int column) const;
    QString accessibleBand(int band) const;
    void readColumns();
    std::vector<SortKey> known(std::span<const SortKey> keys) const; ///< those of columns that are there
    QVariant cellData(int row, int column, int role) const;

    GridSource *m_source = nullptr;
    bool m_writable = false;
    std::vector<Qt::ItemFlags> m_flags; ///< by column: a layout asks for each line's, twenty thousand times
    RowEngine m_engine{*this};
    RowFilter m_filter;
    FilterRule m_rule;
    GridStyles m_styles;
    QString m_cardCaption, m_beforeBands;
    int m_numberColumn = -1, m_nameColumn = -1;
    mutable int m_styledRow = -1; ///< the row that m_rowStyles are of: cells are painted row by row
    mutable RowStyles m_rowStyles;
    mutable QCache<std::pair<qint64, int>, QPixmap>
        m_pictures; ///< by row identifier and column, costs in kilobytes
};

} // namespace QV_DOC_CONTROLS
