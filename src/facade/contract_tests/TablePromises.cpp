#include "facade/contract_tests/Samples.h"

#include <algorithm>
#include <limits>

namespace ZolWDoc::contract {
namespace {

template <class Rec> void requireStored(ZOLW_Doc &doc, const Rec &promised, const char *when)
{
    const Sample<Rec> &s = sample<Rec>();
    const auto found = s.table(doc).find(promised.*s.id);
    hold(found.has_value(), QStringLiteral("%1: not found").arg(QLatin1String(when)));
    hold(*found == promised, QStringLiteral("%1: find gives another record").arg(QLatin1String(when)));
    const auto all = s.table(doc).readAll();
    same(int(std::ranges::count(all, promised)), 1, when);
}

/// Nothing but these records, in whatever order.
template <class Rec> void requireTable(ZOLW_Doc &doc, const std::vector<Rec> &expected, const char *when)
{
    hold(std::ranges::is_permutation(sample<Rec>().table(doc).readAll(), expected),
         QStringLiteral("%1: another record changed").arg(QLatin1String(when)));
}

template <class Rec> void addStores(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    const auto before = s.table(doc).readAll();
    const Rec r = stored<Rec>(doc, 1);
    hold(r.*s.id > 0, QStringLiteral("the identifier is ") + shown(r.*s.id));
    hold(std::ranges::count(before, r.*s.id, s.id) == 0, QStringLiteral("an identifier in use was given"));
    requireStored(doc, r, "after add");
    same(s.table(doc).count(), int(before.size()) + 1, "count");
    for (const Rec &b : before) requireStored(doc, b, "a record that was there before");
}

template <class Rec> void identifiersDiffer(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    // Where the number is the identifier, a record may ask for one that is in use.
    Rec first = stored<Rec>(doc, 1), second = s.make(doc, 2);
    second.*s.id = first.*s.id;
    second.*s.id = s.table(doc).add(second);
    hold(second.*s.id != first.*s.id, QStringLiteral("an identifier in use was given"));
    requireStored(doc, first, "the first record");
    requireStored(doc, second, "the second record");
}

template <class Rec> void unknownIsNotFound(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    stored<Rec>(doc, 1);
    for (qint16 id : {qint16(-1), qint16(0), unusedId<Rec>(doc), std::numeric_limits<qint16>::min()})
        hold(!s.table(doc).find(id), QStringLiteral("something was found under ") + shown(id));
}

template <class Rec> void updateKeeps(ZOLW_Doc &doc, const MemberChange<Rec> &change)
{
    const Sample<Rec> &s = sample<Rec>();
    stored<Rec>(doc, 2);
    Rec r = stored<Rec>(doc, 1);
    change.change(r, doc);
    auto expected = s.table(doc).readAll();
    *std::ranges::find(expected, r.*s.id, s.id) = r;
    s.table(doc).update(r);
    requireStored(doc, r, "after update");
    requireTable(doc, expected, "after update");
    const Rec third = s.make(doc, 3);
    Rec changed = r;
    changed.*s.id = third.*s.id;
    for (const UniqueMember<Rec> &u : s.unique) u.copy(changed, third);
    changed.*s.id = s.table(doc).add(changed);
    requireStored(doc, changed, "after add with that value");
}

template <class Rec> void unknownUpdateThrows(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    Rec r = s.make(doc, 1);
    const auto before = s.table(doc).readAll();
    for (qint16 id : {unusedId<Rec>(doc), qint16(-1)}) {
        r.*s.id = id;
        mustThrow([&] { s.table(doc).update(r); }, "update of an unknown identifier");
    }
    hold(s.table(doc).readAll() == before, QStringLiteral("the table changed"));
}

template <class Rec> void removeTakesOne(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    stored<Rec>(doc, 1);
    const auto expected = s.table(doc).readAll();
    const Rec goes = stored<Rec>(doc, 2);
    same(s.table(doc).uses(goes.*s.id), 0, "uses of a new record");
    hold(!s.table(doc).remove(unusedId<Rec>(doc)),
         QStringLiteral("removal of an unknown identifier says true"));
    hold(s.table(doc).remove(goes.*s.id), QStringLiteral("removal of a free record says false"));
    hold(!s.table(doc).find(goes.*s.id), QStringLiteral("the removed record is still found"));
    hold(!s.table(doc).remove(goes.*s.id), QStringLiteral("removing it again says true"));
    same(s.table(doc).count(), int(expected.size()), "count");
    requireTable(doc, expected, "after remove");
}

template <class Rec> std::vector<Rec> several(ZOLW_Doc &doc, int n)
{
    const Sample<Rec> &s = sample<Rec>();
    std::vector<Rec> rows;
    for (int i = 1; i <= n; ++i) rows.push_back(s.make(doc, i));
    std::vector<qint16> ids;
    s.table(doc).addAll(rows, ids);
    same(int(ids.size()), n, "identifiers given by addAll");
    for (size_t i = 0; i < rows.size(); ++i) rows[i].*s.id = ids[i];
    return rows;
}

template <class Rec> void addAllStores(ZOLW_Doc &doc)
{
    const int count = sample<Rec>().table(doc).count();
    for (const Rec &r : several<Rec>(doc, 40)) requireStored(doc, r, "after addAll");
    same(sample<Rec>().table(doc).count(), count + 40, "count");
}

/// Where a value stays unique, a second record with it is refused; what stands before it is there.
template <class Rec> void failedAddAllKeeps(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    if (s.unique.empty()) return;
    const int count = s.table(doc).count();
    std::vector<Rec> rows;
    for (int i = 1; i <= 5; ++i) rows.push_back(s.make(doc, i));
    s.unique.front().copy(rows[3], rows[0]);
    std::vector<qint16> ids{5};
    mustThrow([&] { s.table(doc).addAll(rows, ids); }, "addAll of a value that another row has");
    same(int(ids.size()), 3, "identifiers given before the refusal");
    for (size_t i = 0; i < ids.size(); ++i) {
        rows[i].*s.id = ids[i];
        requireStored(doc, rows[i], "before the refused row");
    }
    same(s.table(doc).count(), count + 3, "count");
}

/// The rows before `written` are as wanted, those after it as they were.
template <class Rec> void requireWritten(ZOLW_Doc &doc, const std::vector<Rec> &before,
                                         const std::vector<Rec> &wanted, int written)
{
    for (size_t i = 0; i < before.size(); ++i)
        requireStored(doc, int(i) < written ? wanted[i] : before[i], "a row of updateAll");
}

template <class Rec> void updateAllStores(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    const auto others = s.table(doc).readAll();
    const auto before = several<Rec>(doc, 20);
    auto wanted = before;
    for (size_t i = 0; i < wanted.size(); ++i) {
        const qint16 id = wanted[i].*s.id;
        wanted[i] = s.make(doc, int(i) + 101);
        wanted[i].*s.id = id;
    }
    int written = -1;
    s.table(doc).updateAll(wanted, written);
    same(written, 20, "rows written");
    requireWritten(doc, before, wanted, 20);
    wanted.insert(wanted.end(), others.begin(), others.end());
    requireTable(doc, wanted, "after updateAll");
}

template <class Rec> void failedUpdateAllTells(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    const auto before = several<Rec>(doc, 6);
    auto wanted = before;
    for (size_t i = 0; i < wanted.size(); ++i) {
        const qint16 id = wanted[i].*s.id;
        wanted[i] = s.make(doc, int(i) + 101);
        wanted[i].*s.id = i == 3 ? unusedId<Rec>(doc) : id;
    }
    int written = -1;
    mustThrow([&] { s.table(doc).updateAll(wanted, written); }, "updateAll with an unknown identifier");
    hold(written >= 0 && written <= 3, QStringLiteral("rows written: ") + shown(written));
    requireWritten(doc, before, wanted, written);
}

template <class Rec> void removeAllTakes(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    const auto rows = several<Rec>(doc, 10);
    const qint16 unknown = unusedId<Rec>(doc);
    const std::vector<qint16> ids{rows[7].*s.id, unknown, rows[2].*s.id};
    std::vector<qint16> refused{5};
    int looked = -1;
    auto expected = s.table(doc).readAll();
    std::erase_if(expected, [&](const Rec &r) { return std::ranges::count(ids, r.*s.id) > 0; });
    s.table(doc).removeAll(ids, refused, looked);
    same(looked, 3, "identifiers looked at");
    hold(refused == std::vector<qint16>{unknown}, QStringLiteral("refused are not exactly the unknown ones"));
    same(s.table(doc).count(), int(expected.size()), "count");
    hold(!s.table(doc).find(ids[0]) && !s.table(doc).find(ids[2]),
         QStringLiteral("a removed record is still found"));
    requireTable(doc, expected, "after removeAll");
}

template <class Rec> void uniqueIsKept(ZOLW_Doc &doc, const UniqueMember<Rec> &unique)
{
    const Sample<Rec> &s = sample<Rec>();
    const Rec first = stored<Rec>(doc, 1);
    Rec second = stored<Rec>(doc, 2), third = s.make(doc, 3);
    const auto before = s.table(doc).readAll();
    unique.copy(second, first);
    unique.copy(third, first);
    mustThrow([&] { s.table(doc).update(second); }, "update to a value that another record has");
    mustThrow([&] { s.table(doc).add(third); }, "add with a value that another record has");
    hold(s.table(doc).readAll() == before, QStringLiteral("the table changed"));
}

template <class Rec> void restoreBringsBack(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    if (!doc.restorer()) return;
    const Rec r = stored<Rec>(doc, 1);
    s.table(doc).remove(r.*s.id);
    doc.restorer()->restore(r);
    requireStored(doc, r, "after restore");
    mustThrow([&] { doc.restorer()->restore(r); }, "restore under an identifier in use");
}

template <class Rec> void revisionFollows(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    const RevisionRole *const revisions = doc.revisions();
    if (!revisions) return;
    quint64 last = revisions->revision(s.kind);
    same(int(revisions->revision(s.kind) == last), 1, "the same revision without a change");
    const auto moved = [&](const char *what) {
        const quint64 now = revisions->revision(s.kind);
        hold(now != last, QStringLiteral("the revision stays after ") + QLatin1String(what));
        last = now;
    };
    Rec r = stored<Rec>(doc, 1);
    moved("add");
    s.members.front().change(r, doc);
    last = revisions->revision(s.kind);
    s.table(doc).update(r);
    moved("update");
    s.table(doc).remove(r.*s.id);
    moved("remove");
}

template <class Rec> void discardBringsBack(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    ChangeScopeRole *const scopes = doc.changeScopes();
    if (!scopes) return;
    Rec changed = stored<Rec>(doc, 1);
    const Rec removed = stored<Rec>(doc, 2);
    const auto before = s.table(doc).readAll();
    hold(!scopes->changesOpen(s.kind), QStringLiteral("a span is open in a new document"));
    scopes->beginChanges(s.kind);
    hold(scopes->changesOpen(s.kind), QStringLiteral("the span is not open"));
    mustThrow([&] { scopes->beginChanges(s.kind); }, "a second span of one table");
    for (const MemberChange<Rec> &m : s.members) m.change(changed, doc);
    s.table(doc).update(changed);
    s.table(doc).remove(removed.*s.id);
    stored<Rec>(doc, 3);
    scopes->discardChanges(s.kind);
    // Changing members may have stored records of other tables, never of this one.
    hold(s.table(doc).readAll() == before, QStringLiteral("the table is not as it was"));
    hold(!scopes->changesOpen(s.kind), QStringLiteral("the span is still open"));
}

template <class Rec> void commitKeeps(ZOLW_Doc &doc)
{
    const Sample<Rec> &s = sample<Rec>();
    ChangeScopeRole *const scopes = doc.changeScopes();
    if (!scopes) return;
    scopes->beginChanges(s.kind);
    const Rec first = stored<Rec>(doc, 1);
    scopes->commitChanges(s.kind);
    hold(!scopes->changesOpen(s.kind), QStringLiteral("the span is still open"));
    scopes->beginChanges(s.kind);
    s.table(doc).remove(first.*s.id);
    scopes->discardChanges(s.kind);
    requireStored(doc, first, "after commit, and the discard of a later span");
}

template <class Rec> void append(Promises &all)
{
    const Sample<Rec> &s = sample<Rec>();
    const QString role = QLatin1String(s.role);
    const auto add = [&](const char *text, void (*run)(ZOLW_Doc &)) {
        all.push_back({role, QLatin1String(text), run});
    };
    add("add stores a copy under an identifier that was free", addStores<Rec>);
    add("no identifier is given twice", identifiersDiffer<Rec>);
    add("an unknown identifier is not found", unknownIsNotFound<Rec>);
    for (const MemberChange<Rec> &m : s.members)
        all.push_back({role, QStringLiteral("%1 comes back as it was stored").arg(QLatin1String(m.member)),
                       [&m](ZOLW_Doc &doc) { updateKeeps<Rec>(doc, m); }});
    for (const UniqueMember<Rec> &u : s.unique)
        all.push_back({role, QStringLiteral("%1 stays unique").arg(QLatin1String(u.member)),
                       [&u](ZOLW_Doc &doc) { uniqueIsKept<Rec>(doc, u); }});
    add("update of an unknown identifier throws", unknownUpdateThrows<Rec>);
    add("remove takes exactly that record and answers whether it did", removeTakesOne<Rec>);
    add("addAll is a loop of add", addAllStores<Rec>);
    add("a failed addAll keeps the rows before the refused one", failedAddAllKeeps<Rec>);
    add("updateAll is a loop of update", updateAllStores<Rec>);
    add("a failed updateAll says what it has written", failedUpdateAllTells<Rec>);
    add("removeAll is a loop of remove", removeAllTakes<Rec>);
    const auto addScoped = [&](const char *part, const char *text, void (*run)(ZOLW_Doc &)) {
        all.push_back({role + QStringLiteral(": ") + QLatin1String(part), QLatin1String(text), run, true});
    };
    addScoped("restore", "a removed record comes back under its identifier", restoreBringsBack<Rec>);
    addScoped("revision", "every change of the table gives another revision", revisionFollows<Rec>);
    addScoped("change scope", "discard brings records and identifiers back", discardBringsBack<Rec>);
    addScoped("change scope", "commit keeps the changes", commitKeeps<Rec>);
}

} // namespace

void appendTablePromises(Promises &all)
{
    append<tLay>(all);
    append<tTxd>(all);
    append<tSid>(all);
    append<tPenStyle>(all);
    append<tPenStyleSi>(all);
    append<tPt>(all);
}

} // namespace ZolWDoc::contract
