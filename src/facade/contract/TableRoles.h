#pragma once

#include "facade/contract/TableRole.h"

#include <QStringList>

/// One interface per table: what it needs beyond the common role.
namespace ZolWDoc {

/// Layers. `uses` counts the drawing elements on the layer: 0 = the layer is empty.
struct LayerRole : TableRole<tLay> {
    using TableRole<tLay>::remove;
    using TableRole<tLay>::removeAll;

    virtual std::optional<tLay> findByNumber(qint16 gNr) const = 0;
    /// Removes a layer with its memberships. What stands on it and would be left without a layer is removed
    /// too with `alsoOrphans`; otherwise it stays in the drawing, on no layer. False = there is no such
    /// layer.
    virtual bool remove(qint16 id, bool alsoOrphans) = 0;
    bool remove(qint16 id) override { return remove(id, false); }
    virtual void removeAll(std::span<const qint16> ids, bool alsoOrphans, int &done);

    virtual void makeCurrent(const tLay &) = 0;   ///< new elements go to this layer
    virtual qint16 currentId() const = 0;         ///< -1 = none

    /// The group table; one group is the system group, which the host creates and owns.
    virtual std::vector<tGroup> groups() const = 0;
    virtual void writeGroups(std::span<const tGroup> all) = 0;  ///< whole; new groups (-1) get identifiers
    virtual std::vector<tLayMember> members() const = 0;
    virtual void writeMembers(std::span<const tLayMember> all) = 0;
    virtual qint16 groupOf(qint16 layId) const;   ///< its first group, -1 = in none; reads the memberships

    virtual void
    writeAll(std::span<const tLay> all) = 0; ///< the whole table at once: the same identifiers, new values
    virtual qint32 fileVersion() const = 0;                ///< head of layer files
    virtual void renameFromFile(const QString &path) = 0;    ///< the host reads the text file and applies it
    virtual void renumberFromFile(const QString &path) = 0;  ///< the host reads the text file and applies it
};

/// Text types; `remove` refuses while the type is used.
struct TextTypeRole : TableRole<tTxd> {
    virtual GroupRole &groups() = 0;
    virtual void renumber(qint16 from, qint16 to) = 0;  ///< references follow; throws when `to` is taken
    virtual qint16 takeOver(
        const tTxd &) = 0; ///< a record of a set file, without name and group; the host names and numbers it
};

/// Symbols; `remove` refuses while the symbol is used.
struct SymbolRole : TableRole<tSid> {
    virtual GroupRole &groups() = 0;
    virtual bool nameExists(const QString &shortName) const;
    virtual qint16 highestId() const;                   ///< 0 in an empty table
};

/// Line types; `uses` counts elements and other resources.
struct LineTypeRole : TableRole<tPenStyle> {};
/// Line symbolizations; `uses` counts slots of line types and elements.
struct SymbolizationRole : TableRole<tPenStyleSi> {};
struct PointRole : TableRole<tPt> {};

/// The 255 pens and the palette behind their indices.
struct PenColorRole {
    virtual ~PenColorRole() = default;
    virtual PenColorTable read() const = 0;
    virtual void write(const PenColorTable &) = 0;      ///< whole, in one call
    virtual Palette palette() const = 0;
};

/// The host's own choice list.
struct KhRole {
    virtual ~KhRole() = default;
    virtual std::vector<tKh> items(int mode) const = 0; ///< what is offered in that mode, 1 or 2
};

} // namespace ZolWDoc
