#include "facade/contract_tests/Samples.h"

#include <algorithm>

namespace ZolWDoc::contract {
namespace {

void foundByNumber(ZOLW_Doc &doc)
{
    tLay l = stored<tLay>(doc, 1);
    l.gNr = 32767;
    doc.layers().update(l);
    hold(doc.layers().findByNumber(32767) == l, QStringLiteral("the layer is not found by its new number"));
    hold(!doc.layers().findByNumber(20001), QStringLiteral("a layer is found by a number that none has"));
}

void currentFollows(ZOLW_Doc &doc)
{
    const tLay l = stored<tLay>(doc, 1);
    doc.layers().makeCurrent(l);
    same(doc.layers().currentId(), l.LayId, "current layer");
    doc.layers().remove(l.LayId);
    const qint16 next = doc.layers().currentId();
    hold(next == -1 || doc.layers().find(next), QStringLiteral("a layer that is gone stays current"));
}

void currentSurvivesDiscard(ZOLW_Doc &doc)
{
    if (!doc.changeScopes()) return;
    const tLay l = stored<tLay>(doc, 1);
    doc.changeScopes()->beginChanges(TableKind::Layers);
    doc.layers().makeCurrent(l);
    doc.changeScopes()->discardChanges(TableKind::Layers);
    same(doc.layers().currentId(), l.LayId, "current layer after a discard");
}

void newLayerHasAGroup(ZOLW_Doc &doc)
{
    const tLay l = stored<tLay>(doc, 1);
    const auto groups = doc.layers().groups();
    hold(!groups.empty(), QStringLiteral("there is no system group"));
    hold(std::ranges::count(groups, doc.layers().groupOf(l.LayId), &tGroup::GroupId) == 1,
         QStringLiteral("a new layer is in no group"));
    same(doc.layers().groupOf(unusedId<tLay>(doc)), -1, "group of an unknown layer");
}

void groupsAreWritten(ZOLW_Doc &doc)
{
    auto groups = doc.layers().groups();
    const size_t own = groups.size();
    groups.push_back({-1, QStringLiteral("Úthálózat")});
    groups.push_back({-1, QStringLiteral("Víz")});
    doc.layers().writeGroups(groups);
    auto now = doc.layers().groups();
    same(int(now.size()), int(own) + 2, "groups");
    const auto idOf = [&](const QString &name) {
        const auto g = std::ranges::find(now, name, &tGroup::GroupName);
        return g == now.end() ? qint16(-1) : g->GroupId;
    };
    const qint16 road = idOf(QStringLiteral("Úthálózat")), water = idOf(QStringLiteral("Víz"));
    hold(road > 0 && water > 0 && road != water,
         QStringLiteral("new groups got no identifiers of their own"));
    for (tGroup &g : now)
        if (g.GroupId == road) g.GroupName = QStringLiteral("Utak");
    std::erase_if(now, [&](const tGroup &g) { return g.GroupId == water; });
    doc.layers().writeGroups(now);
    hold(doc.layers().groups() == now,
         QStringLiteral("renaming one group and leaving one out gives other groups"));
}

/// A new group with two layers, both also in the group they came into.
std::vector<tLayMember> twoInANewGroup(ZOLW_Doc &doc, const tLay &a, const tLay &b)
{
    auto groups = doc.layers().groups();
    groups.push_back({-1, QStringLiteral("group of the test")});
    doc.layers().writeGroups(groups);
    groups = doc.layers().groups();
    const auto group = std::ranges::find(groups, QStringLiteral("group of the test"), &tGroup::GroupName);
    hold(group != groups.end(), QStringLiteral("a group that was written is not read"));
    const qint16 id = group->GroupId;
    auto members = doc.layers().members();
    members.push_back({id, a.LayId});
    members.push_back({id, b.LayId});
    doc.layers().writeMembers(members);
    return members;
}

bool alike(std::vector<tLayMember> a, std::vector<tLayMember> b)
{
    const auto key = [](const tLayMember &m) { return m.GroupId * 65536 + m.LayId; };
    std::ranges::sort(a, {}, key);
    std::ranges::sort(b, {}, key);
    return a == b;
}

void membersAreWritten(ZOLW_Doc &doc)
{
    const tLay a = stored<tLay>(doc, 1), b = stored<tLay>(doc, 2);
    const auto members = twoInANewGroup(doc, a, b);
    hold(alike(doc.layers().members(), members),
         QStringLiteral("other memberships are read than were written"));
    doc.layers().remove(a.LayId);
    same(int(std::ranges::count(doc.layers().members(), a.LayId, &tLayMember::LayId)), 0,
         "memberships of a removed layer");
    same(int(std::ranges::count(doc.layers().members(), b.LayId, &tLayMember::LayId)), 2,
         "memberships of the other one");
}

void discardBringsGroupsBack(ZOLW_Doc &doc)
{
    if (!doc.changeScopes()) return;
    const tLay a = stored<tLay>(doc, 1), b = stored<tLay>(doc, 2);
    const auto members = twoInANewGroup(doc, a, b);
    const auto groups = doc.layers().groups();
    doc.changeScopes()->beginChanges(TableKind::Layers);
    std::vector<tGroup> fewer(groups.begin(), groups.end() - 1);
    doc.layers().writeGroups(fewer);
    doc.layers().remove(a.LayId);
    doc.changeScopes()->discardChanges(TableKind::Layers);
    hold(doc.layers().groups() == groups, QStringLiteral("the groups are not as they were"));
    hold(alike(doc.layers().members(), members), QStringLiteral("the memberships are not as they were"));
}

void writeAllKeepsIdentifiers(ZOLW_Doc &doc)
{
    stored<tLay>(doc, 1);
    auto all = doc.layers().readAll();
    for (tLay &l : all) l.Visible = !l.Visible;
    doc.layers().writeAll(all);
    hold(doc.layers().readAll() == all, QStringLiteral("the table is not as it was written"));
}

void versionIsConstant(ZOLW_Doc &doc)
{
    const qint32 version = doc.layers().fileVersion();
    stored<tLay>(doc, 1);
    same(doc.layers().fileVersion(), version, "layer file version");
}

void orphans(ZOLW_Doc &doc, bool removed)
{
    const tLay l = stored<tLay>(doc, 1), other = stored<tLay>(doc, 2);
    tPt on = stored<tPt>(doc, 1), beside = stored<tPt>(doc, 2);
    on.LayId = l.LayId, beside.LayId = other.LayId;
    doc.points().update(on);
    doc.points().update(beside);
    hold(doc.layers().remove(l.LayId, removed), QStringLiteral("the removal of a layer says false"));
    on.LayId = -1;
    hold(doc.points().find(on.PtId) == (removed ? std::nullopt : std::optional(on)),
         QStringLiteral("the point that was on the layer is not as promised"));
    hold(doc.points().find(beside.PtId) == beside, QStringLiteral("a point of another layer is touched"));
}
void orphansStay(ZOLW_Doc &doc) { orphans(doc, false); }
void orphansGo(ZOLW_Doc &doc) { orphans(doc, true); }

void removeAllTakesLayers(ZOLW_Doc &doc)
{
    const tLay a = stored<tLay>(doc, 1), b = stored<tLay>(doc, 2), c = stored<tLay>(doc, 3);
    int looked = -1;
    const qint16 ids[] = {a.LayId, c.LayId};
    doc.layers().removeAll(ids, true, looked);
    same(looked, 2, "layers looked at");
    hold(!doc.layers().find(a.LayId) && !doc.layers().find(c.LayId),
         QStringLiteral("a removed layer is still found"));
    hold(doc.layers().find(b.LayId) == b, QStringLiteral("another layer is gone"));
}

void elementsOfLayersGo(ZOLW_Doc &doc)
{
    if (!doc.layerElements()) return;
    const tLay l = stored<tLay>(doc, 1), other = stored<tLay>(doc, 2), empty = stored<tLay>(doc, 3);
    const auto pointOn = [&](int n, const tLay &lay) {
        tPt p = stored<tPt>(doc, n);
        p.LayId = lay.LayId;
        doc.points().update(p);
        return p;
    };
    pointOn(1, l), pointOn(2, l);
    const tPt beside = pointOn(3, other);
    const int standing = doc.layers().uses(l.LayId);
    const qint16 ids[] = {l.LayId, empty.LayId};
    same(doc.layerElements()->deleteElements(ids), standing, "elements that went");
    hold(doc.layers().find(l.LayId) == l, QStringLiteral("the layer itself is gone"));
    same(doc.layers().uses(l.LayId), 0, "uses afterwards");
    hold(doc.points().find(beside.PtId) == beside, QStringLiteral("a point of another layer is touched"));
    same(doc.layerElements()->deleteElements(ids), 0, "elements of empty layers");
}

/// What a text file looks like is the host's; that one which cannot be read changes nothing is not.
void missingFilesAreErrors(ZOLW_Doc &doc)
{
    stored<tLay>(doc, 1);
    const auto before = doc.layers().readAll();
    const QString none = QStringLiteral("no such folder/no such file.txt");
    mustThrow([&] { doc.layers().renameFromFile(none); }, "renaming from a file that is not there");
    mustThrow([&] { doc.layers().renumberFromFile(none); }, "renumbering from a file that is not there");
    if (doc.layerFiles())
        mustThrow([&] { doc.layerFiles()->addFromFile(none); }, "adding from a file that is not there");
    hold(doc.layers().readAll() == before, QStringLiteral("the table changed"));
}

} // namespace

void appendLayerPromises(Promises &all)
{
    const QString role = QStringLiteral("layers");
    const auto add = [&](const char *part, const char *text, void (*run)(ZOLW_Doc &), bool optional = false) {
        all.push_back({role + QLatin1String(part), QLatin1String(text), run, optional});
    };
    add("", "a layer is found by its number", foundByNumber);
    add("", "the current layer is one that exists, or none", currentFollows);
    add(": change scope", "the current layer survives a discard", currentSurvivesDiscard, true);
    add(": groups", "a layer is in a group when it is added", newLayerHasAGroup);
    add(": groups", "the group table is written whole", groupsAreWritten);
    add(": groups", "memberships are written whole and go with their layer", membersAreWritten);
    add(": change scope", "discard brings groups and memberships back", discardBringsGroupsBack, true);
    add("", "writeAll keeps identifiers", writeAllKeepsIdentifiers);
    add("", "the file version is constant", versionIsConstant);
    add("", "what stood on a removed layer stays on none", orphansStay);
    add("", "what stood on a removed layer goes with it when asked for", orphansGo);
    add("", "removeAll with orphans is a loop of remove", removeAllTakesLayers);
    add(": text files", "a text file that cannot be read is an error and changes nothing",
        missingFilesAreErrors);
    add(": elements", "deleting the elements of layers keeps the layers", elementsOfLayersGo, true);
}

} // namespace ZolWDoc::contract
