#pragma once

#include "window/DrawingTabs.h"

#include <QObject>

namespace refhost {

/// New, open, save, close, recent files: which drawings the window shows, and that no unsaved work is lost on
/// the way. Each drawing opens on a tab of its own; a file that is open already comes to the front.
class FileCommands : public QObject {
    Q_OBJECT
public:
    explicit FileCommands(DrawingTabs &tabs);
    OpenDrawing *drawing();                         ///< the one in front; null = none is open

    // Each tells what went wrong; false = the drawings are as before.
    bool newDrawing();
    bool openSample();
    bool open();                                    ///< asks for the file
    bool openFile(const QString &path);             ///< .qvd
    bool import();                                  ///< asks for the file
    bool importFile(const QString &path, bool ask = true); ///< .dxf; `ask` for its unit, else it is guessed
    bool saveAs();                                  ///< the drawing in front
    bool close(int tab); ///< asks what to do with unsaved work; an empty drawing takes the place of the last
    bool mayLeave(); ///< asks about every drawing with unsaved work; false = the user stays

    static QStringList recent();                    ///< paths, latest first
    void tellFailure(const QString &why);
private:
    template <class Make> bool opened(Make);
    bool mayClose(int tab);
    void requireNotOpen(const QString &path);
    void remember(const QString &path);
    QWidget &window() { return *m_tabs.window(); }
    DrawingTabs &m_tabs;
};

} // namespace refhost
