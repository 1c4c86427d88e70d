#pragma once

#include "facade/services/Services.h"
#include "grids/frame/CellEdit.h"
#include "grids/frame/ColorStyles.h"
#include "grids/frame/GridLayouts.h"
#include "grids/frame/GridManager.h"
#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

/// The records of one table behind a grid, typed by its table.
template <class Table> class TableManager : public GridManager, protected GridSource {
public:
    using Record = typename Table::Record;

    explicit TableManager(const char *type) : GridManager(type) { readCaptions(); }
    void setAllowEdit(bool on) override
    {
        GridManager::setAllowEdit(on);
        if (m_grid) m_grid->setAllowEdit(on);
    }
    void TearDown() override
    {
        if (!m_grid) return;
        unfollow(*m_grid);
        m_grid->setSource(nullptr);
        m_grid = nullptr, m_doc = nullptr;
        m_all.clear(), m_shown.clear();
        m_leftOut.reset();
    }
    void ml_RuntimeSupport_LanguageChanged() override
    {
        readCaptions();
        if (!m_grid) return;
        m_grid->setCardCaption(txt(Table::cardCaption), Table::numberColumn, Table::nameColumn);
        m_grid->captionsChanged();
        loadLayout(*m_grid, Table::layout); // of the new language, which a later save goes to as well
    }
    void saveLayout() override { if (m_grid) saveGridLayout(*m_grid, Table::layout); }
    const GridSource &source() const override { return *this; }
    Paper paper() const override { return Table::paper(); }
    bool isOpen() const override { return m_doc != nullptr; }
    void fill() override
    {
        if (!m_doc) return;
        const auto before = selectedIds();
        std::vector<Record> all;
        typename Table::Names names;
        const auto show = [&] {
            m_all = std::move(all), m_names = std::move(names);
            showBeside();
            showWhatFits();
        };
        const StepRun::Steps steps = {[&] { all = Table::role(*m_doc).readAll(); },
                                      [&] { names = Table::namesOf(*m_doc); }, [&] { readBeside(); },
                                      [&] { m_grid->refill(show); }};
        if (!refillBy(steps, m_grid)) return;
        if (selectedIds() != before) raiseSelection(m_grid->selectedCount());
        raiseCurrentRow();
    }
    /// Makes the record with this identifier the grid's current row; false when it is not shown.
    bool selectById(qint16 id)
    {
        const int row = m_grid ? m_grid->rowWithId(id) : -1;
        if (row >= 0) m_grid->setCurrentRow(row);
        return row >= 0;
    }
    /// Selects the listed records among these; the first of them becomes the current row.
    void selectByIds(std::span<const qint16> ids)
    {
        std::vector<int> rows;
        for (const qint16 id : ids)
            if (const int row = m_grid ? m_grid->rowWithId(id) : -1; row >= 0) rows.push_back(row);
        if (rows.empty()) return;
        m_grid->setCurrentRow(rows.front());
        m_grid->selectRows(rows);
    }
    std::vector<Record> selected() const  ///< in grid order
    {
        std::vector<Record> out;
        if (m_grid)
            for (int r : m_grid->selectedRows()) out.push_back(recordAt(r));
        return out;
    }
    std::optional<Record> currentRecord() const
    {
        const int row = m_grid ? m_grid->currentRow() : -1;
        return row < 0 ? std::nullopt : std::optional(recordAt(row));
    }

protected:
    void attach(ZolWDoc::ZOLW_Doc &doc, Grid &grid)
    {
        buildColorStyles(grid, doc);
        auto all = Table::role(doc).readAll();
        auto names = Table::namesOf(doc); // an error leaves nothing attached, and no layout to save
        m_doc = &doc, m_grid = &grid, m_all = std::move(all), m_names = std::move(names);
        grid.setAllowEdit(AllowEdit());
        grid.setTooltips(
            readBoolSetting(QStringLiteral("setup"), QStringLiteral("ShowTooltipsOnGrid"), false));
        showWhatFits();
        grid.setSource(this);
        grid.setCardCaption(txt(Table::cardCaption), Table::numberColumn, Table::nameColumn);
        followView(grid);
        loadLayout(grid, Table::layout);
        QObject::connect(&grid, &Grid::currentRowMoved, this, [this] { raiseCurrentRow(); });
        QObject::connect(&grid, &Grid::selectionMoved, this,
                         [this] { raiseSelection(m_grid->selectedCount()); });
    }
    virtual void raiseCurrent(Record) = 0;              ///< emits the table's own CurrentChanced
    virtual void raiseSelection(int count) { Q_UNUSED(count) }
    virtual bool fits(const Record &) const { return true; } ///< whether the row is listed
    virtual void readBeside() {}                        ///< what a refill reads beside the table; may throw
    virtual void showBeside() {}                        ///< shows it, before the rows that fit are listed
    ZolWDoc::ZOLW_Doc *document() const { return m_doc; }
    Grid *grid() const { return m_grid; }
    const std::vector<Record> &all() const { return m_all; } ///< the whole table as last read
    /// fits() answers otherwise now. Nothing takes the place of a current record that is not listed any more;
    /// it is current again when it is listed again and no other one was chosen meanwhile.
    void showAgain()
    {
        if (!m_grid) return;
        const auto before = selectedIds();
        if (const auto current = currentRecord()) m_leftOut = Table::id(*current);
        m_grid->refill([this] { showWhatFits(); }, Grid::Gone::Nothing);
        const bool isBack =
            !currentRecord() && m_leftOut && selectById(*m_leftOut); // which raises what changes
        if (!isBack && selectedIds() != before) raiseSelection(m_grid->selectedCount());
    }

    // --- the grid's view of the records
    const std::vector<GridColumn> &columns() const override { return m_columns; }
    int rowCount() const override { return int(m_shown.size()); }
    qint64 rowId(int row) const override { return Table::id(recordAt(row)); }
    QVariant value(int row, int c) const override { return Table::columns[c].get(recordAt(row)); }
    QString text(int row, int c) const override { return Table::columns[c].shown(recordAt(row), m_names); }
    RowStyles styles(int row) const override { return Table::styles(recordAt(row)); }
    std::vector<GridChoice> choices(int c) const override
    {
        return Table::columns[c].choices ? Table::columns[c].choices(m_names) : std::vector<GridChoice>{};
    }
    bool edit(int row, int c, const QVariant &value) override
    {
        bool stored = false;
        command([&] { stored = tryEdit(row, c, value); });
        return stored;
    }

private:
    const Record &recordAt(int row) const { return m_all[size_t(m_shown[size_t(row)])]; }

    void showWhatFits()
    {
        m_shown.clear();
        for (int i = 0; i < int(m_all.size()); ++i)
            if (fits(m_all[size_t(i)])) m_shown.push_back(i);
    }
    std::vector<qint16> selectedIds() const
    {
        std::vector<qint16> ids;
        for (const Record &r : selected()) ids.push_back(Table::id(r));
        return ids;
    }
    void readCaptions() { m_columns = gridColumnsOf<Table>(); }
    void raiseCurrentRow() { if (const auto now = currentRecord()) raiseCurrent(*now); }
    /// Refuses with the column's message, or writes to the host.
    bool tryEdit(int row, int c, const QVariant &value)
    {
        const auto edited = withValue<Table>(recordAt(row), c, value);
        if (!edited) return false;
        if (const Refusal *const why = refusalOf<Table>(*edited, c, m_all)) return tell(*why, m_grid), false;
        Record &shown = m_all[size_t(m_shown[size_t(row)])];
        try {
            ZolWDoc::inCommand(*m_doc, txt(Table::columns[c].caption),
                               [&] { Table::role(*m_doc).update(*edited); });
        } catch (...) { // what the document has now, an error of its own apart
            relay().tryQuietly([&] { shown = Table::role(*m_doc).find(Table::id(shown)).value_or(shown); });
            throw;
        }
        shown = *edited;
        if (row == m_grid->currentRow()) raiseCurrent(*edited);
        return true;
    }

    ZolWDoc::ZOLW_Doc *m_doc = nullptr;                 ///< the host's, until TearDown()
    Grid *m_grid = nullptr;                             ///< the form's, until TearDown()
    std::vector<Record> m_all;
    std::vector<int> m_shown;                           ///< rows of the grid as indexes into m_all
    typename Table::Names m_names;
    std::optional<qint16> m_leftOut;                    ///< the record last current that fits() left out
    std::vector<GridColumn> m_columns;
};

} // namespace QV_DOC_CONTROLS
