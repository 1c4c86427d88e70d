#pragma once

#include "document/SqliteDoc.h"
#include "support/FaultyDoc.h"

#include <QObject>

/// The reference host's document with one fault between it and its caller.
namespace broken {

using namespace ZolWDoc;

inline QByteArray s_fault;                      ///< by its name; empty = none
inline bool is(const char *fault) { return s_fault == fault; }

struct Groups : tests::FaultyGroups {
    using FaultyGroups::FaultyGroups;
    void rename(qint16 id, const QString &name) override
    {
        if (!is("a group keeps its old name")) real.rename(id, name);
    }
    bool remove(qint16 id) override { return real.remove(id) || is("a full group is removed"); }
};

/// What all tables share goes wrong here.
struct Symbols : tests::FaultySymbols {
    using FaultySymbols::FaultySymbols;
    Groups brokenGroups{real.groups(), log};
    GroupRole &groups() override { return brokenGroups; }
    int count() const override { return real.count() + 3 * is("the count is off"); }
    std::optional<tSid> find(qint16 id) const override
    {
        if (is("find invents a record") && id <= 0) return real.readAll().front();
        const auto found = real.find(id);
        return found && is("find gives another record") ? real.readAll().front() : found;
    }
    qint16 add(const tSid &r) override
    {
        const qint16 id = real.add(r);
        if (is("add forgets every other record") && id % 2 == 0) real.remove(id);
        return is("add gives a used identifier") ? real.readAll().front().SidId : id;
    }
    void update(const tSid &r) override
    {
        if (is("update of an unknown record is silent") && !real.find(r.SidId)) return;
        tSid stored = r;
        if (is("update forgets a member of symbols")) stored.ProtYmm = 0;
        real.update(stored);
        if (!is("update changes the others too")) return;
        for (tSid other : real.readAll()) other.ProtYmm = 0, real.update(other);
    }
    bool remove(qint16 id) override
    {
        if (is("remove ignores references") && real.uses(id) > 0) return true;
        return real.remove(id) && !is("remove answers false");
    }
    int uses(qint16 id) const override { return is("uses is always 0") ? 0 : real.uses(id); }
    void addAll(std::span<const tSid> rows, std::vector<qint16> &ids) override
    {
        real.addAll(rows, ids);
        if (is("addAll loses an identifier")) ids.pop_back();
    }
    void updateAll(std::span<const tSid> rows, int &written) override
    {
        try {
            real.updateAll(rows, written);
        } catch (...) {
            if (is("a failed updateAll lies")) written = int(rows.size());
            throw;
        }
    }
    void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked) override
    {
        real.removeAll(is("removeAll leaves the last out") ? ids.first(ids.size() - 1) : ids, refused,
                       looked);
    }
};

struct Layers : tests::FaultyLayers {
    using FaultyLayers::FaultyLayers;
    template <class Rec> static std::span<const Rec> most(std::span<const Rec> all, const char *fault)
    {
        return is(fault) ? all.first(all.size() - 1) : all;
    }
    void update(const tLay &r) override
    {
        tLay stored = r;
        if (is("update forgets a member of layers")) stored.TxByLayer = false;
        real.update(stored);
    }
    bool remove(qint16 id, bool orphans) override
    {
        return real.remove(id, orphans || is("orphans always go"));
    }
    void makeCurrent(const tLay &l) override
    {
        if (!is("the current layer is forgotten")) real.makeCurrent(l);
    }
    void writeGroups(std::span<const tGroup> all) override { real.writeGroups(most(all, "a group is lost")); }
    void writeMembers(std::span<const tLayMember> all) override
    {
        real.writeMembers(most(all, "a membership is lost"));
    }
    void writeAll(std::span<const tLay> all) override { real.writeAll(most(all, "writeAll loses a layer")); }
    void renameFromFile(const QString &path) override
    {
        if (!is("a list file is not looked at")) real.renameFromFile(path);
    }
};

struct TextTypes : tests::FaultyTextTypes {
    ZOLW_Doc &doc;
    TextTypes(ZOLW_Doc &of, tests::CallLog &to) : FaultyTextTypes(of.textTypes(), to, ""), doc(of) {}
    void renumber(qint16 from, qint16 to) override
    {
        real.renumber(from, to);
        if (!is("renumbering leaves references behind")) return;
        for (tLay l : doc.layers().readAll())
            if (l.TxdId == to) l.TxdId = from, doc.layers().update(l);
    }
    qint16 takeOver(const tTxd &t) override
    {
        const qint16 id = real.takeOver(t);
        return is("a taken number is told") ? t.TxdId : id;
    }
};

struct LineTypes : tests::FaultyLineTypes {
    using FaultyLineTypes::FaultyLineTypes;
    void update(const tPenStyle &r) override
    {
        tPenStyle stored = r;
        if (is("update forgets the slots")) stored.Slots.assign(3, 0);
        real.update(stored);
    }
};

struct Pens : tests::FaultyPens, PaletteRole {
    ZOLW_Doc &doc;
    Pens(ZOLW_Doc &of, tests::CallLog &to) : FaultyPens(of.penColors(), to), doc(of) {}
    PenColorTable read() const override
    {
        PenColorTable pens = real.read();
        if (is("pens are shifted by one")) std::ranges::rotate(pens.pairs, pens.pairs.begin() + 1);
        return pens;
    }
    void replacePalette(const Palette &p) override
    {
        if (!is("the palette is not replaced")) doc.paletteReplacement()->replacePalette(p);
    }
};

struct Extras : RevisionRole, RestoreRole, CommandScopeRole, ChangeScopeRole, UsageRole, LayerElementsRole {
    ZOLW_Doc &doc;
    std::vector<tLay> before;
    explicit Extras(ZOLW_Doc &of) : doc(of) {}
    quint64 revision(TableKind k) const override
    {
        return is("the revision stays") ? 1 : doc.revisions()->revision(k);
    }
    std::vector<Usage> usersOf(TableKind kind, qint16 id) const override
    {
        std::vector<Usage> all = doc.usage()->usersOf(kind, id);
        if (kind != TableKind::PenColors) return all;
        if (is("the layers of a pen are not told")) all.clear();
        if (is("a layer counts once per colour"))
            for (const tLay &l : doc.layers().readAll())
                if (l.PenColorId == id && l.ScrColor == id) ++all.front().count;
        return all;
    }
    int deleteElements(std::span<const qint16> ids) override
    {
        std::vector<qint16> gone(ids.begin(), ids.end());
        if (is("elements of other layers go too"))
            for (const tLay &l : doc.layers().readAll()) gone.push_back(l.LayId);
        const int n = doc.layerElements()->deleteElements(gone);
        return is("the elements gone are miscounted") ? int(ids.size()) : n;
    }
    void restore(const tLay &r) override
    {
        if (is("restore gives a new identifier")) doc.layers().add(r);
        else doc.restorer()->restore(r);
    }
    void restore(const tTxd &r) override { doc.restorer()->restore(r); }
    void restore(const tPenStyle &r) override { doc.restorer()->restore(r); }
    void restore(const tSid &r) override { doc.restorer()->restore(r); }
    void restore(const tPenStyleSi &r) override { doc.restorer()->restore(r); }
    void restore(const tPt &r) override { doc.restorer()->restore(r); }
    void beginCommand(const QString &name) override
    {
        before = doc.layers().readAll();
        doc.commandScopes()->beginCommand(name);
    }
    void endCommand() override
    {
        doc.commandScopes()->endCommand();
        if (!is("a failed command is taken back")) return;
        for (const tLay &l : doc.layers().readAll())
            if (std::ranges::count(before, l.LayId, &tLay::LayId) == 0) doc.layers().remove(l.LayId);
    }
    void close(TableKind k, bool keep)
    {
        if (keep) doc.changeScopes()->commitChanges(k);
        else doc.changeScopes()->discardChanges(k);
    }
    void beginChanges(TableKind k) override { doc.changeScopes()->beginChanges(k); }
    void commitChanges(TableKind k) override { close(k, !is("commit drops the changes")); }
    void discardChanges(TableKind k) override { close(k, is("discard keeps the changes")); }
    bool changesOpen(TableKind k) const override { return doc.changeScopes()->changesOpen(k); }
};

struct Owner {
    std::unique_ptr<refhost::SqliteDoc> doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
};
struct Doc : Owner, tests::FaultyDoc {
    Layers brokenLayers{doc->layers(), log};
    TextTypes brokenTextTypes{*doc, log};
    LineTypes brokenLineTypes{doc->lineTypes(), log, ""};
    Symbols brokenSymbols{*doc, log};
    Pens brokenPens{*doc, log};
    Extras extras{*doc};
    QObject nameless;

    Doc() : FaultyDoc(*Owner::doc) {}
    LayerRole &layers() override { return brokenLayers; }
    TextTypeRole &textTypes() override { return brokenTextTypes; }
    LineTypeRole &lineTypes() override { return brokenLineTypes; }
    Symbols &symbols() override { return brokenSymbols; }
    PenColorRole &penColors() override { return brokenPens; }
    LayerElementsRole *layerElements() override { return &extras; }
    PaletteRole *paletteReplacement() override { return &brokenPens; }
    RestoreRole *restorer() override { return &extras; }
    UsageRole *usage() override { return &extras; }
    RevisionRole *revisions() override { return &extras; }
    CommandScopeRole *commandScopes() override { return &extras; }
    ChangeScopeRole *changeScopes() override { return &extras; }
    QObject *lateBound() override
    {
        return is("the members by name are missing") ? &nameless : doc->lateBound();
    }
};

} // namespace broken
