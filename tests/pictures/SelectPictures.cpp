#include "pictures/SelectPictures.h"

#include "dialogs/select/frmSelect.h"
#include "dialogs/viewtools/frmPreview.h"
#include "facade/clsDocDlgs.h"
#include "kit/grid/GridHeader.h"
#include "support/Looks.h"

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QTimer>

#include <cstdio>

using namespace QV_DOC_CONTROLS;

namespace {

constexpr QSize kDialog(960, 560);
constexpr int kAcross = 2;                      ///< pictures beside each other on a sheet

Grid &itemsOf(frmSelect &d) { return *d.findChild<Grid *>(QStringLiteral("gridItems")); }

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
    {"filtered",
     [](frmSelect &d) { group(itemsOf(d), {}), itemsOf(d).setFilterText(QStringLiteral("patak")); }},
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
            cut << QStringLiteral("caption cut off: ") + itemsOf(d).columns()[size_t(c)].caption;
    return cut;
}

struct Pictures {
    std::vector<QPixmap> all;
    QStringList flaws;

    void take(QDialog &d)
    {
        QCoreApplication::sendPostedEvents();   // layouts and scroll bars
        all.push_back(d.grab());
        flaws += tests::flawsOf(d);
    }
    void takeStates(frmSelect &d)
    {
        d.resize(kDialog);
        for (const State &state : kStates) {
            state.make(d);
            take(d);
            flaws += cutCaptionsOf(d);
        }
        QTimer::singleShot(0, &d, [this] {
            auto *const preview = qobject_cast<frmPreview *>(QApplication::activeModalWidget());
            preview->resize(kDialog);
            take(*preview);
            preview->reject();
        });
        d.findChild<QAction *>(QStringLiteral("miPrintPreview"))->trigger();
        d.reject();
    }
    bool save(const QString &path) const
    {
        const QSize one = all.front().deviceIndependentSize().toSize();
        const int rows = (int(all.size()) + kAcross - 1) / kAcross;
        QPixmap sheet(QSize(one.width() * kAcross, one.height() * rows) * all.front().devicePixelRatio());
        sheet.setDevicePixelRatio(all.front().devicePixelRatio());
        sheet.fill(Qt::darkGray);
        QPainter painter(&sheet);
        for (int i = 0; i < int(all.size()); ++i)
            painter.drawPixmap(QPoint(i % kAcross * one.width(), i / kAcross * one.height()), all[size_t(i)]);
        return sheet.save(path);
    }
};

} // namespace

bool saveSelection(ZolWDoc::ZOLW_Doc &doc, const QString &path)
{
    Pictures pictures;
    QTimer::singleShot(0, qApp, [&] {
        pictures.takeStates(*qobject_cast<frmSelect *>(QApplication::activeModalWidget()));
    });
    ZolWDoc::tLay lay = doc.layers().readAll()[3];
    clsDocDlgs().bSelect_Lay(doc, lay);
    for (const QString &flaw : std::as_const(pictures.flaws))
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(flaw));
    std::printf("%s\n", qPrintable(path));
    return pictures.save(path) && pictures.flaws.isEmpty();
}
