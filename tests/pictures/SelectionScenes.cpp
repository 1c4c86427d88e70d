#include "pictures/Scene.h"

#include "facade/clsDocDlgs.h"
#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "dialogs/viewtools/frmPreview.h"
#include "document/SqliteDoc.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/GridHeader.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

using namespace QV_DOC_CONTROLS;

namespace {

constexpr QSize kDialog(960, 560);

Grid &itemsOf(frmSelect &d) { return *d.findChild<Grid *>("gridItems"); }

void group(Grid &grid, std::initializer_list<SortKey> levels) { grid.setGroupLevels(std::vector(levels)); }

struct State {
    const char *name;
    void (*make)(frmSelect &);
};
constexpr int kVisible = 2, kLineType = 3, kName = 1, kScreenColor = 4, kThickness = 4;
const State kStates[] = {
    {"table", [](frmSelect &d) { itemsOf(d).setCurrentRow(5); }},
    {"sorted",
     [](frmSelect &d) {
         itemsOf(d).setSortKeys(std::vector<SortKey>{{kVisible, SortOrder::Descending}, {kName}});
     }},
    {"grouped",
     [](frmSelect &d) {
         group(itemsOf(d), {{kLineType}, {kVisible, SortOrder::Descending}});
         itemsOf(d).toggleBandOf(itemsOf(d).currentRow());
     }},
    {"filtered", [](frmSelect &d) { group(itemsOf(d), {}), itemsOf(d).setFilterText("patak"); }},
    {"cards", [](frmSelect &d) { itemsOf(d).setFilterText({}), itemsOf(d).setView(GridView::Card); }},
    {"compact cards", [](frmSelect &d) { itemsOf(d).setView(GridView::CardMin); }},
    {"grouped cards",
     [](frmSelect &d) { group(itemsOf(d), {{kVisible}}), itemsOf(d).setView(GridView::Card); }},
};

/// Captions of shown columns that their sections have no room for.
QStringList cutCaptionsOf(frmSelect &d)
{
    QStringList cut;
    const auto &header = *itemsOf(d).findChild<GridHeader *>();
    for (int c : itemsOf(d).shownColumns())
        if (header.sectionSize(c) < header.sectionSizeHint(c))
            cut << "caption cut off: " + itemsOf(d).columns()[size_t(c)].caption;
    return cut;
}

void takeStates(frmSelect &d, tests::Sheet &sheet)
{
    d.resize(kDialog);
    for (const State &state : kStates) {
        state.make(d);
        sheet.take(d);
        sheet.flaws += cutCaptionsOf(d);
    }
    QTimer::singleShot(0, &d, [&sheet] {
        auto *const preview = qobject_cast<frmPreview *>(QApplication::activeModalWidget());
        preview->resize(kDialog);
        sheet.take(*preview);
        preview->reject();
    });
    d.findChild<QAction *>("miPrintPreview")->trigger();
    d.reject();
}

void press(QWidget &into, int key, const QString &text = {}, Qt::KeyboardModifiers held = {})
{
    QKeyEvent event(QEvent::KeyPress, key, held, text);
    QApplication::sendEvent(&into, &event);
}

/// A cell of the fourth row that is open, the box that `act` brings up over it, and the cell after that.
void takeCell(frmSetup &d, tests::Sheet &sheet, int column, void (*act)(QLineEdit &))
{
    d.resize(kDialog);
    Grid &grid = *d.findChild<Grid *>(QStringLiteral("gridItems"));
    grid.setCurrentRow(3);
    QAbstractItemView &table = *grid.table();
    table.setFocus();
    table.setCurrentIndex(table.currentIndex().siblingAtColumn(column));
    press(table, Qt::Key_F2);
    sheet.take(d);
    QTimer::singleShot(0, &d, [&sheet] {
        auto *const box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        sheet.take(*box);
        box->reject();
    });
    act(*table.findChild<QLineEdit *>());
    sheet.take(d);
    d.reject();
}

/// Runs `take` on the dialog once it is open.
void whenOpen(std::function<void(frmSetup &)> take)
{
    QTimer::singleShot(0, qApp,
                       [take] { take(*qobject_cast<frmSetup *>(QApplication::activeModalWidget())); });
}

} // namespace

/// Takes the open dialog and closes it.
template <class Dialog> void takeOpen(tests::Sheet &sheet)
{
    QTimer::singleShot(0, qApp, [&sheet] {
        auto &d = *qobject_cast<Dialog *>(QApplication::activeModalWidget());
        d.resize(kDialog);
        sheet.take(d);
        d.reject();
    });
}

void tests::takeSelection(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet)
{
    takeOpen<frmSelect>(sheet);
    ZolWDoc::tSid symbol{.SidId = 3};
    clsDocDlgs().bSelect_Sid(doc, symbol);
    whenOpen([&](frmSetup &d) {
        takeCell(d, sheet, kThickness, [](QLineEdit &cell) {
            cell.setText(QStringLiteral("0,25"));
            press(cell, Qt::Key_Return);
        });
    });
    clsDocDlgs().bEdit_Sids(doc);
    whenOpen([&](frmSetup &d) {
        takeCell(d, sheet, kScreenColor,
                 [](QLineEdit &cell) { press(cell, Qt::Key_Down, {}, Qt::AltModifier); });
    });
    clsDocDlgs().bEdit_Layers(doc);
    QTimer::singleShot(0, qApp, [&] {
        takeStates(*qobject_cast<frmSelect *>(QApplication::activeModalWidget()), sheet);
    });
    ZolWDoc::tLay lay = doc.layers().readAll()[3];
    clsDocDlgs().bSelect_Lay(doc, lay);
}
