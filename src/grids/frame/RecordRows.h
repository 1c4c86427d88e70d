#pragma once

#include "grids/frame/Column.h"
#include "grids/frame/NotTaken.h"
#include "kit/grid/CardCaption.h"

#include <QSet>

#include <algorithm>

namespace QV_DOC_CONTROLS {

/// The records of a table as last read, seen by a grid: those that fit are its rows.
template <class Table> class RecordRows : public GridSource {
public:
    using Record = typename Table::Record;

protected:
    const std::vector<Record> &all() const { return m_all; } ///< the whole table as last read
    const typename Table::Names &names() const { return m_names; }
    const Record &recordAt(int row) const { return m_all[size_t(m_shown[size_t(row)])]; }
    Record &recordAt(int row) { return m_all[size_t(m_shown[size_t(row)])]; }
    QString rowName(int row) const                      ///< "Réteg: 5/Falak"
    {
        return cardCaption(txt(Table::cardCaption), text(row, Table::numberColumn),
                           text(row, Table::nameColumn));
    }
    virtual bool fits(const Record &) const { return true; } ///< whether the record is listed

    std::vector<Record> recordsAt(std::span<const int> rows) const
    {
        std::vector<Record> out;
        for (const int row : rows) out.push_back(recordAt(row));
        return out;
    }
    std::vector<qint16> idsAt(std::span<const int> rows) const
    {
        std::vector<qint16> out;
        for (const int row : rows) out.push_back(Table::id(recordAt(row)));
        return out;
    }
    void readCaptions(ZolWDoc::ZOLW_Doc *doc) { m_columns = gridColumnsOf<Table>(doc); }
    template <class Change> void patchAll(Change patch) { std::ranges::for_each(m_all, patch); }
    void setRecords(std::vector<Record> all, typename Table::Names names) ///< none of them is listed yet
    {
        m_all = std::move(all), m_names = std::move(names);
        m_shown.clear();
    }
    void showWhatFits()
    {
        m_shown.clear();
        for (int i = 0; i < int(m_all.size()); ++i)
            if (fits(m_all[size_t(i)])) m_shown.push_back(i);
    }

    const std::vector<GridColumn> &columns() const override { return m_columns; }
    int rowCount() const override { return int(m_shown.size()); }
    qint64 rowId(int row) const override { return Table::id(recordAt(row)); }
    std::vector<qint64> existing(std::vector<qint64> ids) const override
    {
        QSet<qint64> known;
        for (const Record &r : m_all) known.insert(Table::id(r));
        std::erase_if(ids, [&](qint64 id) { return !known.contains(id); });
        return ids;
    }
    QVariant value(int row, int c) const override { return Table::columns[c].get(recordAt(row)); }
    QString text(int row, int c) const override { return Table::columns[c].shown(recordAt(row), m_names); }
    std::optional<Message> refusal(int row, int c, const QString &typed) const override
    {
        const auto &column = Table::columns[c];
        // A cell that was emptied keeps its value without a word, on purpose: as a prompt without an answer.
        if (!column.isNumber() || typed.trimmed().isEmpty()) return {};
        Record edited = recordAt(row);
        if (column.put(edited, typed) && column.takes(column.get(edited))) return {};
        return notTaken(rowName(row), txt(column.longCaption.id ? column.longCaption : column.caption),
                        typed, column.asField());
    }
    RowStyles styles(int row) const override { return Table::styles(recordAt(row)); }
    std::vector<GridChoice> choices(int c) const override
    {
        return Table::columns[c].choices ? Table::columns[c].choices(m_names) : std::vector<GridChoice>{};
    }

private:
    std::vector<Record> m_all;
    std::vector<int> m_shown;                           ///< rows of the grid as indexes into m_all
    typename Table::Names m_names;
    std::vector<GridColumn> m_columns;
};

} // namespace QV_DOC_CONTROLS
