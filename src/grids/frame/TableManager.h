#pragma once

#include "grids/frame/CellEdit.h"
#include "grids/frame/ColorStyles.h"
#include "grids/frame/Desk.h"
#include "grids/frame/GridLayouts.h"
#include "grids/frame/GridManager.h"
#include "grids/frame/PenChoice.h"
#include "grids/frame/RecordRows.h"
#include "grids/frame/RowCaptions.h"
#include "kit/grid/Grid.h"

#include <QScopeGuard>

namespace QV_DOC_CONTROLS {

/// The records of one table behind a grid, typed by its table.
template <class Table>
class TableManager : public GridManager, protected RecordRows<Table>, protected TableDesk<Table> {
    using Rows = RecordRows<Table>;
public:
    using Record = typename Table::Record;

    explicit TableManager(const char *type) : GridManager(type) { Rows::readCaptions(nullptr); }
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
        Rows::setRecords({}, {});
    }
    void ml_RuntimeSupport_LanguageChanged() override
    {
        Rows::readCaptions(m_doc);
        if (!m_grid) return;
        captionRows<Table>(*m_grid);
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
        m_selectionTold = false;
        std::vector<Record> all;
        typename Table::Names names;
        const auto show = [&] {
            Rows::setRecords(std::move(all), std::move(names));
            showBeside();
            Rows::showWhatFits();
        };
        const StepRun::Steps steps = {[&] { all = Table::role(*m_doc).readAll(); },
                                      [&] { names = Table::namesOf(*m_doc); },
                                      [&] { readBeside(*m_doc, all); },
                                      [&] { m_grid->refill(show); }};
        if (!refillBy(steps, m_grid)) return;
        if (!m_selectionTold && selectedIds() != before) tellSelection();
        raiseCurrentRow();
    }
    /// Makes the record with this identifier the grid's current row; false when it is not shown.
    bool selectById(qint16 id) override
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
    std::vector<Record> selected() const override ///< in grid order
    {
        return m_grid ? Rows::recordsAt(m_grid->selectedRows()) : std::vector<Record>{};
    }
    std::optional<Record> currentRecord() const override
    {
        const int row = m_grid ? m_grid->currentRow() : -1;
        return row < 0 ? std::nullopt : std::optional(Rows::recordAt(row));
    }

    // --- when a command can be used
    bool canEditAll() const { return canEditTable() && !Rows::all().empty(); }
    bool canEditCurrent() const { return canEditTable() && m_grid->currentRow() >= 0; }
    bool canEditSelected() const { return canEditTable() && m_grid->hasSelection(); }

protected:
    void attach(ZolWDoc::ZOLW_Doc &doc, Grid &grid)
    {
        buildColorStyles(grid, doc);
        auto all = Table::role(doc).readAll();
        auto names = Table::namesOf(doc);
        readBeside(doc, all); // an error leaves nothing attached, and no layout to save
        m_doc = &doc, m_grid = &grid;
        Rows::readCaptions(m_doc);
        Rows::setRecords(std::move(all), std::move(names));
        grid.setAllowEdit(AllowEdit());
        readTooltips(grid);
        Rows::showWhatFits();
        grid.setSource(this);
        captionRows<Table>(grid);
        followView(grid);
        loadLayout(grid, Table::layout);
        connect(&grid, &Grid::currentRowMoved, this, [this] { raiseCurrentRow(); });
        connect(&grid, &Grid::selectionMoved, this, [this] { tellSelection(); });
    }
    virtual void raiseCurrent(Record) = 0;              ///< emits the table's own CurrentChanced
    virtual void raiseSelection(int count) { Q_UNUSED(count) }
    /// What a fill reads beside the table, of which all records are read; may throw.
    virtual void readBeside(ZolWDoc::ZOLW_Doc &, std::vector<Record> &) {}
    virtual void showBeside() {} ///< shows what was read, before the rows that fit are listed
    /// Writes what a cell edit made of a record; there may be more to it.
    virtual void storeEdit(const Record &, const Record &edited) { Table::role(this->doc()).update(edited); }

    // --- the desk of the commands
    ZolWDoc::ZOLW_Doc *document() const override { return m_doc; }
    int selectedCount() const override { return m_grid ? m_grid->selectedCount() : 0; }
    void refillAfter(const std::function<void()> &body) override { runAndFill(body); }
    void write(const QString &name, const std::function<void()> &body) override
    {
        runAndFill([&] { ZolWDoc::inCommand(this->doc(), name, body); });
    }
    ErrorRelay &relay() const override { return GridManager::relay(); }
    QObject *asker() const override { return m_grid; }

    Grid *grid() const { return m_grid; }
    void endEditing() override { if (m_grid) m_grid->endEditing(); }
    /// fits() answers otherwise now. What is not listed any more stays selected, and current, until the user
    /// chooses anew.
    void showAgain()
    {
        if (!m_grid) return;
        const auto before = selectedIds();
        m_selectionTold = false;
        const auto current = currentRecord();
        m_grid->refill([this] { Rows::showWhatFits(); });
        if (!m_selectionTold && selectedIds() != before) tellSelection();
        if (const auto now = currentRecord(); now && (!current || Table::id(*current) != Table::id(*now)))
            raiseCurrent(*now);
    }

    bool edit(int row, int c, const QVariant &value) override
    {
        return guardedOr(false, [&] { return tryEdit(row, c, value); });
    }

    std::optional<QVariant> choose(int row, int c) override
    {
        return guardedOr(std::optional<QVariant>(), [&] {
            return choosePen(*this, txt(Table::columns[c].caption), Rows::rowName(row), Rows::value(row, c));
        });
    }

private:
    void tellSelection()
    {
        m_selectionTold = true;
        raiseSelection(m_grid->selectedCount());
    }
    std::vector<qint16> selectedIds() const
    {
        return m_grid ? Rows::idsAt(m_grid->selectedRows()) : std::vector<qint16>();
    }
    void raiseCurrentRow() { if (const auto now = currentRecord()) raiseCurrent(*now); }
    bool lists(int row, const Record &record) const
    {
        return row < Rows::rowCount() && Table::id(Rows::recordAt(row)) == Table::id(record);
    }
    /// Refuses with the column's message, or writes to the host.
    bool tryEdit(int row, int c, const QVariant &value)
    {
        if (const auto why = Rows::refusal(row, c, value.toString())) return this->tell(*why), false;
        const auto edited = withValue<Table>(Rows::recordAt(row), c, value);
        if (!edited) return false;
        const Record before = Rows::recordAt(row);
        if (const Refusal *const why = refusalOf<Table>(before, *edited, c, Rows::all()))
            return this->tell(messageOf(*why)), false;
        {
            Record now = before;                        // the host may refill or tear down while it writes
            const auto showing = qScopeGuard([&] { if (lists(row, before)) Rows::recordAt(row) = now; });
            storeCell<Table>(*m_doc, c, now, *edited, [&] { storeEdit(before, *edited); });
        }
        if (m_grid && row == m_grid->currentRow()) raiseCurrent(*edited);
        return isOpen();
    }

    ZolWDoc::ZOLW_Doc *m_doc = nullptr;                 ///< the host's, until TearDown()
    Grid *m_grid = nullptr;                             ///< the form's, until TearDown()
    bool m_selectionTold = false;                       ///< since a refill began
};

} // namespace QV_DOC_CONTROLS
