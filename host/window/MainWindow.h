#pragma once

#include "window/DrawingEdits.h"
#include "window/FileCommands.h"

#include <QMainWindow>

class QActionGroup;
class QLabel;

namespace QV_DOC_CONTROLS { class clsDocDlgs; }

namespace refhost {

class HostServices;
struct DialogCall;

/// The program's window: one drawing, its menus and the library's dialogs. Captions follow the language at
/// once.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(HostServices &);            ///< without a drawing; the services outlive the window
    ~MainWindow() override;

    FileCommands &files() { return m_files; }
    DrawingView &view() { return *m_view; }
    DrawingEdits &edits() { return m_edits; }
    void chooseTool(DrawingView::Tool);
    bool run(const DialogCall &);                   ///< whether the user confirmed; errors are told
    void refresh();                                 ///< reads the document anew

protected:
    void closeEvent(QCloseEvent *) override;
    void changeEvent(QEvent *) override;

private:
    void buildActions();
    void buildDialogs();
    void buildLanguages();
    void buildStatus();
    void connectParts();
    void retranslate();
    void showRecent();
    void showStatus();
    void showCursor(QPointF world);
    void showTool();
    void restoreLook();
    void rememberLook() const;
    QAction *action(const char *name) const;
    HostServices &m_services;
    std::unique_ptr<QV_DOC_CONTROLS::clsDocDlgs> m_dialogs;
    DrawingView *m_view;
    FileCommands m_files;
    DrawingEdits m_edits;
    std::vector<QMenu *> m_menus;                   ///< in the order of the menu bar
    QMenu *m_recent = nullptr;
    QActionGroup *m_tools = nullptr;
    QActionGroup *m_languages = nullptr;
    QLabel *m_layer = nullptr, *m_place = nullptr, *m_scale = nullptr, *m_count = nullptr, *m_hint = nullptr;
};

} // namespace refhost
