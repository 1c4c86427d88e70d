// Pictures of the dialogs in their states, in each language and palette, for the eye: qvpictures FOLDER
// [SCALE]. Each sheet shows the states of one language; 1 when a text has no room or a bar is too short for
// its tools.
#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "dialogs/select/frmSelect.h"
#include "dialogs/viewtools/frmPreview.h"
#include "document/SqliteDoc.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/GridHeader.h"
#include "support/Looks.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QStyle>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

using namespace QV_DOC_CONTROLS;

namespace {

constexpr QSize kDialog(960, 560);
constexpr int kAcross = 2;                      ///< pictures beside each other on a sheet
constexpr char kScreen[] =
    R"({"screens": [{"name": "wide", "x": 0, "y": 0, "width": 4000, "height": 3000}]})";

std::unique_ptr<refhost::SqliteDoc> sample()
{
    auto doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    const char *const names[] = {"Földrészlet határ", "Lakóépület",      "Melléképület",
                                 "Kerítés",           "Út burkolatszél", "Vezeték – gáz",
                                 "Vezeték – víz",     "Szintvonal",      "Patak",
                                 "Alappont"};
    for (qint16 i = 0; i < 40; ++i)
        doc->layers().add({.gNr = qint16(101 + i),
                           .Name = QString::fromUtf8(names[i % 10]) + QStringLiteral(" %1").arg(i / 10),
                           .Visible = i % 4 != 3,
                           .PenStyleId = qint16(1 + i % 3),
                           .ScrColor = qint16(i * 6),
                           .PrnColor = qint16(i),
                           .PenColorId = qint16(i * 6),
                           .TxdId = 1,
                           .ElByLayer = i % 2 == 0});
    return doc;
}

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

/// One language in one palette; false when a flaw was found.
bool takeSheet(ZolWDoc::ZOLW_Doc &doc, const QString &path)
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

/// The platform without a display, with a screen that every dialog fits on.
void prepareScreen(const QTemporaryDir &home, const char *scale)
{
    const QString screen = home.filePath(QStringLiteral("screen.json"));
    QFile file(screen);
    if (!file.open(QIODevice::WriteOnly) || file.write(kScreen) < 0) qFatal("no screen");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen));
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path())); // the settings of who looks play no part
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    const char *const scale = argc > 2 ? argv[2] : "1";
    prepareScreen(home, scale);
    QApplication app(argc, argv);
    app.setStyle(QStringLiteral("Fusion"));
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("out");
    QDir().mkpath(folder);
    const auto doc = sample();
    bool flawless = true;
    for (const auto &[language, name] :
         {std::pair(Hungarian, "hu"), {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}})
        for (const bool dark : {false, true}) {
            setLanguage(language, {});
            app.setPalette(dark ? tests::darkPalette() : app.style()->standardPalette());
            flawless &= takeSheet(*doc, folder + QStringLiteral("/select-%1-%2-x%3.png")
                                            .arg(QLatin1String(name), dark ? "dark" : "light", scale));
        }
    return flawless ? 0 : 1;
}
