#pragma once

#include "window/Icons.h"
#include "window/MainWindow.h"

#include "facade/services/Text.h"

namespace refhost {

/// The program's own commands as data: what a menu and a toolbar are built from.
struct WindowActions {
    enum Menu { File, View, Draw, Dialogs, LanguageMenu, MenuCount };
    struct Row {
        const char *name;                           ///< object name of the action
        Menu menu;
        QV_DOC_CONTROLS::Text text;
        std::optional<Sign> sign;                   ///< with one it stands on the toolbar too
        const char *keys;                           ///< portable, several separated by ';'
        void (*run)(MainWindow &, bool checked);
        enum Kind { Plain, Switch, ToolChoice } kind = Plain;
        bool separatorBefore = false;
        DrawingView::Tool tool = DrawingView::Tool::Select; ///< of a ToolChoice
    };
    static std::span<const Row> rows();
    static std::span<const QV_DOC_CONTROLS::Text> menus(); ///< captions by Menu
    static QV_DOC_CONTROLS::Text hintOf(DrawingView::Tool);
};

} // namespace refhost
