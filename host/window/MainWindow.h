#pragma once

#include "window/FileCommands.h"
#include "window/NewElementForm.h"
#include "window/StatusLine.h"

#include <QMainWindow>

class QActionGroup;
class QDockWidget;

namespace QV_DOC_CONTROLS { class clsDocDlgs; }

namespace refhost {

class CodePageMenu;
class HostServices;
struct DialogCall;

/// The program's window: the open drawings, its menus and the library's dialogs. Captions follow the language
/// at once.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(HostServices &);            ///< without a drawing; the services outlive the window
    ~MainWindow() override;

    FileCommands &files() { return m_files; }
    DrawingTabs &tabs() { return *m_tabs; }
    DrawingPage &page() { return *m_tabs->page(); } ///< the drawing in front; there must be one
    DrawingView &view() { return page().view(); }
    void chooseTool(DrawingView::Tool);
    void showNewElement(bool);                      ///< the page beside the drawing
    void setDark(bool);                             ///< of all drawings
    void setColors(Colors);                         ///< of all drawings
    void setWarning(bool); ///< asks before an invisible layer becomes current
    void setOldStyle(bool); ///< the library's managers instead of its selection and setup dialogs
    bool run(const DialogCall &);                   ///< whether the user confirmed; errors are told

protected:
    void closeEvent(QCloseEvent *) override;
    void changeEvent(QEvent *) override;

private:
    void buildActions();
    void buildDialogs();
    void buildLanguages();
    void buildNewElement();
    void connectParts();
    void adopt(DrawingPage &);
    void retranslate();
    void showRecent();
    void showStatus();
    void showTool();
    void restoreLook();
    void rememberLook() const;
    QAction *action(const char *name) const;
    HostServices &m_services;
    std::unique_ptr<QV_DOC_CONTROLS::clsDocDlgs> m_dialogs;
    DrawingTabs *m_tabs;
    FileCommands m_files;
    StatusLine m_status;
    NewElementForm *m_newElement;
    QDockWidget *m_newElementPage;
    std::vector<QMenu *> m_menus;                   ///< in the order of the menu bar
    QMenu *m_recent = nullptr;
    CodePageMenu *m_codePages = nullptr;
    QActionGroup *m_tools = nullptr;
    QActionGroup *m_languages = nullptr;
    bool m_dark = false;
    Colors m_colors = Colors::Screen;
};

} // namespace refhost
