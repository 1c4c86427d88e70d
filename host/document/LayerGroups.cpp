#include "document/Groups.h"
#include "document/Layers.h"

#include "facade/services/Text.h"

#include <QSet>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tGroup;
using ZolWDoc::tLayMember;

namespace refhost {

std::vector<tGroup> Layers::groups() const
{
    std::vector<tGroup> all;
    Statement s(m_db, QStringLiteral("SELECT id, name FROM layer_groups ORDER BY id"));
    for (s.exec(); s.next();) all.push_back({qint16(s.number(0)), s.value(1).toString()});
    return all;
}

void Layers::writeGroups(std::span<const tGroup> all)
{
    Statement system(m_db, QStringLiteral("SELECT id, name FROM layer_groups WHERE system=1"));
    system.exec().next();
    const tGroup own{qint16(system.number(0)), system.value(1).toString()};
    if (std::ranges::find(all, own) == all.end())
        throw DocumentError(
            join(Text{30050, u"A rendszercsoport nem nevezhető át és nem törölhető: "}, own.GroupName));

    QSet<qint16> kept;
    for (const tGroup &g : all)
        if (g.GroupId > 0) kept.insert(g.GroupId);
    Write write(m_db);
    for (const tGroup &g : groups())
        if (!kept.contains(g.GroupId))
            change(m_db, QStringLiteral("DELETE FROM layer_groups WHERE id=?"), int(g.GroupId));
    // Names may change places: first out of the way, then as given.
    change(m_db, QStringLiteral("UPDATE layer_groups SET name=char(1)||id"));
    Identifiers numbers(m_db, QStringLiteral("layer_groups"));
    for (const tGroup &g : all) {
        if (g.GroupId > 0)
            nameGroup(m_db, QStringLiteral("UPDATE layer_groups SET name=? WHERE id=?"), g.GroupName,
                      g.GroupId);
        else
            nameGroup(m_db, QStringLiteral("INSERT INTO layer_groups(name, id, system) VALUES(?, ?, 0)"),
                      g.GroupName, numbers.next());
    }
    numbers.keep();
    joinSystemGroup();
    changed();
    write.keep();
}

std::vector<tLayMember> Layers::members() const
{
    std::vector<tLayMember> all;
    Statement s(m_db, QStringLiteral("SELECT group_id, layer FROM layer_members ORDER BY place"));
    for (s.exec(); s.next();) all.push_back({qint16(s.number(0)), qint16(s.number(1))});
    return all;
}

void Layers::writeMembers(std::span<const tLayMember> all)
{
    QSet<qint16> known, knownGroups;
    for (const auto &l : readAll()) known.insert(l.LayId);
    for (const auto &g : groups()) knownGroups.insert(g.GroupId);
    Write write(m_db);
    change(m_db, QStringLiteral("DELETE FROM layer_members"));
    for (const tLayMember &m : all) {
        if (!known.contains(m.LayId)) failUnknown(m.LayId);
        if (!knownGroups.contains(m.GroupId))
            throw DocumentError(join(Text{30026, u"Nincs ilyen azonosítójú csoport: "}, int(m.GroupId)));
        change(m_db, QStringLiteral("INSERT OR IGNORE INTO layer_members(group_id, layer) VALUES(?, ?)"),
               int(m.GroupId), int(m.LayId));
    }
    joinSystemGroup();
    changed();
    write.keep();
}

qint16 Layers::groupOf(qint16 layId) const
{
    return qint16(numberOf(m_db,
                           QStringLiteral("SELECT group_id FROM layer_members WHERE layer=? ORDER BY place"),
                           -1, int(layId)));
}

void Layers::joinSystemGroup()
{
    change(m_db, QStringLiteral("INSERT INTO layer_members(group_id, layer) "
                                "SELECT (SELECT id FROM layer_groups WHERE system=1), id FROM layers "
                                "WHERE id NOT IN (SELECT layer FROM layer_members)"));
}

} // namespace refhost
