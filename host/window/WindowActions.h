#pragma once

#include "window/Icons.h"
#include "window/MainWindow.h"

#include "facade/services/Text.h"

#include <span>
#include <variant>

namespace refhost {

/// The program's own commands as data: what menus and toolbars are built from.
struct WindowActions {
    enum Menu { File, View, Draw, Dialogs, Settings, LanguageMenu, MenuCount };
    enum Kind { Plain, Switch };
    using Act = void (*)(MainWindow &, bool checked);
    struct Row {
        const char *name;                           ///< object name of the action
        Menu menu;
        QV_DOC_CONTROLS::Text text;
        std::optional<Sign> sign;                   ///< with one it stands on the toolbar too
        const char *keys;                           ///< portable, several separated by ';'
        std::variant<Act, DrawingView::Tool> does;  ///< runs something, or chooses the view's tool
        Kind kind = Plain;
        bool separatorBefore = false;

        const DrawingView::Tool *tool() const { return std::get_if<DrawingView::Tool>(&does); }
        bool needsDrawing() const { return menu != File && kind != Switch; }
    };
    static std::span<const Row> rows();
    static std::span<const QV_DOC_CONTROLS::Text> menus(); ///< captions by Menu
    static QV_DOC_CONTROLS::Text hintOf(DrawingView::Tool);
};

} // namespace refhost
