#include "rules/LayerGroupRules.h"

#include "facade/services/Text.h"

#include <QSet>

#include <algorithm>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

quint32 keyOf(const tLayMember &m) { return quint32(quint16(m.GroupId)) << 16 | quint16(m.LayId); }

} // namespace

std::optional<qint16> systemGroupIn(std::span<const tGroup> groups)
{
    const QStringList names = everyTxt(Text{3343, u"RENDSZER"});
    const auto found =
        std::ranges::find_if(groups, [&](const tGroup &g) { return names.contains(g.GroupName); });
    return found == groups.end() ? std::nullopt : std::optional(found->GroupId);
}

bool canDeleteGroup(qint16 group, std::span<const tLayMember> members)
{
    QSet<qint16> elsewhere;
    for (const tLayMember &m : members)
        if (m.GroupId != group) elsewhere.insert(m.LayId);
    return std::ranges::all_of(members, [&](const tLayMember &m) {
        return m.GroupId != group || elsewhere.contains(m.LayId);
    });
}

std::vector<tLayMember> withMembers(std::vector<tLayMember> members, std::span<const tLayMember> more)
{
    QSet<quint32> known;
    known.reserve(qsizetype(members.size() + more.size()));
    for (const tLayMember &m : members) known.insert(keyOf(m));
    for (const tLayMember &m : more) {
        if (known.contains(keyOf(m))) continue;
        known.insert(keyOf(m));
        members.push_back(m);
    }
    return members;
}

std::vector<tLayMember> joined(std::vector<tLayMember> members, std::span<const qint16> layers, qint16 group)
{
    std::vector<tLayMember> more;
    for (const qint16 layer : layers) more.push_back({group, layer});
    return withMembers(std::move(members), more);
}

std::vector<tLayMember> moved(std::vector<tLayMember> members, std::span<const qint16> layers, qint16 group)
{
    const QSet<qint16> moving(layers.begin(), layers.end());
    std::erase_if(members,
                  [&](const tLayMember &m) { return m.GroupId != group && moving.contains(m.LayId); });
    return joined(std::move(members), layers, group);
}

} // namespace QV_DOC_CONTROLS
