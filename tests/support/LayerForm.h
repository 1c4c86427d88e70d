#pragma once

#include "grids/layer/LayerCommands.h"
#include "kit/grid/Grid.h"

#include <QTest>
#include <QAbstractItemView>

#include <cstring>

namespace tests {

/// A form that stays hidden: both grids, the layer manager that runs them, and the error that reached the
/// form.
struct LayerForm {
    std::exception_ptr error;
    QV_DOC_CONTROLS::ErrorRelay relay{[this](std::exception_ptr e) { error = e; }};
    QWidget window;                             ///< never shown
    QV_DOC_CONTROLS::Grid grid{&window}, groups{&window};
    QV_DOC_CONTROLS::clsJs_Layer js;

    explicit LayerForm(ZolWDoc::ZOLW_Doc &doc)
    {
        js.setRelay(relay);
        js.setAllowEdit(true);
        js.init(doc, grid, &groups, false);
    }
    ~LayerForm() { js.TearDown(); }

    /// Selects the listed layers with these numbers, the first of which becomes current.
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
        const auto row = std::ranges::find_if(QV_DOC_CONTROLS::kLayerCommands, [tool](const auto &c) {
            return std::strcmp(c.tool, tool) == 0;
        });
        if (row == std::end(QV_DOC_CONTROLS::kLayerCommands)) QFAIL(tool);
        if (!row->enabled || (js.*row->enabled)()) (js.*row->run)();
    }
    /// Numbers of the selected layers, the current one marked: "1 2*".
    QString selection() const
    {
        QStringList out;
        const auto current = js.currentRecord();
        for (const ZolWDoc::tLay &l : js.selectedLayers())
            out << QString::number(l.gNr) + (current == l ? QStringLiteral("*") : QString());
        return out.join(u' ');
    }
    QString listed() const                      ///< numbers of the listed layers: "1 2"
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
        return out.join(QStringLiteral(" | "));
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
    /// All layers as the grid has them, by identifier; only to be asked while all are listed.
    ZolWDoc::tLayArr rows()
    {
        grid.selectAll();
        ZolWDoc::tLayArr all = js.selectedLayers();
        std::ranges::sort(all, {}, &ZolWDoc::tLay::LayId);
        return all;
    }
};

} // namespace tests
