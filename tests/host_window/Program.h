#pragma once

#include "window/HostServices.h"
#include "window/MainWindow.h"

#include "facade/services/Language.h"

#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

namespace tests {

using namespace QV_DOC_CONTROLS;
using namespace refhost;

/// The program on the screen, in Hungarian, with a new drawing or the sample.
struct Program {
    HostServices services;
    std::unique_ptr<MainWindow> window;

    explicit Program(bool (FileCommands::*open)() = &FileCommands::newDrawing)
    {
        services.language()->setForThisRun(Hungarian);
        window = std::make_unique<MainWindow>(services);
        window->resize(900, 600);
        QVERIFY((window->files().*open)());
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QApplication::setActiveWindow(window.get());
    }
    FileCommands &files() { return window->files(); }
    DrawingPage &page() { return window->page(); }
    DrawingPage &page(int tab) { return *window->tabs().page(tab); }
    SqliteDoc &doc() { return page().doc(); }
    DrawingView &view() { return window->view(); }
    template <class T> T &child(const char *name) { return *window->findChild<T *>(QLatin1String(name)); }
    void trigger(const char *action) { child<QAction>(action).trigger(); }
    QString status(const char *label) { return child<QLabel>(label).text(); }
    QString tabs()                              ///< their names
    {
        QStringList all;
        for (int i = 0; i < window->tabs().count(); ++i) all << window->tabs().tabText(i);
        return all.join(", ");
    }
    qint16 addLayer(qint16 number, const QString &name = {}, bool visible = true)
    {
        const QString called = name.isEmpty() ? QString::number(number) : name;
        const qint16 id = doc().layers().add(
            {.gNr = number, .Name = called, .Visible = visible, .PenStyleId = 1, .TxdId = 1});
        page().refresh();
        return id;
    }
    void makeCurrent(qint16 layer)
    {
        doc().layers().makeCurrent(*doc().layers().find(layer));
        page().refresh();
    }
    /// What lies last in the drawing after clicks with a tool.
    Element drawn(const char *tool, std::initializer_list<QPoint> points)
    {
        trigger(tool);
        for (const QPoint p : points) QTest::mouseClick(&view(), Qt::LeftButton, {}, p);
        QTest::keyClick(&view(), Qt::Key_Return);
        return doc().elements().empty() ? Element() : doc().elements().back();
    }
    Element drawnLine() { return drawn("line", {{50, 60}, {90, 60}}); }
    Element drawnText(const QString &text, Qt::Key end = Qt::Key_Return)
    {
        trigger("text");
        QTest::mouseClick(&view(), Qt::LeftButton, {}, {200, 100});
        QLineEdit &entry = child<QLineEdit>("textEntry");
        entry.setText(text);
        QTest::keyClick(&entry, end);
        return doc().elements().empty() ? Element() : doc().elements().back();
    }
};

} // namespace tests
