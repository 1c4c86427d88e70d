#include "pictures/Scene.h"

#include "facade/clsDocDlgs.h"
#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "dialogs/viewtools/frmPreview.h"
#include "document/SqliteDoc.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/GridHeader.h"

#include <QAction>
#include <QApplication>
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
constexpr int kVisible = 2, kLineType = 3, kName = 1;
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
    takeOpen<frmSetup>(sheet);
    clsDocDlgs().bEdit_Sids(doc);
    QTimer::singleShot(0, qApp, [&] {
        takeStates(*qobject_cast<frmSelect *>(QApplication::activeModalWidget()), sheet);
    });
    ZolWDoc::tLay lay = doc.layers().readAll()[3];
    clsDocDlgs().bSelect_Lay(doc, lay);
}
