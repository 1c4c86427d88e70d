// Pictures of the dialogs in their states, in each language and palette, for the eye: qvpictures FOLDER
// [SCALE]. Each sheet shows the states of one language; 1 when a text has no room or a bar is too short for
// its tools.
#include "facade/services/Language.h"
#include "document/SqliteDoc.h"
#include "pictures/Scene.h"
#include "support/Looks.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStyle>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

using namespace QV_DOC_CONTROLS;

namespace {

constexpr char kScreen[] =
    R"({"screens": [{"name": "wide", "x": 0, "y": 0, "width": 4000, "height": 3000}]})";

std::unique_ptr<refhost::SqliteDoc> sample()
{
    auto doc = refhost::SqliteDoc::create(":memory:");
    const char *const names[] = {"Földrészlet határ", "Lakóépület",      "Melléképület",
                                 "Kerítés",           "Út burkolatszél", "Vezeték – gáz",
                                 "Vezeték – víz",     "Szintvonal",      "Patak", "Alappont"};
    for (qint16 i = 0; i < 40; ++i)
        doc->layers().add({.gNr = qint16(101 + i), .Name = QString("%1 %2").arg(names[i % 10]).arg(i / 10),
                           .Visible = i % 4 != 3, .PenStyleId = qint16(1 + i % 3), .ScrColor = qint16(i * 6),
                           .PrnColor = qint16(i), .PenColorId = qint16(i * 6), .TxdId = 1,
                           .ElByLayer = i % 2 == 0});
    for (qint16 i = 0; i < 12; ++i)
        doc->symbols().add({.Code = 65 + 3 * i, .ShortName = QString("%1%2").arg(names[i % 10]).arg(i),
                            .Align = 6, .Size_mm = 2.0f + float(i) / 4, .YwFact = 1, .XwFact = 1,
                            .Facename = "DejaVu Sans", .Weight = 16, .CharSet = 238,
                            .ProtXmm = 1, .ProtType = 1, .LayId = i});
    return doc;
}

/// The platform without a display, with a screen that every dialog fits on.
void prepareScreen(const QTemporaryDir &home, const char *scale)
{
    const QString screen = home.filePath("screen.json");
    QFile file(screen);
    if (!file.open(QIODevice::WriteOnly) || file.write(kScreen) < 0) qFatal("no screen");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen));
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path())); // the settings of who looks play no part
}

template <auto Scenes> void takeScenes(ZolWDoc::ZOLW_Doc &, tests::Sheet &sheet)
{
    for (const tests::Scene &scene : Scenes()) {
        QTimer::singleShot(0, qApp, [&] { // after what the scene does to its open box
            QTimer::singleShot(0, qApp, [&] {
                auto *const box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                if (!box) qFatal("nothing is open for %s", scene.name);
                sheet.take(*box);
                box->reject();
            });
        });
        scene.open();
    }
}

struct SheetRow {
    const char *name;
    void (*take)(ZolWDoc::ZOLW_Doc &, tests::Sheet &);
};
constexpr SheetRow kSheets[] = {
    {"controls", tests::takeControls}, {"editors", tests::takeEditors},
    {"fonts", takeScenes<tests::fontScenes>}, {"select", tests::takeSelection},
    {"values", takeScenes<tests::valueScenes>}, {"viewtools", takeScenes<tests::viewToolScenes>}};

/// One language in one palette; false when a flaw was found.
bool takeSheets(ZolWDoc::ZOLW_Doc &doc, const QString &folder, const QString &variant)
{
    bool flawless = true;
    for (const SheetRow &row : kSheets) {
        tests::Sheet sheet;
        row.take(doc, sheet);
        const QString path = folder + u'/' + QLatin1String(row.name) + variant;
        for (const QString &flaw : std::as_const(sheet.flaws))
            std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(flaw));
        std::printf("%s\n", qPrintable(path));
        flawless &= sheet.save(path) && sheet.flaws.isEmpty();
    }
    return flawless;
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    const char *const scale = argc > 2 ? argv[2] : "1";
    prepareScreen(home, scale);
    QApplication app(argc, argv);
    app.setStyle("Fusion");
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : "out";
    QDir().mkpath(folder);
    const auto doc = sample();
    bool flawless = true;
    for (const auto &[language, name] :
         {std::pair(Hungarian, "hu"), {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}})
        for (const bool dark : {false, true}) {
            setLanguage(language, {});
            app.setPalette(dark ? tests::darkPalette() : app.style()->standardPalette());
            flawless &= takeSheets(*doc, folder,
                QStringLiteral("-%1-%2-x%3.png").arg(QLatin1String(name), dark ? "dark" : "light", scale));
        }
    return flawless ? 0 : 1;
}
