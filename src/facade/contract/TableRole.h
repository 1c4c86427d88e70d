#pragma once

#include "facade/contract/Records.h"

#include <optional>
#include <span>

namespace ZolWDoc {

/// What every resource table offers. Errors are the host's exceptions; the library lets them pass to the
/// caller of the operation that was running. Every write is durable when it returns, or when its command
/// scope ends.
///
/// A command reads a table once, never once per row. The bulk forms do the same as a loop over the single
/// ones; a host may do better. When a bulk form throws, its last argument says what had been written by then,
/// and that stays.
template <class Rec> struct TableRole {
    virtual ~TableRole() = default;

    virtual std::vector<Rec> readAll() const = 0;         ///< the whole table in its own order, may be empty
    virtual int count() const = 0;
    virtual std::optional<Rec> find(qint16 id) const = 0; ///< empty = not found, a normal outcome
    virtual qint16 add(const Rec &) = 0;  ///< stores a copy, returns the identifier that the host chose
    virtual void update(const Rec &) = 0; ///< the record with that identifier; throws when there is none
    virtual bool remove(qint16 id) = 0;   ///< false = refused because of references, or not there
    virtual int uses(qint16 id) const = 0;                ///< references that forbid removal; 0 = free

    /// ids: one for each row written. When a row is refused, those before it are written and stay: what was
    /// read from a file up to a wrong row is not lost.
    virtual void addAll(std::span<const Rec> rows, std::vector<qint16> &ids)
    {
        ids.clear();
        for (const Rec &r : rows) ids.push_back(add(r));
    }
    virtual void updateAll(std::span<const Rec> rows, int &written)
    {
        written = 0;
        for (const Rec &r : rows) update(r), ++written;
    }
    /// Goes on after a refusal; the refused identifiers come back in `refused`, `done` counts those looked
    /// at.
    virtual void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &done)
    {
        refused.clear(), done = 0;
        for (qint16 id : ids) {
            if (!remove(id)) refused.push_back(id);
            ++done;
        }
    }
    virtual std::vector<int> usesAll(std::span<const qint16> ids) const ///< in the order of `ids`
    {
        std::vector<int> all;
        for (qint16 id : ids) all.push_back(uses(id));
        return all;
    }
};

/// The groups of symbols or of text types.
struct GroupRole {
    virtual ~GroupRole() = default;
    virtual std::vector<tGroup> readAll() const = 0;
    virtual qint16 add(const QString &name) = 0; ///< the new group's identifier; throws on a name that exists
    virtual void rename(qint16 id,
                        const QString &name) = 0; ///< the records of the group carry the new name afterwards
    virtual bool remove(qint16 id) = 0;           ///< false = refused: it holds records, or is not there
};

} // namespace ZolWDoc
