#pragma once

#include "kit/ask/ErrorRelay.h"
#include "kit/grid/Grid.h"
#include "kit/tools/Tool.h"
#include "support/CallLog.h"

#include "support/QtClasses.h"

#include <QAbstractItemView>

#include <cstring>

namespace tests {

/// A row of test data for each of the cases, which have names.
template <class Cases> void addCases(const Cases &cases)
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < cases.size(); ++i) QTest::newRow(cases[i].name) << int(i);
}

/// A form that stays hidden: both grids, the manager that runs them, and the error that reached the form.
template <class Manager> struct TableForm {
    using Record = typename Manager::Record;
    using Commands = std::span<const QV_DOC_CONTROLS::ToolCommand<Manager>>;
    std::exception_ptr error;
    QV_DOC_CONTROLS::ErrorRelay relay{[this](std::exception_ptr e) { error = e; }};
    QWidget window;                             ///< never shown
    QV_DOC_CONTROLS::Grid grid{&window}, groups{&window};
    Manager js;
    const Commands commands;

    TableForm(ZolWDoc::ZOLW_Doc &doc, Commands table) : commands(table)
    {
        js.setRelay(relay);
        js.setAllowEdit(true);
        js.init(doc, grid, &groups, false);
    }
    ~TableForm() { js.TearDown(); }

    QString failed() const                      ///< the host's call whose error reached the form
    {
        if (!error) return {};
        try {
            std::rethrow_exception(error);
        } catch (const HostError &e) {
            return QString::fromStdString(e.what());
        }
    }
    /// Selects the listed records with these numbers, the first of which becomes current.
    void select(const std::vector<int> &numbers)
    {
        std::vector<int> rows;
        for (const int nr : numbers)
            for (int r = 0; r < grid.table()->model()->rowCount(); ++r)
                if (cell(r, 0).toInt() == nr) rows.push_back(r);
        if (!rows.empty()) grid.setCurrentRow(rows.front());
        grid.selectRows(rows);
    }
    /// Runs a tool as its button would: not at all while it cannot be used.
    void run(const char *tool)
    {
        const auto is = [tool](const auto &c) { return std::strcmp(c.tool, tool) == 0; };
        const auto row = std::ranges::find_if(commands, is);
        if (row == commands.end()) QFAIL(tool);
        if (!row->enabled || (js.*row->enabled)()) (js.*row->run)();
    }
    /// Numbers of the selected records, the current one marked: "1 2*".
    QString selection() const
    {
        QStringList out;
        for (const int r : grid.selectedRows())
            out << cellOf(r, 0) + (r == grid.currentRow() ? "*" : QString());
        return out.join(u' ');
    }
    QString listed() const                      ///< numbers of the listed records: "1 2"
    {
        QStringList out;
        for (int r = 0; r < grid.table()->model()->rowCount(); ++r) out << cell(r, 0).toString();
        return out.join(u' ');
    }
    /// Every group as it shows itself when it is chosen: "RENDSZER: 1 2 | Utak: 2".
    QString groupsListed()
    {
        QStringList out;
        for (int r = 1; r < groups.table()->model()->rowCount(); ++r) {
            groups.setCurrentRow(r);
            out << chosenGroup() + u':' + (listed().isEmpty() ? QString() : u' ' + listed());
        }
        groups.setCurrentRow(0);
        return out.join(" | ");
    }
    QString chosenGroup() const
    {
        return groups.table()->currentIndex().siblingAtColumn(0).data().toString();
    }
    void chooseGroup(const QString &name)
    {
        for (int r = 0; r < groups.table()->model()->rowCount(); ++r)
            if (groups.table()->model()->index(r, 0).data().toString() == name) groups.setCurrentRow(r);
    }
    QVariant cell(int row, int column) const { return grid.table()->model()->index(row, column).data(); }
    QString cellOf(int row, int column) const { return grid.shownText(row, column); } ///< row of the source
    /// All records as the grid has them, by identifier; only to be asked while all are listed.
    std::vector<Record> rows(qint16 Record::*id)
    {
        grid.selectAll();
        auto all = js.selected();
        std::ranges::sort(all, {}, id);
        return all;
    }
};

} // namespace tests
