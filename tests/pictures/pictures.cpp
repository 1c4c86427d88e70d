// Saves a picture of every dialog in its states, in each language and palette, for the eye: pictures FOLDER
#include "facade/services/Language.h"
#include "facade/clsDocDlgs.h"
#include "document/SqliteDoc.h"
#include "grids/clsJs_Layer.h"
#include "pictures/ControlPictures.h"
#include "pictures/Scene.h"
#include "support/LayerDoc.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPalette>
#include <QTimer>

#include <cstdio>

using namespace QV_DOC_CONTROLS;

namespace {

QPalette darkPalette()
{
    QPalette p(QColor(53, 53, 53));
    p.setColor(QPalette::Base, QColor(35, 35, 35));
    p.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    p.setColor(QPalette::Highlight, QColor(42, 130, 218));
    p.setColor(QPalette::HighlightedText, Qt::white);
    for (auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        p.setColor(role, Qt::white);
        p.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    }
    return p;
}

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
                           .PenStyleId = 1,
                           .ScrColor = qint16(i * 6),
                           .PrnColor = qint16(i),
                           .PenColorId = qint16(i * 6),
                           .TxdId = 1,
                           .ElByLayer = i % 2 == 0});
    return doc;
}

std::vector<tests::Scene> selectionScenes()
{
    return {{"select", [] {
                 const auto doc = sample();
                 ZolWDoc::tLay lay = doc->layers().readAll()[3];
                 clsDocDlgs().bSelect_Lay(*doc, lay);
             }}};
}

void saveModalWindow(const QString &path)
{
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog) qFatal("nothing is open for %s", qPrintable(path));
    dialog->grab().save(path);
    std::printf("%s\n", qPrintable(path));
    dialog->reject();
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    app.setStyle(QStringLiteral("Fusion"));
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("out");
    QDir().mkpath(folder);
    const QPalette light = app.palette();
    const auto controlsDoc = sample();
    std::vector<tests::Scene> scenes = selectionScenes();
    for (tests::Scene &scene : tests::valueScenes()) scenes.push_back(std::move(scene));
    for (const auto &[language, suffix] :
         {std::pair(Hungarian, "hu"), {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}}) {
        for (const bool dark : {false, true}) {
            setLanguage(language, {});
            app.setPalette(dark ? darkPalette() : light);
            const auto pathOf = [&, suffix = QLatin1String(suffix), dark = dark](const char *what) {
                return folder +
                       QStringLiteral("/%1-%2-%3.png").arg(QLatin1String(what), suffix, dark ? "dark" : "light");
            };
            saveLayerControls(*controlsDoc, pathOf("layer-controls"));
            for (const tests::Scene &scene : scenes) {
                const QString path = pathOf(scene.name);
                QTimer::singleShot(0, &app, [&] { // after what the scene does to its open box
                    QTimer::singleShot(0, &app, [&] { saveModalWindow(path); });
                });
                scene.open();
            }
        }
    }
    return 0;
}
