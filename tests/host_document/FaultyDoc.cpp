#include "host_document/FaultyDoc.h"

using namespace ZolWDoc;

namespace tests {
namespace {

struct State {
    Fault fault;
    std::unique_ptr<refhost::SqliteDoc> doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    bool is(Fault f) const { return fault == f; }
};

qint16 &idOf(tLay &r) { return r.LayId; }
qint16 &idOf(tTxd &r) { return r.TxdId; }
qint16 &idOf(tPenStyle &r) { return r.iPenStyleId; }
qint16 &idOf(tSid &r) { return r.SidId; }
qint16 &idOf(tPenStyleSi &r) { return r.Nr; }
qint16 &idOf(tPt &r) { return r.PtId; }
void forget(tLay &r) { r.TxByLayer = false; }
void forget(tTxd &r) { r.RowDist = 1; }
void forget(tPenStyle &r) { r.Slots.assign(3, 0); }
void forget(tSid &r) { r.ProtYmm = 0; }
void forget(tPenStyleSi &r) { r.OffsetX = 0; }
void forget(tPt &r) { r.Z = 0; }

template <class Rec, class Role> struct Table : Role {
    State &s;
    Role &real;
    Table(State &state, Role &role) : s(state), real(role) {}
    std::vector<Rec> readAll() const override { return real.readAll(); }
    int count() const override { return real.count() + s.is(Fault::CountIsOff) * 3; }
    std::optional<Rec> find(qint16 id) const override
    {
        const auto all = real.readAll();
        if (s.is(Fault::FindInventsOne) && id <= 0) return all.front();
        if (s.is(Fault::FindGivesAnother) && real.find(id)) return all.front();
        return real.find(id);
    }
    qint16 add(const Rec &r) override
    {
        const qint16 id = real.add(r);
        if (s.is(Fault::AddForgetsLast) && id % 2 == 0) real.remove(id);
        return s.is(Fault::AddGivesUsedId) ? idOf(real.readAll().front()) : id;
    }
    void update(const Rec &r) override
    {
        if (s.is(Fault::UpdateSwallowsUnknown) && !real.find(idOf(const_cast<Rec &>(r)))) return;
        Rec stored = r;
        if (s.is(Fault::UpdateForgetsMember)) forget(stored);
        real.update(stored);
        if (!s.is(Fault::UpdateHitsAll)) return;
        for (Rec other : real.readAll()) forget(other), real.update(other);
    }
    bool remove(qint16 id) override
    {
        if (s.is(Fault::RemoveIgnoresUses) && real.uses(id) > 0) return true;
        const bool done = real.remove(id);
        return done && !s.is(Fault::RemoveAnswersFalse);
    }
    int uses(qint16 id) const override { return s.is(Fault::UsesAlwaysFree) ? 0 : real.uses(id); }
    void addAll(std::span<const Rec> rows, std::vector<qint16> &ids) override
    {
        real.addAll(rows, ids);
        if (s.is(Fault::AddAllForgetsIds)) ids.pop_back();
    }
    void updateAll(std::span<const Rec> rows, int &written) override
    {
        try {
            real.updateAll(rows, written);
        } catch (...) {
            if (s.is(Fault::UpdateAllSaysAll)) written = int(rows.size());
            throw;
        }
    }
    void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked) override
    {
        if (s.is(Fault::RemoveAllStopsEarly)) ids = ids.first(ids.size() - 1);
        real.removeAll(ids, refused, looked);
    }
};

struct FaultyGroups : GroupRole {
    State &s;
    GroupRole &real;
    FaultyGroups(State &state, GroupRole &role) : s(state), real(role) {}
    std::vector<tGroup> readAll() const override { return real.readAll(); }
    qint16 add(const QString &name) override { return real.add(name); }
    void rename(qint16 id, const QString &name) override
    {
        if (!s.is(Fault::GroupRenameForgotten)) real.rename(id, name);
    }
    bool remove(qint16 id) override { return real.remove(id) || s.is(Fault::GroupRemoveForced); }
};

struct FaultyLayers : Table<tLay, LayerRole> {
    using Table::Table;
    using Table::remove;
    using Table::removeAll;
    std::optional<tLay> findByNumber(qint16 n) const override { return real.findByNumber(n); }
    bool remove(qint16 id, bool orphans) override
    {
        return real.remove(id, orphans || s.is(Fault::OrphansAlwaysGo));
    }
    void removeAll(std::span<const qint16> ids, bool orphans, int &looked) override
    {
        real.removeAll(ids, orphans, looked);
    }
    void makeCurrent(const tLay &l) override { if (!s.is(Fault::CurrentForgotten)) real.makeCurrent(l); }
    qint16 currentId() const override { return real.currentId(); }
    std::vector<tGroup> groups() const override { return real.groups(); }
    void writeGroups(std::span<const tGroup> all) override
    {
        real.writeGroups(s.is(Fault::GroupsUnnumbered) ? all.first(1) : all);
    }
    std::vector<tLayMember> members() const override { return real.members(); }
    void writeMembers(std::span<const tLayMember> all) override
    {
        real.writeMembers(s.is(Fault::MembersForgotten) ? all.first(all.size() - 1) : all);
    }
    void writeAll(std::span<const tLay> all) override
    {
        real.writeAll(s.is(Fault::WriteAllForgets) ? all.first(all.size() - 1) : all);
    }
    qint32 fileVersion() const override { return real.fileVersion(); }
    void renameFromFile(const QString &path) override
    {
        if (!s.is(Fault::ListFilesIgnored)) real.renameFromFile(path);
    }
    void renumberFromFile(const QString &path) override { real.renumberFromFile(path); }
};

struct FaultyTextTypes : Table<tTxd, TextTypeRole> {
    FaultyGroups own;
    FaultyTextTypes(State &state, TextTypeRole &role) : Table(state, role), own(state, role.groups()) {}
    GroupRole &groups() override { return own; }
    void renumber(qint16 from, qint16 to) override
    {
        real.renumber(from, to);
        if (!s.is(Fault::RenumberLeavesReferences)) return;
        for (tLay l : s.doc->layers().readAll())
            if (l.TxdId == to) l.TxdId = from, s.doc->layers().update(l);
    }
    qint16 takeOver(const tTxd &t) override
    {
        const qint16 id = real.takeOver(t);
        return s.is(Fault::TakeOverKeepsNumber) ? t.TxdId : id;
    }
};

struct FaultySymbols : Table<tSid, SymbolRole> {
    FaultyGroups own;
    FaultySymbols(State &state, SymbolRole &role) : Table(state, role), own(state, role.groups()) {}
    GroupRole &groups() override { return own; }
};

struct FaultyColors : PenColorRole, PaletteRole {
    State &s;
    explicit FaultyColors(State &state) : s(state) {}
    PenColorTable read() const override
    {
        PenColorTable pens = s.doc->penColors().read();
        if (s.is(Fault::PensShifted)) std::ranges::rotate(pens.pairs, pens.pairs.begin() + 1);
        return pens;
    }
    void write(const PenColorTable &pens) override { s.doc->penColors().write(pens); }
    Palette palette() const override { return s.doc->penColors().palette(); }
    void replacePalette(const Palette &p) override
    {
        if (!s.is(Fault::PaletteIgnored)) s.doc->paletteReplacement()->replacePalette(p);
    }
};

struct FaultyExtras : RevisionRole, RestoreRole, CommandScopeRole, ChangeScopeRole, UsageRole,
                      LayerElementsRole {
    State &s;
    std::vector<tLay> before;
    explicit FaultyExtras(State &state) : s(state) {}
    quint64 revision(TableKind k) const override
    {
        return s.is(Fault::RevisionStays) ? 1 : s.doc->revisions()->revision(k);
    }

    std::vector<Usage> usersOf(TableKind kind, qint16 id) const override
    {
        const bool pen = kind == TableKind::PenColors;
        if (pen && s.is(Fault::PenUsersForgotten)) return {};
        std::vector<Usage> all = s.doc->usage()->usersOf(kind, id);
        for (const tLay &l : s.doc->layers().readAll())
            if (pen && s.is(Fault::PenUsersCountedTwice) && l.PenColorId == id && l.ScrColor == id)
                ++all.front().count;
        return all;
    }
    int deleteElements(std::span<const qint16> ids) override
    {
        std::vector<qint16> gone(ids.begin(), ids.end());
        if (s.is(Fault::ElementsOfAllLayersGo))
            for (const tLay &l : s.doc->layers().readAll()) gone.push_back(l.LayId);
        const int n = s.doc->layerElements()->deleteElements(gone);
        return s.is(Fault::ElementsMiscounted) ? int(ids.size()) : n;
    }

    template <class Rec> void bring(TableRole<Rec> &table, const Rec &r)
    {
        if (s.is(Fault::RestoreNewId)) table.add(r);
        else s.doc->restorer()->restore(r);
    }
    void restore(const tLay &r) override { bring(s.doc->layers(), r); }
    void restore(const tTxd &r) override { bring(s.doc->textTypes(), r); }
    void restore(const tPenStyle &r) override { bring(s.doc->lineTypes(), r); }
    void restore(const tSid &r) override { bring(s.doc->symbols(), r); }
    void restore(const tPenStyleSi &r) override { bring(s.doc->lineSymbolizations(), r); }
    void restore(const tPt &r) override { bring(s.doc->points(), r); }

    void beginCommand(const QString &name) override
    {
        before = s.doc->layers().readAll();
        s.doc->commandScopes()->beginCommand(name);
    }
    void endCommand() override
    {
        s.doc->commandScopes()->endCommand();
        if (!s.is(Fault::ScopeRollsBackOnError)) return;
        for (const tLay &l : s.doc->layers().readAll())
            if (std::ranges::count(before, l.LayId, &tLay::LayId) == 0) s.doc->layers().remove(l.LayId);
    }

    void beginChanges(TableKind k) override { s.doc->changeScopes()->beginChanges(k); }
    void commitChanges(TableKind k) override
    {
        if (s.is(Fault::CommitDiscards)) s.doc->changeScopes()->discardChanges(k);
        else s.doc->changeScopes()->commitChanges(k);
    }
    void discardChanges(TableKind k) override
    {
        if (s.is(Fault::DiscardKeeps)) s.doc->changeScopes()->commitChanges(k);
        else s.doc->changeScopes()->discardChanges(k);
    }
    bool changesOpen(TableKind k) const override { return s.doc->changeScopes()->changesOpen(k); }
};

struct FaultyDoc : ZOLW_Doc {
    explicit FaultyDoc(Fault f) : s{f} {}
    State s;
    FaultyLayers lay{s, s.doc->layers()};
    FaultyTextTypes txd{s, s.doc->textTypes()};
    Table<tPenStyle, LineTypeRole> pen{s, s.doc->lineTypes()};
    FaultySymbols sid{s, s.doc->symbols()};
    Table<tPenStyleSi, SymbolizationRole> si{s, s.doc->lineSymbolizations()};
    Table<tPt, PointRole> pt{s, s.doc->points()};
    FaultyColors colors{s};
    FaultyExtras extras{s};
    QObject nameless;

    LayerFileRole *layerFiles() override { return s.doc->layerFiles(); }
    LayerRole &layers() override { return lay; }
    TextTypeRole &textTypes() override { return txd; }
    LineTypeRole &lineTypes() override { return pen; }
    SymbolRole &symbols() override { return sid; }
    PenColorRole &penColors() override { return colors; }
    SymbolizationRole &lineSymbolizations() override { return si; }
    PointRole &points() override { return pt; }
    KhRole &khItems() override { return s.doc->khItems(); }
    void redrawAll() override { s.doc->redrawAll(); }
    LayerElementsRole *layerElements() override { return &extras; }
    SymbolRenumberRole *symbolRenumber() override { return s.doc->symbolRenumber(); }
    PaletteRole *paletteReplacement() override { return &colors; }
    RestoreRole *restorer() override { return &extras; }
    UsageRole *usage() override { return &extras; }
    RevisionRole *revisions() override { return &extras; }
    CommandScopeRole *commandScopes() override { return &extras; }
    ChangeScopeRole *changeScopes() override { return &extras; }
    QObject *lateBound() override { return s.is(Fault::LateBoundMissing) ? &nameless : s.doc->lateBound(); }
};

} // namespace

std::unique_ptr<ZOLW_Doc> faulty(Fault fault) { return std::make_unique<FaultyDoc>(fault); }

} // namespace tests
