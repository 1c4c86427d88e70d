#pragma once

#include "kit/ask/ErrorRelay.h"
#include "kit/tools/Tool.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;
class QToolBar;

namespace QV_DOC_CONTROLS {

/// The tools of a window, by name: bands are shown as tool bars, menu bars or pop-up menus, every tool is one
/// action with its shortcut, and a click on it runs its row of a command table inside the window's error
/// relay. A tool is shown once something is bound to it.
///
/// Belongs to the widget in which its shortcuts count. Captions follow retranslate(), which the widget calls.
class ToolSet final : public QObject {
    Q_OBJECT
public:
    using Tables = std::vector<std::span<const Tool>>;
    /// The rows of the tables one after the other, as if they were one table. The relay outlives the set.
    ToolSet(const Tables &tables, ErrorRelay &relay, QWidget *owner);
    ToolSet(std::span<const Tool> rows, ErrorRelay &relay, QWidget *owner)
        : ToolSet(Tables{rows}, relay, owner)
    {}

    QToolBar *toolBar(const char *band, Text name);     ///< new, the owner's; `name` is for screen readers
    QMenuBar *menuBar(const char *band, Text name);     ///< of tools that pop up a band; new, the owner's
    QMenu *popUp(const char *band);             ///< the same for every call, the owner's
    QAction *tool(const char *name) const;      ///< null = no such tool

    /// What a tool does; refresh() asks the rest, also after every run and before a pop-up opens.
    struct Behaviour {
        std::function<void()> run;
        std::function<bool()> enabled{};        ///< none = always
        std::function<bool()> checked{};        ///< none = as the user left it
        QObject *user = nullptr;                ///< the tool is disabled once it is gone; null = never
    };
    void on(const char *name, Behaviour behaviour);     ///< the name must have a row
    void release(const QObject &user);          ///< as when it goes
    /// An entry of a list that a pop-up shows; `name` is the action's, `id` its data.
    struct Entry {
        QString name, caption;
        int id = 0;
    };
    /// The entries of a band that are not known before; asked for whenever the tools are asked. `run` gets
    /// the place of the one that was chosen.
    void list(const char *band, std::function<std::vector<Entry>()> entries, std::function<void(int)> run);
    template <class Owner>                      ///< commands whose tools have no row here are passed over
    void connectTools(Owner &to, std::span<const std::type_identity_t<ToolCommand<Owner>>> table)
    {
        const auto asks = [&to](bool (Owner::*what)() const) {
            return what ? [&to, what] { return (to.*what)(); } : std::function<bool()>{};
        };
        QObject *user = nullptr;
        if constexpr (std::is_base_of_v<QObject, Owner>) user = &to;
        for (const auto &c : table)
            if (tool(c.tool))
                on(c.tool, {[&to, run = c.run] { (to.*run)(); }, asks(c.enabled), asks(c.checked), user});
    }
    void refresh();                             ///< asks every tool whether it can be used now
    void setChecked(const char *name, bool on); ///< shows a state; runs nothing
    void retranslate();

private:
    struct Bound {
        QAction *tool;
        Behaviour behaviour;
        QPointer<QObject> user;
    };
    struct Listed {
        QMenu *menu;
        std::function<std::vector<Entry>()> entries;
        std::function<void(int)> run;
        QList<QAction *> actions;
    };
    void fillList(Listed &list);
    void makeTool(const Tool &row);
    QMenu *menuOf(const char *band);            ///< perhaps not filled yet
    template <class Band> void addTo(Band &band, const char *name);
    void giveAccessKeys();
    QWidget *owner() const;

    std::vector<Tool> m_rows;
    ErrorRelay &m_relay;
    QHash<QByteArray, QAction *> m_tools;
    QHash<QByteArray, QMenu *> m_popUps;
    QHash<QByteArray, QActionGroup *> m_oneOf;  ///< by band
    QSet<QByteArray> m_keyed;                   ///< bands whose tools have access keys
    std::vector<std::pair<QWidget *, Text>> m_bars;     ///< and what a screen reader calls them
    std::vector<Bound> m_bound;
    std::vector<Listed> m_lists;
};

} // namespace QV_DOC_CONTROLS
