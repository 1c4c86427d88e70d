#pragma once

#include "facade/contract/ZOLW_Doc.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

/// A complete document in memory: the shortest host that the library can work on. Each table is a vector.
namespace example {

using namespace ZolWDoc;

[[noreturn]] inline void refuse(const char *why) { throw std::runtime_error(why); }

/// What all tables share. `Id` is the record's identifier member.
template <class Role, class Rec, qint16 Rec::*Id> class TinyTable : public Role {
public:
    std::vector<Rec> rows;
    std::function<int(qint16)> references = [](qint16) { return 0; }; ///< how many records refer to this one
    std::function<bool(const Rec &, const Rec &)> clash = [](const Rec &, const Rec &) { return false; };
                                                 ///< whether two records have in common what must be unique

    std::vector<Rec> readAll() const override { return rows; }
    int count() const override { return int(rows.size()); }
    std::optional<Rec> find(qint16 id) const override
    {
        for (const Rec &r : rows)
            if (r.*Id == id) return r;
        return std::nullopt;
    }
    /// Keeps an identifier that is positive and free; otherwise the record gets the next one.
    qint16 add(const Rec &r) override
    {
        refuseClash(r, nullptr);
        rows.push_back(r);
        qint16 &id = rows.back().*Id;
        if (id <= 0 || places(id) > 1) id = nextId();
        return id;
    }
    void update(const Rec &r) override
    {
        Rec &stored = at(r.*Id);
        refuseClash(r, &stored);
        stored = r;
    }
    bool remove(qint16 id) override
    {
        return this->uses(id) == 0 && std::erase_if(rows, [id](const Rec &r) { return r.*Id == id; }) > 0;
    }
    int uses(qint16 id) const override { return references(id); }

    Rec &at(qint16 id)
    {
        for (Rec &r : rows)
            if (r.*Id == id) return r;
        refuse("There is no record with this identifier; read the table again.");
    }
private:
    void refuseClash(const Rec &r, const Rec *itself) const
    {
        for (const Rec &other : rows)
            if (&other != itself && clash(r, other))
                refuse("Another record has this number or name; choose another.");
    }
    int places(qint16 id) const
    {
        return int(std::ranges::count_if(rows, [id](const Rec &r) { return r.*Id == id; }));
    }
    qint16 nextId() const
    {
        qint16 highest = 0;
        for (const Rec &r : rows) highest = std::max(highest, r.*Id);
        if (highest == 32767) refuse("All identifiers are taken; remove records that are not needed.");
        return qint16(highest + 1);
    }
};

/// The groups of symbols or of text types, which name their group in each record.
template <class Rec> class TinyGroups final : public GroupRole {
public:
    explicit TinyGroups(std::vector<Rec> &members) : m_members(members) {}
    std::vector<tGroup> readAll() const override { return m_groups; }
    qint16 add(const QString &name) override
    {
        if (holds(name)) refuse("A group of this name exists; choose another name.");
        m_groups.push_back({++m_last, name});
        return m_last;
    }
    void rename(qint16 id, const QString &name) override
    {
        const auto group = std::ranges::find(m_groups, id, &tGroup::GroupId);
        if (group == m_groups.end()) refuse("There is no such group; read the groups again.");
        if (group->GroupName != name && holds(name))
            refuse("A group of this name exists; choose another name.");
        group->GroupName = name;
        for (Rec &r : m_members)
            if (r.GroupId == id) r.GroupName = name;
    }
    bool remove(qint16 id) override
    {
        if (std::ranges::count(m_members, id, &Rec::GroupId) > 0) return false;
        return std::erase_if(m_groups, [id](const tGroup &g) { return g.GroupId == id; }) > 0;
    }
private:
    bool holds(const QString &name) const
    {
        return std::ranges::count(m_groups, name, &tGroup::GroupName) > 0;
    }
    std::vector<Rec> &m_members;
    std::vector<tGroup> m_groups;
    qint16 m_last = 0;
};

class TinyLayers final : public TinyTable<LayerRole, tLay, &tLay::LayId> {
public:
    std::function<void(qint16 id, bool alsoOrphans)> onRemove; ///< sees to what stands on the layer

    qint16 add(const tLay &) override;                   ///< into the system group: a layer is always in one
    std::optional<tLay> findByNumber(qint16 gNr) const override;
    bool remove(qint16 id, bool alsoOrphans) override;
    bool remove(qint16 id) override { return remove(id, false); }
    void makeCurrent(const tLay &lay) override { m_current = lay.LayId; }
    qint16 currentId() const override { return m_current; }
    std::vector<tGroup> groups() const override { return m_groups; }
    void writeGroups(std::span<const tGroup> all) override;
    std::vector<tLayMember> members() const override { return m_members; }
    void writeMembers(std::span<const tLayMember> all) override { m_members.assign(all.begin(), all.end()); }
    void writeAll(std::span<const tLay> all) override;
    qint32 fileVersion() const override { return 1; }
    void renameFromFile(const QString &path) override;   ///< lines "number <tab> new name"
    void renumberFromFile(const QString &path) override; ///< lines "number <tab> new number"
private:
    qint16 m_current = -1;
    static constexpr qint16 kSystemGroup = 1;
    std::vector<tGroup> m_groups{{kSystemGroup, QStringLiteral("RENDSZER")}};
    std::vector<tLayMember> m_members;
};

class TinyTextTypes final : public TinyTable<TextTypeRole, tTxd, &tTxd::TxdId> {
public:
    std::function<void(qint16 from, qint16 to)> onRenumber; ///< the document lets the references follow
    GroupRole &groups() override { return m_groups; }
    void renumber(qint16 from, qint16 to) override;
    qint16 takeOver(const tTxd &) override;
private:
    TinyGroups<tTxd> m_groups{rows};
};

class TinySymbols final : public TinyTable<SymbolRole, tSid, &tSid::SidId> {
public:
    GroupRole &groups() override { return m_groups; }
private:
    TinyGroups<tSid> m_groups{rows};
};

class TinyPens final : public PenColorRole {
public:
    PenColorTable read() const override { return m_pens; }
    void write(const PenColorTable &all) override { m_pens = all; }
    Palette palette() const override;                    ///< three bits of red, three of green, two of blue
private:
    PenColorTable m_pens;
};

class TinyDoc final : public ZOLW_Doc {
public:
    TinyDoc();
    LayerRole &layers() override { return m_layers; }
    TextTypeRole &textTypes() override { return m_textTypes; }
    LineTypeRole &lineTypes() override { return m_lineTypes; }
    SymbolRole &symbols() override { return m_symbols; }
    PenColorRole &penColors() override { return m_pens; }
    SymbolizationRole &lineSymbolizations() override { return m_symbolizations; }
    PointRole &points() override { return m_points; }
    KhRole &khItems() override { return m_khItems; }
    void redrawAll() override {}                         // there is no view
private:
    void keepUnique();
    void linkTables();
    struct NoItems final : KhRole {
        std::vector<tKh> items(int) const override { return {}; }
    };
    TinyLayers m_layers;
    TinyTextTypes m_textTypes;
    TinyTable<LineTypeRole, tPenStyle, &tPenStyle::iPenStyleId> m_lineTypes;
    TinySymbols m_symbols;
    TinyTable<SymbolizationRole, tPenStyleSi, &tPenStyleSi::Nr> m_symbolizations;
    TinyTable<PointRole, tPt, &tPt::PtId> m_points;
    TinyPens m_pens;
    NoItems m_khItems;
};

} // namespace example
