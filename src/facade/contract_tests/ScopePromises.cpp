#include "facade/contract_tests/Samples.h"

namespace ZolWDoc::contract {
namespace {

void commandKeepsItsWrites(ZOLW_Doc &doc)
{
    if (!doc.commandScopes()) return;
    tLay l;
    inCommand(doc, QStringLiteral("outer"), [&] {
        inCommand(doc, QStringLiteral("inner"), [&] { l = stored<tLay>(doc, 1); });
        hold(doc.layers().find(l.LayId) == l,
             QStringLiteral("a write of the inner command is not seen in the outer one"));
        l.Name = QStringLiteral("renamed");
        doc.layers().update(l);
    });
    hold(doc.layers().find(l.LayId) == l, QStringLiteral("a write of the command is gone after it"));
}

void failedCommandKeepsItsWrites(ZOLW_Doc &doc)
{
    if (!doc.commandScopes()) return;
    tLay l;
    mustThrow([&] {
        inCommand(doc, QStringLiteral("command"), [&] {
            l = stored<tLay>(doc, 1);
            throw std::runtime_error("the command stops");
        });
    }, "a command that throws");
    hold(doc.layers().find(l.LayId) == l, QStringLiteral("what was written before the error is gone"));
    const tPt p = stored<tPt>(doc, 1);
    hold(doc.points().find(p.PtId) == p, QStringLiteral("nothing can be written after a failed command"));
}

void refusedWriteHarmsNothing(ZOLW_Doc &doc)
{
    if (!doc.commandScopes()) return;
    tLay first, unknown;
    inCommand(doc, QStringLiteral("command"), [&] {
        first = stored<tLay>(doc, 1);
        unknown = sample<tLay>().make(doc, 2);
        unknown.LayId = unusedId<tLay>(doc);
        mustThrow([&] { doc.layers().update(unknown); }, "update of an unknown identifier in a command");
        first.Visible = !first.Visible;
        doc.layers().update(first);
    });
    hold(doc.layers().find(first.LayId) == first,
         QStringLiteral("a refused write took other writes of its command back"));
}

void spanAndCommandMix(ZOLW_Doc &doc)
{
    if (!doc.commandScopes() || !doc.changeScopes()) return;
    const auto before = doc.lineTypes().readAll();
    doc.changeScopes()->beginChanges(TableKind::LineTypes);
    tLay l;
    inCommand(doc, QStringLiteral("command"), [&] {
        stored<tPenStyle>(doc, 1);
        l = stored<tLay>(doc, 1);
    });
    doc.changeScopes()->discardChanges(TableKind::LineTypes);
    hold(doc.lineTypes().readAll() == before, QStringLiteral("the line types are not as they were"));
    hold(doc.layers().find(l.LayId) == l,
         QStringLiteral("the discard of one table took a change of another back"));
}

void spansAreApart(ZOLW_Doc &doc)
{
    ChangeScopeRole *const scopes = doc.changeScopes();
    if (!scopes) return;
    scopes->beginChanges(TableKind::LineTypes);
    scopes->beginChanges(TableKind::LineSymbolizations);
    const tPenStyle p = stored<tPenStyle>(doc, 1);
    const tPenStyleSi si = stored<tPenStyleSi>(doc, 1);
    scopes->discardChanges(TableKind::LineTypes);
    hold(scopes->changesOpen(TableKind::LineSymbolizations),
         QStringLiteral("the span of another table was closed"));
    scopes->commitChanges(TableKind::LineSymbolizations);
    hold(!doc.lineTypes().find(p.iPenStyleId), QStringLiteral("the discarded line type is still there"));
    hold(doc.lineSymbolizations().find(si.Nr) == si, QStringLiteral("the kept line symbolization is gone"));
}

} // namespace

void appendScopePromises(Promises &all)
{
    const auto add = [&](const char *role, const char *text, void (*run)(ZOLW_Doc &)) {
        all.push_back({QLatin1String(role), QLatin1String(text), run, true});
    };
    add("command scope", "what a command writes is seen in it and stays", commandKeepsItsWrites);
    add("command scope", "a command that throws keeps what it has written", failedCommandKeepsItsWrites);
    add("command scope", "a refused write takes no other write back", refusedWriteHarmsNothing);
    add("change scope", "a discard takes back its own table only", spanAndCommandMix);
    add("change scope", "spans of different tables are apart", spansAreApart);
}

} // namespace ZolWDoc::contract
