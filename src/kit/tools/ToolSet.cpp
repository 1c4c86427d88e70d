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
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.keys)));
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

void ToolSet::refresh()
{
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
    QHash<QByteArray, QString> taken;           // access keys by band
    for (const Tool &row : m_rows) {
        if (!tellsAll(row)) continue;
        QAction *const action = tool(row.name);
        const QString caption = txt(row.caption).trimmed(); // captions of pages begin with a blank
        action->setText(withAccessKeys({caption}, keysBeside(row.name, taken)).first());
        for (const Tool &place : m_rows)
            if (isSame(place, row)) taken[place.band] += accessKeyOf(action->text());
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        const QString plain = QString(caption).remove(QStringLiteral("...")).remove(u'…');
        action->setToolTip(keys.isEmpty() ? plain : QStringLiteral("%1 (%2)").arg(plain, keys));
    }
    for (const auto &[bar, name] : m_bars) bar->setAccessibleName(txt(name));
}

/// Access keys already given on any menu or menu bar that shows the tool; tool bars have none.
QString ToolSet::keysBeside(const char *name, const QHash<QByteArray, QString> &taken) const
{
    QString keys;
    for (const Tool &row : m_rows)
        if (m_keyed.contains(row.band) && std::strcmp(row.name, name) == 0) keys += taken.value(row.band);
    return keys;
}

} // namespace QV_DOC_CONTROLS
