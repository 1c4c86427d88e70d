#pragma once

#include "document/SqliteDoc.h"
#include "host_document/BrokenTables.h"
#include "support/FaultyDoc.h"

#include <QObject>

namespace broken {

/// What a host may offer beside its tables.
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
    std::unique_ptr<refhost::SqliteDoc> doc = refhost::SqliteDoc::create(":memory:");
};
/// The reference host's document with one fault between it and its caller.
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
