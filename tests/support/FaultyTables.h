#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "support/CallLog.h"

namespace tests {

/// Layers through the log.
struct FaultyLayers : ZolWDoc::LayerRole {
    FaultyLayers(ZolWDoc::LayerRole &of, CallLog &to) : real(of), log(to) {}
    ZolWDoc::LayerRole &real;
    CallLog &log;
    using Rec = ZolWDoc::tLay;

    std::vector<Rec> readAll() const override { return log.on("layers.readAll"), real.readAll(); }
    int count() const override { return log.on("layers.count"), real.count(); }
    std::optional<Rec> find(qint16 id) const override { return log.on("layers.find"), real.find(id); }
    qint16 add(const Rec &r) override { return log.on("layers.add"), real.add(r); }
    void update(const Rec &r) override { log.on("layers.update"), real.update(r); }
    int uses(qint16 id) const override { return log.on("layers.uses"), real.uses(id); }
    void updateAll(std::span<const Rec> all, int &written) override
    {
        ++log.bulkUpdates;                      ///< row by row below, so that each can fail
        LayerRole::updateAll(all, written);
    }
    std::optional<Rec> findByNumber(qint16 n) const override
    {
        return log.on("layers.findByNumber"), real.findByNumber(n);
    }
    bool remove(qint16 id, bool orphans) override
    {
        return log.on("layers.remove"), real.remove(id, orphans);
    }
    void makeCurrent(const Rec &r) override { log.on("layers.makeCurrent"), real.makeCurrent(r); }
    qint16 currentId() const override { return log.on("layers.currentId"), real.currentId(); }
    std::vector<ZolWDoc::tGroup> groups() const override { return log.on("layers.groups"), real.groups(); }
    void writeGroups(std::span<const ZolWDoc::tGroup> g) override
    {
        log.on("layers.writeGroups"), real.writeGroups(g);
    }
    std::vector<ZolWDoc::tLayMember> members() const override
    {
        return log.on("layers.members"), real.members();
    }
    void writeMembers(std::span<const ZolWDoc::tLayMember> m) override
    {
        log.on("layers.writeMembers"), real.writeMembers(m);
    }
    void writeAll(std::span<const Rec> all) override { log.on("layers.writeAll"), real.writeAll(all); }
    qint32 fileVersion() const override { return log.on("layers.fileVersion"), real.fileVersion(); }
    void renameFromFile(const QString &p) override
    {
        log.on("layers.renameFromFile"), real.renameFromFile(p);
    }
    void renumberFromFile(const QString &p) override
    {
        log.on("layers.renumberFromFile"), real.renumberFromFile(p);
    }
};

/// A table with the common role only, through the log.
template <class Role, class Rec> struct FaultyTable : Role {
    FaultyTable(Role &of, CallLog &to, const char *called) : real(of), log(to), name(called) {}
    Role &real;
    CallLog &log;
    std::string name;
    void on(const char *call) const { log.on((name + '.' + call).c_str()); }

    std::vector<Rec> readAll() const override { return on("readAll"), real.readAll(); }
    int count() const override { return on("count"), real.count(); }
    std::optional<Rec> find(qint16 id) const override { return on("find"), real.find(id); }
    qint16 add(const Rec &r) override { return on("add"), real.add(r); }
    void update(const Rec &r) override { on("update"), real.update(r); }
    bool remove(qint16 id) override { return on("remove"), real.remove(id); }
    int uses(qint16 id) const override { return on("uses"), real.uses(id); }
};
struct FaultyTextTypes : FaultyTable<ZolWDoc::TextTypeRole, ZolWDoc::tTxd> {
    using FaultyTable::FaultyTable;
    ZolWDoc::GroupRole &groups() override { return on("groups"), real.groups(); }
    void renumber(qint16 from, qint16 to) override { on("renumber"), real.renumber(from, to); }
    qint16 takeOver(const ZolWDoc::tTxd &t) override { return on("takeOver"), real.takeOver(t); }
};
struct FaultyLineTypes : FaultyTable<ZolWDoc::LineTypeRole, ZolWDoc::tPenStyle> {
    using FaultyTable::FaultyTable;
};
struct FaultyGroups : ZolWDoc::GroupRole {
    FaultyGroups(ZolWDoc::GroupRole &of, CallLog &to) : real(of), log(to) {}
    ZolWDoc::GroupRole &real;
    CallLog &log;
    qint16 hidden = -1;             ///< a group that its records name and the table does not list
    std::vector<ZolWDoc::tGroup> readAll() const override
    {
        log.on("groups.readAll");
        auto all = real.readAll();
        std::erase_if(all, [this](const ZolWDoc::tGroup &g) { return g.GroupId == hidden; });
        return all;
    }
    qint16 add(const QString &name) override { return log.on("groups.add"), real.add(name); }
    void rename(qint16 id, const QString &name) override { log.on("groups.rename"), real.rename(id, name); }
    bool remove(qint16 id) override { return log.on("groups.remove"), real.remove(id); }
};
struct FaultySymbols : FaultyTable<ZolWDoc::SymbolRole, ZolWDoc::tSid>, ZolWDoc::SymbolRenumberRole {
    FaultySymbols(ZolWDoc::ZOLW_Doc &of, CallLog &to)
        : FaultyTable(of.symbols(), to, "symbols"), renumberer(of.symbolRenumber()),
          ownGroups(of.symbols().groups(), to)
    {}
    ZolWDoc::SymbolRenumberRole *renumberer;
    FaultyGroups ownGroups;
    ZolWDoc::GroupRole &groups() override { return ownGroups; }
    void renumber(qint16 from, qint16 to) override { on("renumber"), renumberer->renumber(from, to); }
};
struct FaultyPens : ZolWDoc::PenColorRole {
    FaultyPens(ZolWDoc::PenColorRole &of, CallLog &to) : real(of), log(to) {}
    ZolWDoc::PenColorRole &real;
    CallLog &log;
    ZolWDoc::PenColorTable read() const override { return log.on("penColors.read"), real.read(); }
    void write(const ZolWDoc::PenColorTable &t) override { log.on("penColors.write"), real.write(t); }
    ZolWDoc::Palette palette() const override { return log.on("penColors.palette"), real.palette(); }
};

} // namespace tests
