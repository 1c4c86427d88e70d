#include "TinyDoc.h"

#include "controls/ZOL3_LayGroup.h"
#include "facade/clsDocDlgs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <memory>

/// What a user would press, once the dialog has the keyboard.
static void pressInDialog(std::initializer_list<int> keys)
{
    auto *const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, keys = std::vector(keys)] {
        if (!QApplication::activeModalWidget() || !QApplication::focusWidget()) return;
        timer->deleteLater();
        timer->stop();
        for (int key : keys) {
            QWidget *const target = QApplication::focusWidget();
            if (!target) return;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(target, &press);
        }
    });
    timer->start(0);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    example::TinyDoc doc;
    constexpr std::pair<int, const char *> kLayers[] = {{10, "Buildings"}, {20, "Roads"}, {30, "Water"}};
    for (const auto &[number, name] : kLayers) {
        ZolWDoc::tLay lay;
        lay.gNr = qint16(number);
        lay.Name = QString::fromLatin1(name);
        doc.layers().add(lay);
    }
    QV_DOC_CONTROLS::clsDocDlgs dialogs;
    ZolWDoc::tLay lay = doc.layers().readAll().front();
    pressInDialog({Qt::Key_Down, Qt::Key_Return});
    if (!dialogs.bSelect_Lay(doc, lay)) return 1;
    std::printf("picked %d %s\n", lay.gNr, qPrintable(lay.Name));
    std::printf("current %d\n", doc.layers().find(doc.layers().currentId()).value().gNr);

    QV_DOC_CONTROLS::ZOL3_LayGroup set;
    QObject::connect(&set, &QV_DOC_CONTROLS::ZOL3_LayGroup::ChangeLays,
                     [](QV_DOC_CONTROLS::LayerSet &layers) { std::printf("set of %d\n", layers.count()); });
    set.setZOLW_Doc(&doc);
    set.setsLays(QStringLiteral("30,1-20"));
    std::printf("named %s\n", qPrintable(set.sLays()));
}
