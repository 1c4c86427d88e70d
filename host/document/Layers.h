#pragma once

#include "document/SqlTable.h"

namespace refhost {

/// Layers with their groups. A layer is always in at least one group: one that is in none joins the system
/// group. Text types and symbols that aim at a removed layer aim at the one with the lowest number
/// afterwards.
class Layers : public SqlTable<ZolWDoc::tLay, ZolWDoc::LayerRole>,
               public ZolWDoc::LayerFileRole,
               public ZolWDoc::LayerElementsRole {
public:
    using SqlTable::SqlTable;

    std::optional<ZolWDoc::tLay> findByNumber(qint16 gNr) const override;
    bool remove(qint16 id) override { return remove(id, false); }
    bool remove(qint16 id, bool alsoOrphans) override;
    void removeAll(std::span<const qint16> ids, bool alsoOrphans, int &looked) override;
    void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked) override;

    void makeCurrent(const ZolWDoc::tLay &) override;
    qint16 currentId() const override;

    std::vector<ZolWDoc::tGroup> groups() const override;
    void writeGroups(std::span<const ZolWDoc::tGroup> all) override;
    std::vector<ZolWDoc::tLayMember> members() const override;
    void writeMembers(std::span<const ZolWDoc::tLayMember> all) override;
    qint16 groupOf(qint16 layId) const override;

    /// Layers that `all` leaves out stay as they are.
    void writeAll(std::span<const ZolWDoc::tLay> all) override;
    qint32 fileVersion() const override { return 1; }

    // Text files: UTF-8, or the code page of layer files where it is not; empty lines and lines that begin
    // with # are passed over. A wrong line ends the call with an error that names it, and nothing has
    // changed.
    void renameFromFile(const QString &path) override;      ///< lines: number, blank or tab or ;, name
    void renumberFromFile(
        const QString &path) override; ///< lines: old number, new number; places may be exchanged
    void addFromFile(const QString &path) override; ///< lines: number, name; attributes of the current layer

    int deleteElements(std::span<const qint16> layIds) override;    ///< elements and points

    /// Takes care of what refers to the layers in the temporary table "gone", which are no more.
    static void leave(Database &, bool alsoOrphans);
    static void makeSureOfCurrent(Database &);
protected:
    void added(const std::vector<qint16> &ids) override;
private:
    int fillGone(std::span<const qint16> ids);              ///< how many of them there are
    void joinSystemGroup();                                 ///< those in no group
};

} // namespace refhost
