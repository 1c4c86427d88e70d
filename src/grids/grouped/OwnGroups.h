#pragma once

#include "grids/frame/RecordWork.h"
#include "kit/ask/UniqueText.h"
#include "rules/GroupNames.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

/// The commands on the groups of a table whose records name their group themselves: each is in one.
template <class Table> class OwnGroups {
public:
    using Record = typename Table::Record;
    explicit OwnGroups(TableDesk<Table> &desk) : m_desk(desk) {}

    void addNew()                       ///< the chosen group stays: its records may be what is to move
    {
        const QString title = txt(Text{3376, u"Új csoport"});
        const auto name = askForGroupName(title, Text{3090, u"Új csoportnév"}, {});
        if (name) m_desk.write(title, [&] { role().add(*name); });
    }
    void rename()                       ///< the chosen group
    {
        const auto group = chosen();
        if (!group) return;
        const QString title = txt(Text{3212, u"Csoport átnevezés"});
        const auto name = askForGroupName(title, Text{3090, u"Új csoportnév"}, *group);
        if (name && *name != group->GroupName)
            m_desk.write(title, [&] { role().rename(group->GroupId, *name); });
    }
    /// In the group list; false = refused.
    bool renameInPlace(qint16 group, const QString &name)
    {
        if (isGroupNameTaken(name, group, role().readAll())) {
            m_desk.tell({Icon::Exclamation, txt(Table::takenGroupTitle), join(Table::takenGroup, name)});
            return false;
        }
        ZolWDoc::inCommand(m_desk.doc(), txt(Text{3212, u"Csoport átnevezés"}),
                           [&] { role().rename(group, name); });
        return true;
    }
    void remove()                       ///< the chosen group, unless it holds records or is the last one
    {
        const auto group = chosen();
        const QString title = txt(Text{22304, u"Csoport törlése"});
        const Text question{3239, u"Biztosan szeretnéd törölni a kiválasztott csoportot?"};
        if (!group || !m_desk.yesNo({Icon::Question, title, txt(question)})) return;
        const auto all = Table::role(m_desk.doc()).readAll();
        if (std::ranges::count(all, group->GroupId, &Record::GroupId) > 0)
            return m_desk.tell(
                {Icon::Critical, title,
                 join(Text{20079, u"A(z) "}, group->GroupName,
                      Text{20080, u" csoport használatban van, ezért nem törölhető!"})});
        if (role().readAll().size() <= 1)
            return m_desk.tell(
                {Icon::Critical, title, txt(Text{20082, u"Az utolsó csoport nem törölhető!"})});
        m_desk.write(title, [&] { role().remove(group->GroupId); });
    }
    void moveSelected(qint16 group) { move(selectedNow(m_desk), group); }
    void moveRecords(const std::vector<qint16> &ids, qint16 group) ///< those that there are
    {
        const QSet<qint16> wanted(ids.begin(), ids.end());
        auto records = Table::role(m_desk.doc()).readAll();
        std::erase_if(records, [&](const Record &r) { return !wanted.contains(Table::id(r)); });
        move(records, group);
    }
    /// The group of new records: the chosen one, or the first. Empty = there is none.
    std::optional<ZolWDoc::tGroup> groupForNew()
    {
        const auto all = role().readAll();
        if (all.empty()) return {};
        const auto found = std::ranges::find(all, m_desk.chosenGroup(), &ZolWDoc::tGroup::GroupId);
        return found == all.end() ? all.front() : *found;
    }

private:
    ZolWDoc::GroupRole &role() { return Table::groupRole(m_desk.doc()); }
    std::optional<ZolWDoc::tGroup> groupWith(qint16 id)
    {
        const auto all = role().readAll();
        const auto found = std::ranges::find(all, id, &ZolWDoc::tGroup::GroupId);
        return found == all.end() ? std::nullopt : std::optional(*found);
    }
    std::optional<ZolWDoc::tGroup> chosen() { return groupWith(m_desk.chosenGroup()); }
    std::optional<QString> askForGroupName(const QString &title, Text question, const ZolWDoc::tGroup &of)
    {
        const auto all = role().readAll();
        const auto refusalFor = [&](const QString &name) -> std::optional<Message> {
            if (!isGroupNameTaken(name, of.GroupId, all)) return {};
            return Message{Icon::Exclamation, txt(Text{3088, u"Egyedi csoportnév"}),
                           txt(Text{3089, u"Létező csoportnév !"})};
        };
        return uniqueText(m_desk.relay(), {title, txt(question), of.GroupName, {}}, refusalFor,
                          m_desk.asker());
    }
    void move(const std::vector<Record> &records, qint16 group)
    {
        const auto to = groupWith(group);
        if (!to) return;
        change(m_desk, txt(Text{22305, u"Áthelyezés csoportba"}), records, [&](Record &r) {
            if (r.GroupId != to->GroupId) r.GroupId = to->GroupId, r.GroupName = to->GroupName;
        });
    }
    TableDesk<Table> &m_desk;
};

} // namespace QV_DOC_CONTROLS
