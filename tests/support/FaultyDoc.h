#pragma once

#include "support/FaultyTables.h"

namespace tests {

/// Command scopes through the log. An end that fails has kept what was written.
struct FaultyScopes final : ZolWDoc::CommandScopeRole {
    FaultyScopes(ZolWDoc::CommandScopeRole *of, CallLog &to) : real(of), log(to) {}
    ZolWDoc::CommandScopeRole *real;
    CallLog &log;
    void beginCommand(const QString &name) override { log.on("scopes.begin"), real->beginCommand(name); }
    void endCommand() override { real->endCommand(), log.on("scopes.end"); }
};

/// Spans of changes through the log. One that fails to close stays open.
struct FaultyChanges final : ZolWDoc::ChangeScopeRole {
    FaultyChanges(ZolWDoc::ChangeScopeRole *of, CallLog &to) : real(of), log(to) {}
    ZolWDoc::ChangeScopeRole *real;
    CallLog &log;
    void beginChanges(ZolWDoc::TableKind k) override { log.on("changes.begin"), real->beginChanges(k); }
    void commitChanges(ZolWDoc::TableKind k) override { log.on("changes.commit"), real->commitChanges(k); }
    void discardChanges(ZolWDoc::TableKind k) override { log.on("changes.discard"), real->discardChanges(k); }
    bool changesOpen(ZolWDoc::TableKind k) const override
    {
        return log.on("changes.open"), real->changesOpen(k);
    }
};

/// What a host may offer for layers, through the log.
struct FaultyExtras final : ZolWDoc::LayerFileRole, ZolWDoc::LayerElementsRole {
    FaultyExtras(ZolWDoc::ZOLW_Doc &of, CallLog &to)
        : files(of.layerFiles()), elements(of.layerElements()), log(to)
    {}
    ZolWDoc::LayerFileRole *files;
    ZolWDoc::LayerElementsRole *elements;
    CallLog &log;
    void addFromFile(const QString &path) override { log.on("layerFiles.add"), files->addFromFile(path); }
    int deleteElements(std::span<const qint16> ids) override
    {
        return log.on("layerElements.delete"), elements->deleteElements(ids);
    }
};

/// A real document whose calls are logged and fail on demand.
class FaultyDoc : public ZolWDoc::ZOLW_Doc {
public:
    explicit FaultyDoc(ZolWDoc::ZOLW_Doc &real) : m_real(real) {}
    CallLog log;

    ZolWDoc::LayerRole &layers() override { return m_layers; }
    ZolWDoc::TextTypeRole &textTypes() override { return m_textTypes; }
    ZolWDoc::LineTypeRole &lineTypes() override { return m_lineTypes; }
    ZolWDoc::PenColorRole &penColors() override { return m_pens; }
    FaultySymbols &symbols() override { return m_symbols; }
    ZolWDoc::SymbolRenumberRole *symbolRenumber() override
    {
        return m_symbols.renumberer ? &m_symbols : nullptr;
    }
    ZolWDoc::SymbolizationRole &lineSymbolizations() override { return m_real.lineSymbolizations(); }
    ZolWDoc::PointRole &points() override { return m_real.points(); }
    ZolWDoc::KhRole &khItems() override { return m_real.khItems(); }
    void redrawAll() override { log.on("redrawAll"), m_real.redrawAll(); }
    ZolWDoc::LayerFileRole *layerFiles() override { return m_extras.files ? &m_extras : nullptr; }
    ZolWDoc::LayerElementsRole *layerElements() override { return m_extras.elements ? &m_extras : nullptr; }
    ZolWDoc::CommandScopeRole *commandScopes() override { return m_scopes.real ? &m_scopes : nullptr; }
    ZolWDoc::ChangeScopeRole *changeScopes() override { return m_changes.real ? &m_changes : nullptr; }

private:
    ZolWDoc::ZOLW_Doc &m_real;
    FaultyLayers m_layers{m_real.layers(), log};
    FaultyTextTypes m_textTypes{m_real.textTypes(), log, "textTypes"};
    FaultyLineTypes m_lineTypes{m_real.lineTypes(), log, "lineTypes"};
    FaultySymbols m_symbols{m_real, log};
    FaultyPens m_pens{m_real.penColors(), log};
    FaultyExtras m_extras{m_real, log};
    FaultyScopes m_scopes{m_real.commandScopes(), log};
    FaultyChanges m_changes{m_real.changeScopes(), log};
};

} // namespace tests
