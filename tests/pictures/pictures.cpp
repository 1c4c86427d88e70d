// Pictures of the dialogs and controls in their states, in each language and palette, for the eye:
// qvpictures FOLDER [SCALE]. Ends with 1 when a text has no room or a bar is too short for its tools.
#include "document/SqliteDoc.h"
#include "facade/services/Language.h"
#include "pictures/ControlPictures.h"
#include "pictures/Scene.h"
#include "pictures/SelectPictures.h"
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

bool saveModalWindow(const QString &path)
{
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog) qFatal("nothing is open for %s", qPrintable(path));
    dialog->grab().save(path);
    const QStringList flaws = tests::flawsOf(*dialog);
    for (const QString &flaw : flaws)
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(flaw));
    std::printf("%s\n", qPrintable(path));
    dialog->reject();
    return flaws.isEmpty();
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
    for (const auto &[language, suffix] :
         {std::pair(Hungarian, "hu"), {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}})
        for (const bool dark : {false, true}) {
            setLanguage(language, {});
            app.setPalette(dark ? tests::darkPalette() : app.style()->standardPalette());
            const auto pathOf = [&, suffix = QLatin1String(suffix), dark = dark](const char *what) {
                return folder + QStringLiteral("/%1-%2-%3-x%4.png")
                                    .arg(QLatin1String(what), suffix, dark ? "dark" : "light", scale);
            };
            flawless &= saveSelection(*doc, pathOf("select"));
            saveLayerControls(*doc, pathOf("layer-controls"));
            for (const tests::Scene &scene : tests::valueScenes()) {
                QTimer::singleShot(0, &app, [&] { // after what the scene does to its open box
                    QTimer::singleShot(0, &app, [&] { flawless &= saveModalWindow(pathOf(scene.name)); });
                });
                scene.open();
            }
        }
    return flawless ? 0 : 1;
}
