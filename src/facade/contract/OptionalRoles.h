#pragma once

#include "facade/contract/TableRole.h"

/// Roles that a host may lack: the document answers with a null pointer, and what needs the role is disabled.
namespace ZolWDoc {

struct LayerFileRole {
    virtual ~LayerFileRole() = default;
    virtual void addFromFile(const QString &path) = 0;  ///< adds the layers that a text file lists
};
struct LayerElementsRole {
    virtual ~LayerElementsRole() = default;
    virtual int deleteElements(std::span<const qint16> layIds) = 0;  ///< how many elements went
};
struct SymbolRenumberRole {
    virtual ~SymbolRenumberRole() = default;
    virtual void renumber(qint16 from, qint16 to) = 0;  ///< references follow; throws when `to` is taken
};
struct PaletteRole {
    virtual ~PaletteRole() = default;
    virtual void replacePalette(const Palette &) = 0;
};

/// Brings a removed record back under its old identifier; for undo.
struct RestoreRole {
    virtual ~RestoreRole() = default;
    virtual void restore(const tLay &) = 0;             ///< each throws when the identifier is taken
    virtual void restore(const tTxd &) = 0;
    virtual void restore(const tPenStyle &) = 0;
    virtual void restore(const tSid &) = 0;
    virtual void restore(const tPenStyleSi &) = 0;
    virtual void restore(const tPt &) = 0;
};

/// Says who refers to a record, for messages that name the users. A pen colour is referred to by a layer's
/// pen colour, screen colour and print colour. Who refers to it more than once counts once.
struct UsageRole {
    struct Usage {
        enum class By { Elements, Layers, TextTypes, Symbols, LineTypes, LineSymbolizations } by;
        int count = 0;
        QString example;                                ///< name of one of them, empty for elements
        bool operator==(const Usage &) const = default;
    };
    virtual ~UsageRole() = default;
    virtual std::vector<Usage> usersOf(TableKind, qint16 id) const = 0;
};

/// Tells whether a table changed since it was last read. Asked, never pushed.
struct RevisionRole {
    virtual ~RevisionRole() = default;
    virtual quint64 revision(TableKind) const = 0;      ///< another value after every change of the table
};

/// One command = one durable unit and, later, one step of undo. Scopes nest; only the outermost counts.
struct CommandScopeRole {
    virtual ~CommandScopeRole() = default;
    virtual void beginCommand(const QString &name) = 0;
    virtual void endCommand() = 0;                      ///< what was written is durable when it returns
};

/// An edit span of one table that can be taken back whole. The host keeps before-images; it is no database
/// transaction: what happens to other tables meanwhile stays. A span that a crash left open is reported when
/// the document is opened.
struct ChangeScopeRole {
    virtual ~ChangeScopeRole() = default;
    virtual void beginChanges(TableKind) = 0;           ///< throws while a span of that table is open
    virtual void commitChanges(TableKind) = 0;          ///< keeps the changes; the span is closed
    virtual void
        discardChanges(TableKind) = 0; ///< records, groups and identifiers as they were; the span is closed
    virtual bool changesOpen(TableKind) const = 0;
};

} // namespace ZolWDoc
