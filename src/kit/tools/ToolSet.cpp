#include "kit/tools/ToolSet.h"

#include "kit/forms/AccessKeys.h"
#include "kit/tools/Icons.h"
#include "kit/tools/ToolBand.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <cstring>

namespace QV_DOC_CONTROLS {
namespace {

bool isLine(const Tool &row) { return std::strcmp(row.name, kToolLine) == 0; }
bool tellsAll(const Tool &row) { return row.caption.id != 0; }
bool isOn(const Tool &row, const char *band) { return std::strcmp(row.band, band) == 0; }

QString captionOf(const Tool &row) { return txt(row.caption).trimmed(); } // those of pages begin with a blank

bool isSame(const Tool &a, const Tool &b) { return std::strcmp(a.name, b.name) == 0; }

} // namespace

ToolSet::ToolSet(const Tables &tables, ErrorRelay &relay, QWidget *owner) : QObject(owner), m_relay(relay)
{
    for (const auto &table : tables) m_rows.insert(m_rows.end(), table.begin(), table.end());
    for (const Tool &row : m_rows)
        if (tellsAll(row)) makeTool(row);
    for (const Tool &row : m_rows)
        if (*row.opens) popUp(row.opens);       // all of its tools are made by now
    retranslate();
}

QWidget *ToolSet::owner() const { return static_cast<QWidget *>(parent()); }

void ToolSet::makeTool(const Tool &row)
{
    QAction *const action = *row.opens ? menuOf(row.opens)->menuAction() : new QAction(this);
    action->setObjectName(QLatin1String(row.name));
    action->setIcon(toolIcon(row.icon));
    action->setVisible(*row.opens != '\0');
    if (*row.keys) action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.keys)));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setCheckable(row.check != Check::No);
    if (row.check == Check::OneOf) {
        QActionGroup *&group = m_oneOf[row.band];
        if (!group) group = new QActionGroup(this);
        group->addAction(action);
    }
    owner()->addAction(action);
    m_tools.insert(row.name, action);
}

QAction *ToolSet::tool(const char *name) const { return m_tools.value(name); }

template <class Band> void ToolSet::addTo(Band &band, const char *name)
{
    for (const Tool &row : m_rows) {
        if (!isOn(row, name)) continue;
        if (isLine(row)) band.addSeparator();
        else band.addAction(tool(row.name));
    }
}

QToolBar *ToolSet::toolBar(const char *band, Text name)
{
    auto *const bar = new ToolBand(owner());
    bar->setObjectName(QLatin1String(band));
    addTo(*bar, band);
    m_bars.emplace_back(bar, name);
    retranslate();
    return bar;
}

QMenuBar *ToolSet::menuBar(const char *band, Text name)
{
    auto *const bar = new QMenuBar(owner());
    bar->setObjectName(QLatin1String(band));
    addTo(*bar, band);
    m_bars.emplace_back(bar, name);
    m_keyed.insert(band);
    retranslate();
    return bar;
}

QMenu *ToolSet::menuOf(const char *band)
{
    QMenu *&menu = m_popUps[band];
    if (!menu) {
        menu = new QMenu(owner());
        menu->setObjectName(QLatin1String(band));
        m_keyed.insert(band);
        connect(menu, &QMenu::aboutToShow, this, &ToolSet::refresh);
    }
    return menu;
}

QMenu *ToolSet::popUp(const char *band)
{
    QMenu *const menu = menuOf(band);
    if (menu->isEmpty()) {
        addTo(*menu, band);
        retranslate();
    }
    return menu;
}

void ToolSet::on(const char *name, Behaviour behaviour)
{
    QAction *const action = tool(name);
    Q_ASSERT_X(action, "ToolSet::on", name);
    QObject *const user = behaviour.user ? behaviour.user : this;
    connect(action, &QAction::triggered, user, [this, run = behaviour.run] {
        m_relay.guard(run);
        refresh();
    });
    action->setVisible(true);
    action->setEnabled(true);
    m_bound.push_back({action, std::move(behaviour), user});
}

void ToolSet::release(const QObject &user)
{
    for (Bound &b : m_bound) {
        if (b.user != &user) continue;
        disconnect(b.tool, nullptr, b.user, nullptr);
        b.user.clear();
    }
    refresh();
}

void ToolSet::list(const char *band, std::function<std::vector<Entry>()> entries,
                   std::function<void(int)> run)
{
    m_lists.push_back({popUp(band), std::move(entries), std::move(run), {}});
    fillList(m_lists.back());
}

/// The actions stay where their entries do: a menu may be open.
void ToolSet::fillList(Listed &list)
{
    const std::vector<Entry> entries = list.entries();
    while (list.actions.size() > qsizetype(entries.size())) delete list.actions.takeLast();
    while (list.actions.size() < qsizetype(entries.size())) {
        const int place = int(list.actions.size());
        QAction *const action = list.menu->addAction(QString());
        connect(action, &QAction::triggered, this, [this, run = list.run, place] {
            m_relay.guard([&] { run(place); });
            refresh();
        });
        list.actions << action;
    }
    for (qsizetype i = 0; i < list.actions.size(); ++i) {
        const Entry &e = entries[size_t(i)];
        list.actions[i]->setObjectName(e.name);
        list.actions[i]->setData(e.id);
        list.actions[i]->setText(QString(e.caption).replace(u'&', QStringLiteral("&&")));
    }
}

void ToolSet::refresh()
{
    for (Listed &list : m_lists) fillList(list);
    for (const Bound &b : m_bound)
        if (!b.user) b.tool->setEnabled(false);
    std::erase_if(m_bound, [](const Bound &b) { return !b.user; });
    m_relay.guard([this] {
        for (const Bound &b : m_bound) {
            if (b.behaviour.enabled) b.tool->setEnabled(b.behaviour.enabled());
            if (b.behaviour.checked) b.tool->setChecked(b.behaviour.checked());
        }
    });
}

void ToolSet::setChecked(const char *name, bool on)
{
    if (QAction *const action = tool(name)) action->setChecked(on);
}

void ToolSet::retranslate()
{
    giveAccessKeys();
    for (const Tool &row : m_rows) {
        if (!tellsAll(row)) continue;
        QAction *const action = tool(row.name);
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        const QString plain = captionOf(row).remove(QStringLiteral("...")).remove(u'…');
        action->setToolTip(keys.isEmpty() ? plain : QStringLiteral("%1 (%2)").arg(plain, keys));
    }
    for (const auto &[bar, name] : m_bars) bar->setAccessibleName(txt(name));
}

/// On menus and menu bars; tool bars have none.
void ToolSet::giveAccessKeys()
{
    std::vector<KeyedCaption> captions;
    std::vector<QAction *> actions;
    for (const Tool &row : m_rows) {
        if (!tellsAll(row)) continue;
        actions.push_back(tool(row.name));
        captions.push_back({captionOf(row), {}});
        for (const Tool &place : m_rows)
            if (isSame(place, row) && m_keyed.contains(place.band)) captions.back().menus << place.band;
    }
    QV_DOC_CONTROLS::giveAccessKeys(captions);
    for (size_t i = 0; i < actions.size(); ++i) actions[i]->setText(captions[i].caption);
}

} // namespace QV_DOC_CONTROLS
