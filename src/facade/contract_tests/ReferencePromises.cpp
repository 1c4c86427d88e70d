#include "facade/contract_tests/Samples.h"

#include <algorithm>

namespace ZolWDoc::contract {
namespace {

using By = UsageRole::Usage::By;

/// `target` has one user and is free again without it.
template <class Rec> void holdUsed(ZOLW_Doc &doc, qint16 target, By by, const QString &user)
{
    auto &table = sample<Rec>().table(doc);
    const Rec spare = stored<Rec>(doc, 70);
    same(table.uses(target), 1, "uses of a record that one other refers to");
    const qint16 ids[] = {target, spare.*sample<Rec>().id};
    hold(table.usesAll(ids) == std::vector<int>{1, 0}, QStringLiteral("usesAll differs from uses"));
    hold(!table.remove(target), QStringLiteral("a used record was removed"));
    std::vector<qint16> refused;
    int looked = -1;
    table.removeAll(ids, refused, looked);
    hold(refused == std::vector<qint16>{target} && looked == 2,
         QStringLiteral("removeAll did not refuse exactly the used one"));
    hold(table.find(target).has_value(), QStringLiteral("a used record is gone"));
    if (!doc.usage()) return;
    const auto users = doc.usage()->usersOf(sample<Rec>().kind, target);
    hold(users == std::vector<UsageRole::Usage>{{by, 1, user}},
         QStringLiteral("usersOf does not name the one user"));
}

void layerUsesTextType(ZOLW_Doc &doc)
{
    const tTxd t = stored<tTxd>(doc, 1);
    tLay l = sample<tLay>().make(doc, 1);
    l.TxdId = t.TxdId;
    l.LayId = doc.layers().add(l);
    holdUsed<tTxd>(doc, t.TxdId, By::Layers, l.Name);
    doc.layers().remove(l.LayId);
    hold(doc.textTypes().remove(t.TxdId), QStringLiteral("it cannot be removed without its user either"));
}

void layerUsesLineType(ZOLW_Doc &doc)
{
    const tPenStyle p = stored<tPenStyle>(doc, 1);
    tLay l = sample<tLay>().make(doc, 1);
    l.PenStyleId = p.iPenStyleId;
    l.LayId = doc.layers().add(l);
    holdUsed<tPenStyle>(doc, p.iPenStyleId, By::Layers, l.Name);
    doc.layers().remove(l.LayId);
    hold(doc.lineTypes().remove(p.iPenStyleId),
         QStringLiteral("it cannot be removed without its user either"));
}

void symbolizationUsesSymbol(ZOLW_Doc &doc)
{
    const tSid s = stored<tSid>(doc, 1);
    tPenStyleSi si = sample<tPenStyleSi>().make(doc, 1);
    si.SidId = s.SidId;
    si.Nr = doc.lineSymbolizations().add(si);
    holdUsed<tSid>(doc, s.SidId, By::LineSymbolizations, si.Name);
    doc.lineSymbolizations().remove(si.Nr);
    hold(doc.symbols().remove(s.SidId), QStringLiteral("it cannot be removed without its user either"));
}

void slotUsesSymbolization(ZOLW_Doc &doc)
{
    const tPenStyleSi si = stored<tPenStyleSi>(doc, 1);
    tPenStyle p = sample<tPenStyle>().make(doc, 1);
    p.Slots = {0, si.Nr};
    p.iPenStyleId = doc.lineTypes().add(p);
    holdUsed<tPenStyleSi>(doc, si.Nr, By::LineTypes, p.Name);
    p.Slots = {0, 0};
    doc.lineTypes().update(p);
    hold(doc.lineSymbolizations().remove(si.Nr),
         QStringLiteral("it cannot be removed from an empty slot either"));
}

void textTypeRenumbers(ZOLW_Doc &doc)
{
    tTxd t = stored<tTxd>(doc, 1);
    const tTxd other = stored<tTxd>(doc, 2);
    tLay l = sample<tLay>().make(doc, 1);
    l.TxdId = t.TxdId;
    l.LayId = doc.layers().add(l);
    const qint16 old = t.TxdId;
    mustThrow([&] { doc.textTypes().renumber(old, other.TxdId); }, "renumbering to a number in use");
    t.TxdId = 32767;
    doc.textTypes().renumber(old, t.TxdId);
    hold(doc.textTypes().find(32767) == t && !doc.textTypes().find(old),
         QStringLiteral("the record did not move"));
    same(found(doc.layers().find(l.LayId), "the layer").TxdId, 32767,
         "text type of the layer that referred to it");
    same(doc.textTypes().uses(32767), 1, "uses after renumbering");
    hold(doc.textTypes().find(other.TxdId) == other, QStringLiteral("another text type changed"));
}

void symbolRenumbers(ZOLW_Doc &doc)
{
    if (!doc.symbolRenumber()) return;
    tSid s = stored<tSid>(doc, 1);
    const tSid other = stored<tSid>(doc, 2);
    tPenStyleSi si = sample<tPenStyleSi>().make(doc, 1);
    si.SidId = s.SidId;
    si.Nr = doc.lineSymbolizations().add(si);
    const qint16 old = s.SidId;
    mustThrow([&] { doc.symbolRenumber()->renumber(old, other.SidId); }, "renumbering to a number in use");
    s.SidId = 32767;
    doc.symbolRenumber()->renumber(old, 32767);
    hold(doc.symbols().find(32767) == s && !doc.symbols().find(old),
         QStringLiteral("the record did not move"));
    same(found(doc.lineSymbolizations().find(si.Nr), "the line symbolization").SidId, 32767,
         "symbol of the line symbolization that referred to it");
    same(doc.symbols().highestId(), 32767, "highest symbol number");
}

void discardTakesRenumberingBack(ZOLW_Doc &doc)
{
    if (!doc.changeScopes() || !doc.symbolRenumber()) return;
    const tSid s = stored<tSid>(doc, 1);
    tPenStyleSi si = sample<tPenStyleSi>().make(doc, 1);
    si.SidId = s.SidId;
    si.Nr = doc.lineSymbolizations().add(si);
    doc.changeScopes()->beginChanges(TableKind::Symbols);
    doc.symbolRenumber()->renumber(s.SidId, 32767);
    doc.changeScopes()->discardChanges(TableKind::Symbols);
    hold(doc.symbols().find(s.SidId) == s, QStringLiteral("the symbol has not its old number"));
    hold(doc.lineSymbolizations().find(si.Nr) == si,
         QStringLiteral("the reference still says the other number"));
}

void takeOverFindsItsPlace(ZOLW_Doc &doc)
{
    const tTxd first = stored<tTxd>(doc, 1);
    tTxd fromFile = first;
    fromFile.Name.clear(), fromFile.GroupName.clear(), fromFile.GroupId = -1, fromFile.Size_mm = 7;
    const qint16 a = doc.textTypes().takeOver(fromFile), b = doc.textTypes().takeOver(fromFile);
    hold(a != first.TxdId && b != a, QStringLiteral("a number in use was given"));
    const auto taken = doc.textTypes().find(a), second = doc.textTypes().find(b);
    hold(taken && second && !taken->Name.isEmpty() && taken->Name != second->Name,
         QStringLiteral("the records have no names of their own"));
    hold(taken->Size_mm == 7 && !taken->GroupName.isEmpty(), QStringLiteral("size or group is missing"));
    hold(doc.textTypes().find(first.TxdId) == first,
         QStringLiteral("the record that had the number changed"));
}

void symbolNames(ZOLW_Doc &doc)
{
    const tSid s = stored<tSid>(doc, 1);
    hold(doc.symbols().nameExists(s.ShortName), QStringLiteral("the name of a symbol does not exist"));
    hold(!doc.symbols().nameExists(QStringLiteral("no such name")),
         QStringLiteral("a name exists that no symbol has"));
    hold(doc.symbols().highestId() >= s.SidId, QStringLiteral("the highest number is not the highest"));
}

} // namespace

void appendReferencePromises(Promises &all)
{
    const auto add = [&](const char *role, const char *text, void (*run)(ZOLW_Doc &), bool optional = false) {
        all.push_back({QLatin1String(role), QLatin1String(text), run, optional});
    };
    add("text types", "a text type that a layer uses is not removed", layerUsesTextType);
    add("line types", "a line type that a layer uses is not removed", layerUsesLineType);
    add("symbols", "a symbol that a line symbolization uses is not removed", symbolizationUsesSymbol);
    add("line symbolizations", "a line symbolization in a slot is not removed", slotUsesSymbolization);
    add("text types", "references follow a renumbering", textTypeRenumbers);
    add("text types", "a record taken over gets a number, a name and a group", takeOverFindsItsPlace);
    add("symbols", "names and the highest number are told", symbolNames);
    add("symbols: renumber", "references follow a renumbering", symbolRenumbers, true);
    add("symbols: change scope", "discard takes a renumbering back with its references",
        discardTakesRenumberingBack, true);
}

} // namespace ZolWDoc::contract
