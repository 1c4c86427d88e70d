#include "facade/contract_tests/Samples.h"

#include <algorithm>

namespace ZolWDoc::contract {
namespace {

GroupRole &groupsOf(ZOLW_Doc &doc, const tTxd *) { return doc.textTypes().groups(); }
GroupRole &groupsOf(ZOLW_Doc &doc, const tSid *) { return doc.symbols().groups(); }
template <class Rec> GroupRole &groups(ZOLW_Doc &doc)
{
    return groupsOf(doc, static_cast<const Rec *>(nullptr));
}

template <class Rec> Rec inGroup(ZOLW_Doc &doc, int n, qint16 group)
{
    Rec r = stored<Rec>(doc, n);
    r.GroupId = group;
    for (const tGroup &g : groups<Rec>(doc).readAll())
        if (g.GroupId == group) r.GroupName = g.GroupName;
    sample<Rec>().table(doc).update(r);
    return r;
}

template <class Rec> void groupsAreListed(ZOLW_Doc &doc)
{
    const auto before = groups<Rec>(doc).readAll();
    const qint16 a = groups<Rec>(doc).add(QStringLiteral("Csoport ő")),
                 b = groups<Rec>(doc).add(QStringLiteral("B"));
    hold(a != b && std::ranges::count(before, a, &tGroup::GroupId) == 0,
         QStringLiteral("an identifier was given twice"));
    const auto now = groups<Rec>(doc).readAll();
    same(int(now.size()), int(before.size()) + 2, "groups");
    same(int(std::ranges::count(now, tGroup{a, QStringLiteral("Csoport ő")})), 1, "the new group");
    mustThrow([&] { groups<Rec>(doc).add(QStringLiteral("B")); }, "adding a name that exists");
    mustThrow([&] { groups<Rec>(doc).rename(a, QStringLiteral("B")); }, "renaming to a name that exists");
    hold(groups<Rec>(doc).readAll() == now, QStringLiteral("a refused name changed the groups"));
}

template <class Rec> void renameCarries(ZOLW_Doc &doc)
{
    const qint16 id = groups<Rec>(doc).add(QStringLiteral("old name"));
    Rec r = inGroup<Rec>(doc, 1, id);
    const Rec other = stored<Rec>(doc, 2);
    groups<Rec>(doc).rename(id, QStringLiteral("új név"));
    r.GroupName = QStringLiteral("új név");
    hold(sample<Rec>().table(doc).find(r.*sample<Rec>().id) == r,
         QStringLiteral("the record does not carry the new name"));
    hold(sample<Rec>().table(doc).find(other.*sample<Rec>().id) == other,
         QStringLiteral("a record of another group changed"));
}

template <class Rec> void fullGroupStays(ZOLW_Doc &doc)
{
    const qint16 id = groups<Rec>(doc).add(QStringLiteral("full"));
    const Rec r = inGroup<Rec>(doc, 1, id);
    hold(!groups<Rec>(doc).remove(id), QStringLiteral("a group that holds records was removed"));
    hold(!groups<Rec>(doc).remove(32700), QStringLiteral("the removal of an unknown group says true"));
    sample<Rec>().table(doc).remove(r.*sample<Rec>().id);
    hold(groups<Rec>(doc).remove(id), QStringLiteral("an empty group was not removed"));
    same(int(std::ranges::count(groups<Rec>(doc).readAll(), id, &tGroup::GroupId)), 0, "the removed group");
}

template <class Rec> void discardBringsGroupsBack(ZOLW_Doc &doc)
{
    if (!doc.changeScopes()) return;
    const qint16 id = groups<Rec>(doc).add(QStringLiteral("before"));
    const auto before = groups<Rec>(doc).readAll();
    doc.changeScopes()->beginChanges(sample<Rec>().kind);
    groups<Rec>(doc).rename(id, QStringLiteral("meanwhile"));
    groups<Rec>(doc).add(QStringLiteral("new"));
    doc.changeScopes()->discardChanges(sample<Rec>().kind);
    hold(groups<Rec>(doc).readAll() == before, QStringLiteral("the groups are not as they were"));
}

template <class Rec> void append(Promises &all)
{
    const QString role = QLatin1String(sample<Rec>().role) + QStringLiteral(": groups");
    all.push_back(
        {role, QStringLiteral("groups have their own identifiers and names"), groupsAreListed<Rec>});
    all.push_back({role, QStringLiteral("records carry the new name of their group"), renameCarries<Rec>});
    all.push_back({role, QStringLiteral("a group that holds records is not removed"), fullGroupStays<Rec>});
    all.push_back({role, QStringLiteral("discard brings groups back"), discardBringsGroupsBack<Rec>, true});
}

} // namespace

void appendGroupPromises(Promises &all)
{
    append<tTxd>(all);
    append<tSid>(all);
}

} // namespace ZolWDoc::contract
