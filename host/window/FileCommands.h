#pragma once

#include "window/OpenDrawing.h"

#include <QObject>

class QWidget;

namespace refhost {

/// New, open, save, recent files: which drawing the window shows, and that no unsaved work is lost on the
/// way.
class FileCommands : public QObject {
    Q_OBJECT
public:
    explicit FileCommands(QWidget &window);
    OpenDrawing *drawing() { return m_drawing.get(); }

    // Each asks first when unsaved work would be lost, and tells what went wrong; false = the drawing is as
    // before.
    bool newDrawing();
    bool openSample();
    bool open();                                    ///< asks for the file
    bool openFile(const QString &path);             ///< .qvd
    bool import();                                  ///< asks for the file
    bool importFile(const QString &path, bool ask = true); ///< .dxf; `ask` for its unit, else it is guessed
    bool saveAs();
    bool mayLeave(); ///< asks what to do with unsaved work; false = the user stays
    void adopt(std::unique_ptr<OpenDrawing>);       ///< asks nothing

    static QStringList recent();                    ///< paths, latest first
    void tellFailure(const QString &why);
signals:
    void opened(); ///< there is another drawing, or the same under another name
    void aboutToClose();                            ///< the drawing is going away
private:
    template <class Make> bool replaceBy(Make);
    void remember(const QString &path);
    QWidget &m_window;
    std::unique_ptr<OpenDrawing> m_drawing;
};

} // namespace refhost
