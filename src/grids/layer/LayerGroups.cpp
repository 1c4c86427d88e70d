#include "grids/layer/LayerGroups.h"

#include "grids/frame/RecordWork.h"
#include "rules/LayerGroupRules.h"
#include "rules/LayerRules.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr Text kRename{3289, u"Rétegcsoport átnevezés"}, kDelete{3285, u"Rétegcsoport törlés"},
    kMove{21751, u"Rétegek áthelyezése csoportba"}, kCopy{21752, u"Rétegek felvétele csoportba"};

} // namespace

std::optional<tGroup> LayerGroups::chosen(const std::vector<tGroup> &all) const
{
    const auto found = std::ranges::find(all, m_desk.chosenGroup(), &tGroup::GroupId);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

namespace {

Message told(const QString &title, const QString &text) { return {Icon::Information, title, text}; }

} // namespace

void LayerGroups::addNew()
{
    std::vector<tGroup> all = groups();
    const QString name = txt(Text{3284, u"Új_csoport"});
    all.push_back({-1, freeGroupName(name, all)});
    m_desk.write(name, [&] { m_desk.doc().layers().writeGroups(all); });
}

/// Why the group does not take the name.
std::optional<Message> LayerGroups::refusalOf(const QString &name, const tGroup &group,
                                              const std::vector<tGroup> &all)
{
    if (group.GroupId == systemGroupIn(all))
        return told(txt(kRename), txt(Text{3290, u"A rendszer rétegcsoport neve nem módosítható!"}));
    if (isGroupNameTaken(name, group.GroupId, all))
        return told(txt(Text{3426, u"Csoport átnevezés"}), txt(Text{3089, u"Létező csoportnév !"}));
    return {};
}

void LayerGroups::store(std::vector<tGroup> all, qint16 group, const QString &name)
{
    std::ranges::find(all, group, &tGroup::GroupId)->GroupName = name;
    m_desk.write(txt(kRename), [&] { m_desk.doc().layers().writeGroups(all); });
}

void LayerGroups::rename()
{
    const std::vector<tGroup> all = groups();
    const auto group = chosen(all);
    if (!group) return;
    if (const auto why = refusalOf(group->GroupName, *group, all)) return m_desk.tell(*why);
    const auto name = uniqueText(
        m_desk.relay(), {txt(kRename), txt(Text{21750, u"A csoport új neve:"}), group->GroupName, {}},
        [&](const QString &typed) { return refusalOf(typed, *group, all); }, m_desk.asker());
    if (name && *name != group->GroupName) store(all, group->GroupId, *name);
}

bool LayerGroups::renameInPlace(qint16 id, const QString &name)
{
    const std::vector<tGroup> all = groups();
    const auto group = std::ranges::find(all, id, &tGroup::GroupId);
    if (group == all.end()) return false;
    if (const auto why = refusalOf(name, *group, all)) return m_desk.tell(*why), false;
    store(all, id, name);
    return true;
}

void LayerGroups::remove()
{
    const QString title = txt(kDelete);
    std::vector<tGroup> all = groups();
    const auto group = chosen(all);
    if (!group) return;
    if (!m_desk.yesNo({Icon::Question, title, txt(Text{3312, u"Biztosan szeretnéd törölni a csoportot?"})}))
        return;
    if (group->GroupId == systemGroupIn(all))
        return m_desk.tell(told(title, txt(Text{3288, u"A rendszer-rétegcsoport nem törölhető!"})));
    std::vector<tLayMember> members = m_desk.doc().layers().members();
    if (!canDeleteGroup(group->GroupId, members))
        return m_desk.tell(told(txt(Text{3424, u"Rétegcsoport törlés"}),
                                join(Text{3425, u"A(z) '"}, group->GroupName,
                                     Text{3287, u"' csoport nem minden rétege szerepel más csoportban"},
                                     QStringLiteral("\n"), Text{3286, u"ezért nem szüntethető meg!"})));
    std::erase(all, *group);
    std::erase_if(members, [&](const tLayMember &m) { return m.GroupId == group->GroupId; });
    // First the members: should the second write fail, there is an empty group and no layer without one.
    m_desk.write(title, [&] {
        m_desk.doc().layers().writeMembers(members);
        m_desk.doc().layers().writeGroups(all);
    });
}

/// Which group the selected layers are to go to.
std::optional<qint16> LayerGroups::askForGroup(const QString &title, const Text &question)
{
    const std::vector<tGroup> all = groups();
    if (all.empty() || m_desk.selectedCount() == 0) return {};
    const auto last = std::ranges::find(all, m_lastGroup, &tGroup::GroupId);
    Choice choice{title, join(question, m_desk.selectedCount()), {},
                  last == all.end() ? 0 : int(last - all.begin())};
    for (const tGroup &g : all) choice.items << g.GroupName;
    const auto picked = prompts().choose(choice, m_desk.asker());
    m_desk.relay().checkpoint();
    if (!picked) return {};
    return m_lastGroup = all[size_t(*picked)].GroupId;
}

std::vector<qint16> LayerGroups::selectedNow()
{
    std::vector<qint16> ids;
    for (const tLay &l : QV_DOC_CONTROLS::selectedNow(m_desk)) ids.push_back(l.LayId);
    return ids;
}

void LayerGroups::store(const QString &command, const std::vector<tLayMember> &before,
                        const std::vector<tLayMember> &after)
{
    if (after != before) m_desk.write(command, [&] { m_desk.doc().layers().writeMembers(after); });
}

void LayerGroups::moveSelected()
{
    const auto group = askForGroup(
        txt(kMove), Text{21753, u"A kijelölt rétegek csak ennek a csoportnak lesznek a tagjai. "
                                u"Kijelölt rétegek száma: "});
    if (!group) return;
    const auto before = m_desk.doc().layers().members();
    store(txt(kMove), before, moved(before, selectedNow(), *group));
}

void LayerGroups::copySelected()
{
    const auto group = askForGroup(
        txt(kCopy), Text{21754, u"A kijelölt rétegek ennek a csoportnak is a tagjai lesznek. "
                                u"Kijelölt rétegek száma: "});
    if (group) addLayers(selectedNow(), *group);
}

void LayerGroups::addLayers(const std::vector<qint16> &layers, qint16 group)
{
    const auto before = m_desk.doc().layers().members();
    store(txt(kCopy), before, joined(before, layers, group));
}

void LayerGroups::addLayersOf(const std::vector<qint16> &groups, qint16 group)
{
    const auto before = m_desk.doc().layers().members();
    std::vector<qint16> layers;
    for (const tLayMember &m : before)
        if (std::ranges::count(groups, m.GroupId) > 0) layers.push_back(m.LayId);
    store(txt(kCopy), before, joined(before, layers, group));
}

} // namespace QV_DOC_CONTROLS
