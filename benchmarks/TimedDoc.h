#pragma once

#include "Figures.h"

#include "facade/contract/ZOLW_Doc.h"

namespace benchmarks {

/// Adds up what the writing calls of a role take: reading counts as the library's time.
struct TimedLayers final : ZolWDoc::LayerRole {
    using Rec = ZolWDoc::tLay;
    explicit TimedLayers(ZolWDoc::LayerRole &of) : real(of) {}
    ZolWDoc::LayerRole &real;
    mutable double spent = 0;                   ///< milliseconds
    template <class Call> auto timed(Call call) const
    {
        struct Stop {
            double &spent;
            Clock::time_point start = Clock::now();
            ~Stop() { spent += nanosecondsSince(start) / 1e6; }
        } stop{spent};
        return call();
    }

    std::vector<Rec> readAll() const override { return real.readAll(); }
    int count() const override { return real.count(); }
    std::optional<Rec> find(qint16 id) const override { return real.find(id); }
    qint16 add(const Rec &r) override { return timed([&] { return real.add(r); }); }
    void update(const Rec &r) override { timed([&] { real.update(r); }); }
    int uses(qint16 id) const override { return real.uses(id); }
    std::vector<int> usesAll(std::span<const qint16> ids) const override
    {
        return real.usesAll(ids);
    }
    void addAll(std::span<const Rec> rows, std::vector<qint16> &ids) override
    {
        timed([&] { real.addAll(rows, ids); });
    }
    void updateAll(std::span<const Rec> rows, int &written) override
    {
        timed([&] { real.updateAll(rows, written); });
    }
    void removeAll(std::span<const qint16> ids, bool orphans, int &done) override
    {
        timed([&] { real.removeAll(ids, orphans, done); });
    }
    bool remove(qint16 id, bool orphans) override { return timed([&] { return real.remove(id, orphans); }); }
    std::optional<Rec> findByNumber(qint16 n) const override
    {
        return real.findByNumber(n);
    }
    void makeCurrent(const Rec &r) override { timed([&] { real.makeCurrent(r); }); }
    qint16 currentId() const override { return real.currentId(); }
    std::vector<ZolWDoc::tGroup> groups() const override { return real.groups(); }
    void writeGroups(std::span<const ZolWDoc::tGroup> g) override { timed([&] { real.writeGroups(g); }); }
    std::vector<ZolWDoc::tLayMember> members() const override
    {
        return real.members();
    }
    void writeMembers(std::span<const ZolWDoc::tLayMember> m) override
    {
        timed([&] { real.writeMembers(m); });
    }
    void writeAll(std::span<const Rec> all) override { timed([&] { real.writeAll(all); }); }
    qint32 fileVersion() const override { return real.fileVersion(); }
    void renameFromFile(const QString &path) override { timed([&] { real.renameFromFile(path); }); }
    void renumberFromFile(const QString &path) override { timed([&] { real.renumberFromFile(path); }); }
};

/// A document whose layer writes are timed, and its command scopes, which end with the writing. It offers
/// what the reference document does.
class TimedDoc final : public ZolWDoc::ZOLW_Doc,
                       private ZolWDoc::CommandScopeRole,
                       private ZolWDoc::LayerFileRole,
                       private ZolWDoc::LayerElementsRole {
public:
    explicit TimedDoc(ZolWDoc::ZOLW_Doc &real) : m_real(real) {}
    double spent() const { return m_layers.spent; } ///< milliseconds of writing so far

    ZolWDoc::LayerRole &layers() override { return m_layers; }
    ZolWDoc::TextTypeRole &textTypes() override { return m_real.textTypes(); }
    ZolWDoc::LineTypeRole &lineTypes() override { return m_real.lineTypes(); }
    ZolWDoc::PenColorRole &penColors() override { return m_real.penColors(); }
    ZolWDoc::SymbolRole &symbols() override { return m_real.symbols(); }
    ZolWDoc::SymbolizationRole &lineSymbolizations() override { return m_real.lineSymbolizations(); }
    ZolWDoc::PointRole &points() override { return m_real.points(); }
    ZolWDoc::KhRole &khItems() override { return m_real.khItems(); }
    void redrawAll() override { m_real.redrawAll(); }
    ZolWDoc::LayerFileRole *layerFiles() override { return this; }
    ZolWDoc::LayerElementsRole *layerElements() override { return this; }
    ZolWDoc::CommandScopeRole *commandScopes() override { return this; }

private:
    void beginCommand(const QString &name) override
    {
        m_layers.timed([&] { m_real.commandScopes()->beginCommand(name); });
    }
    void endCommand() override { m_layers.timed([&] { m_real.commandScopes()->endCommand(); }); }
    void addFromFile(const QString &path) override
    {
        m_layers.timed([&] { m_real.layerFiles()->addFromFile(path); });
    }
    int deleteElements(std::span<const qint16> ids) override
    {
        return m_layers.timed([&] { return m_real.layerElements()->deleteElements(ids); });
    }
    ZolWDoc::ZOLW_Doc &m_real;
    TimedLayers m_layers{m_real.layers()};
};

} // namespace benchmarks
