#pragma once

#include "facade/contract/OptionalRoles.h"
#include "facade/contract/TableRoles.h"

#include <exception>

class QObject;

namespace ZolWDoc {

/// The host's drawing document: every table behind one role each.
///
/// Owned by the host. The library keeps the reference for one dialog only, until TearDown(). All calls come
/// on the user-interface thread. Whatever a role throws reaches the caller of the library operation that was
/// running.
struct ZOLW_Doc { // published spelling
    virtual ~ZOLW_Doc();

    virtual LayerRole &layers() = 0;
    virtual TextTypeRole &textTypes() = 0;
    virtual LineTypeRole &lineTypes() = 0;
    virtual SymbolRole &symbols() = 0;
    virtual PenColorRole &penColors() = 0;
    virtual SymbolizationRole &lineSymbolizations() = 0;
    virtual PointRole &points() = 0;
    virtual KhRole &khItems() = 0;
    virtual void redrawAll() = 0; ///< all views, after a change that alters the drawing's look

    // Optional; null = the host lacks it.
    virtual LayerFileRole *layerFiles() { return nullptr; }
    virtual LayerElementsRole *layerElements() { return nullptr; }
    virtual SymbolRenumberRole *symbolRenumber() { return nullptr; }
    virtual PaletteRole *paletteReplacement() { return nullptr; }
    virtual RestoreRole *restorer() { return nullptr; }
    virtual UsageRole *usage() { return nullptr; }
    virtual RevisionRole *revisions() { return nullptr; }
    virtual CommandScopeRole *commandScopes() { return nullptr; }
    virtual ChangeScopeRole *changeScopes() { return nullptr; }

    /// Offers the two members that are reached by name, both Q_INVOKABLE:
    ///   bool bGetPenStyle(int iPenStyleId, ZolWDoc::tPenStyle *style)   false = no such line type
    ///   ZolWDoc::DrawingObjects ElRec2ObjLst(const ZolWDoc::LineElement &line)
    virtual QObject *lateBound() { return nullptr; }
};

/// The open documents of the host, for commands that reach all of them.
struct DocumentList {
    virtual ~DocumentList() = default;
    virtual int count() const = 0;
    virtual ZOLW_Doc *item(int index) = 0;              ///< 0-based; the host's own
    virtual QString name(int index) const;              ///< in messages; by default its place, "2."
};

/// Runs `body` as one command of the document: durable at its end, whether it throws or not.
template <class Body> void inCommand(ZOLW_Doc &doc, const QString &name, Body body)
{
    CommandScopeRole *const scopes = doc.commandScopes();
    if (!scopes) return body();
    scopes->beginCommand(name);
    try {
        body();
    } catch (...) {
        const std::exception_ptr first = std::current_exception();
        try {
            scopes->endCommand();
        } catch (...) { // the command's own error is the one to tell
        }
        std::rethrow_exception(first);
    }
    scopes->endCommand();
}

} // namespace ZolWDoc
