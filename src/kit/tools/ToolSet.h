#pragma once

#include "kit/ask/ErrorRelay.h"
#include "kit/tools/Tool.h"

#include <QHash>
#include <QObject>

class QAction;
class QActionGroup;
class QMenu;
class QToolBar;

namespace QV_DOC_CONTROLS {

/// The tools of a window, by name: bands are shown as tool bars or pop-up menus, every tool is one action
/// with its shortcut, and a click on it runs its row of a command table inside the window's error relay.
///
/// Belongs to the widget in which its shortcuts count. Captions follow retranslate(), which the widget calls.
class ToolSet final : public QObject {
    Q_OBJECT
public:
    /// Rows and relay outlive the set
    ToolSet(std::span<const Tool> rows, ErrorRelay &relay, QWidget *owner);

    QToolBar *toolBar(const char *band, Text name = {21351, u"A táblázat eszközei"}); ///< new, the owner's
    QMenu *popUp(const char *band);             ///< the same for every call, the owner's
    QAction *tool(const char *name) const;      ///< null = no such tool

    /// `run` happens on every click; `enabled` is asked by refresh(), also before a pop-up opens. Names a row
    /// must have.
    void on(const char *name, std::function<void()> run, std::function<bool()> enabled = {});
    template <class Owner>
    void connectTools(Owner &to, std::span<const std::type_identity_t<ToolCommand<Owner>>> table)
    {
        for (const auto &c : table) {
            std::function<bool()> enabled;
            if (c.enabled) enabled = [&to, asked = c.enabled] { return (to.*asked)(); };
            on(c.tool, [&to, run = c.run] { (to.*run)(); }, std::move(enabled));
        }
    }
    void refresh();                             ///< asks every tool whether it can be used now
    void setChecked(const char *name, bool on); ///< shows a state; runs nothing
    void retranslate();

private:
    void makeTool(const Tool &row);
    QMenu *menuOf(const char *band);            ///< perhaps not filled yet
    template <class Band> void addTo(Band &band, const char *name);
    QString keysBeside(const char *name, const QHash<QByteArray, QString> &taken) const;
    QWidget *owner() const;

    std::span<const Tool> m_rows;
    ErrorRelay &m_relay;
    QHash<QByteArray, QAction *> m_tools;
    QHash<QByteArray, QMenu *> m_popUps;
    std::vector<std::pair<QToolBar *, Text>> m_bars;    ///< and what a screen reader calls them
    QHash<QByteArray, QActionGroup *> m_oneOf;  ///< by band
    std::vector<std::pair<QAction *, std::function<bool()>>> m_enabled;
};

} // namespace QV_DOC_CONTROLS
