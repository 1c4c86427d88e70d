#pragma once

#include "support/FaultyTables.h"

#include <QSet>

/// Tables with one fault between them and their caller.
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
        spoil("update changes the records before it", [&](qint16 id) { return id < r.SidId; });
        spoil("update changes the records behind it", [&](qint16 id) { return id > r.SidId; });
    }
    template <class Which> void spoil(const char *fault, Which which)
    {
        if (!is(fault)) return;
        for (tSid other : real.readAll())
            if (which(other.SidId)) other.ProtYmm += 1, real.update(other);
    }
    bool remove(qint16 id) override
    {
        if (is("remove ignores references") && real.uses(id) > 0) return true;
        const bool isGone = real.remove(id);
        spoil("remove changes what stays", [](qint16) { return true; });
        return isGone && !is("remove answers false");
    }
    int uses(qint16 id) const override { return is("uses is always 0") ? 0 : real.uses(id); }
    void addAll(std::span<const tSid> rows, std::vector<qint16> &ids) override
    {
        if (is("a failed addAll takes all back")) {
            QSet<QString> names;
            for (const tSid &r : rows) names.insert(r.ShortName);
            if (names.size() < int(rows.size())) throw std::runtime_error("a name in use");
        }
        real.addAll(rows, ids);
        if (is("addAll loses an identifier")) ids.pop_back();
    }
    void updateAll(std::span<const tSid> rows, int &written) override
    {
        try {
            real.updateAll(rows, written);
            spoil("updateAll changes a record that is not meant",
                  [&](qint16 id) { return id < std::ranges::min(rows, {}, &tSid::SidId).SidId; });
        } catch (...) {
            if (is("a failed updateAll lies")) written = int(rows.size());
            throw;
        }
    }
    void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked) override
    {
        real.removeAll(is("removeAll leaves the last out") ? ids.first(ids.size() - 1) : ids, refused,
                       looked);
        spoil("removeAll changes what stays", [](qint16) { return true; });
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

} // namespace broken
