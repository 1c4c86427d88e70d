#pragma once

#include "document/Identifiers.h"
#include "document/References.h"
#include "document/RowSql.h"

#include "facade/contract/TableRoles.h"

namespace refhost {

/// The common role over one table. Every write call is one transaction: when it throws, nothing of it was
/// written, but for the rows of addAll before the one that was refused.
template <class Rec, class Role> class SqlTable : public Role {
public:
    explicit SqlTable(Database &db) : m_db(db), m_facts(factsOf<Rec>()), m_sql(m_facts) {}

    std::vector<Rec> readAll() const override
    {
        std::vector<Rec> all;
        all.reserve(size_t(count()));
        Statement s(m_db, m_sql.all);
        for (s.exec(); s.next();) all.push_back(recordOf(s));
        return all;
    }
    int count() const override
    {
        return numberOf(m_db, QStringLiteral("SELECT count(*) FROM ") + table(), 0);
    }
    std::optional<Rec> find(qint16 id) const override { return firstOf(m_sql.byId, int(id)); }
    int uses(qint16 id) const override { return usesOf(m_db, m_facts.kind, id); }
    std::vector<int> usesAll(std::span<const qint16> ids) const override
    {
        return usesOfAll(m_db, m_facts.kind, ids);
    }

    qint16 add(const Rec &r) override
    {
        std::vector<qint16> ids;
        addAll({&r, 1}, ids);
        return ids.front();
    }
    void addAll(std::span<const Rec> rows, std::vector<qint16> &ids) override
    {
        ids.clear();
        std::vector<qint16> given;
        Write write(m_db);
        Identifiers numbers(m_db, table());
        const std::exception_ptr refusal = refusalIn([&] { insertAll(rows, numbers, given); });
        if (refusal && given.empty()) std::rethrow_exception(refusal);
        numbers.keep();
        added(given);
        changed();
        write.keep();
        ids = std::move(given);
        if (refusal) std::rethrow_exception(refusal);
    }
    void update(const Rec &r) override
    {
        int written = 0;
        updateAll({&r, 1}, written);
    }
    /// Unique values may change places within one call.
    void updateAll(std::span<const Rec> rows, int &written) override
    {
        written = 0;
        Write write(m_db);
        if (!updatedAsTheyCome(rows)) {
            store(rows, park(rows));
        }
        changed();
        write.keep();
        written = int(rows.size());
    }
    bool remove(qint16 id) override
    {
        std::vector<qint16> refused;
        int looked = 0;
        const bool known = find(id).has_value();
        if (known) this->removeAll(std::span<const qint16>(&id, 1), refused, looked);
        return known && refused.empty();
    }
    void removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked) override
    {
        refused.clear(), looked = 0;
        std::vector<qint16> kept;
        Write write(m_db);
        const std::vector<int> used = usesAll(ids);
        for (size_t i = 0; i < ids.size(); ++i)
            if (used[i] > 0
                || change(m_db, QStringLiteral("DELETE FROM %1 WHERE id=?").arg(table()), int(ids[i])) == 0)
                kept.push_back(ids[i]);
        changed();
        write.keep();
        refused = std::move(kept), looked = int(ids.size());
    }
    /// Under its own identifier; throws when that is taken.
    void restore(const Rec &r)
    {
        if (r.*m_facts.id <= 0) failUnknown(r.*m_facts.id);
        Write write(m_db);
        RowInsert(m_db, m_facts, m_sql.insert).write(completed(r));
        Identifiers::note(m_db, table(), r.*m_facts.id);
        added(std::vector<qint16>{r.*m_facts.id});
        changed();
        write.keep();
    }

protected:
    virtual Rec completed(const Rec &r) const { return r; } ///< with what the host decides about it
    virtual void added(const std::vector<qint16> &) {}      ///< within the same write

    QString table() const { return QString::fromLatin1(m_facts.table); }
    void changed() { m_db.touch(m_facts.kind); }
    [[noreturn]] void failUnknown(qint16 id) const
    {
        throw DocumentError(QV_DOC_CONTROLS::join(m_facts.unknown, int(id)));
    }
    std::optional<Rec> firstOf(const QString &sql, int value) const
    {
        Statement s(m_db, sql);
        s.exec(value);
        if (!s.next()) return {};
        return recordOf(s);
    }
    Database &m_db;
    const TableFacts<Rec> &m_facts;

private:
    Rec recordOf(const Statement &s) const
    {
        Rec r;
        int column = 0;
        for (const Field<Rec> &field : m_facts.fields) field.put(r, s.value(column++));
        return r;
    }
    void insertAll(std::span<const Rec> rows, Identifiers &numbers, std::vector<qint16> &given)
    {
        RowInsert<Rec> insertion(m_db, m_facts, m_sql.insert);
        for (const Rec &r : rows) {
            Rec stored = completed(r);
            stored.*m_facts.id = m_facts.numbered ? numbers.wanted(r.*m_facts.id) : numbers.next();
            insertion.write(stored);
            given.push_back(stored.*m_facts.id);
        }
    }
    /// What is stored under the identifiers of the rows, in the order of identifiers.
    std::vector<Rec> storedFor(std::span<const Rec> rows) const
    {
        if (rows.size() > 16) return readAll();
        std::vector<Rec> stored;
        for (const Rec &r : rows)
            if (auto found = find(r.*m_facts.id)) stored.push_back(std::move(*found));
        std::ranges::sort(stored, {}, m_facts.id);
        return stored;
    }
    void store(std::span<const Rec> rows, quint32 always = 0)
    {
        std::vector<Rec> stored = storedFor(rows);
        RowUpdate<Rec> update(m_db, m_facts, always);
        for (const Rec &r : rows) {
            const auto old = std::ranges::lower_bound(stored, r.*m_facts.id, {}, m_facts.id);
            if (old == stored.end() || (*old).*m_facts.id != r.*m_facts.id) failUnknown(r.*m_facts.id);
            const Rec wanted = completed(r);
            named(m_facts, r, [&] { update.write(*old, wanted); });
            *old = wanted;
        }
    }
    bool updatedAsTheyCome(std::span<const Rec> rows)
    {
        Write attempt(m_db);
        try {
            store(rows);
        } catch (const Taken &) {
            if (rows.size() == 1) throw;
            return false;
        }
        attempt.keep();
        return true;
    }
    /// Takes the unique values of the rows out of the way; the columns that must be written now.
    quint32 park(std::span<const Rec> rows)
    {
        quint32 parked = 0;
        for (const UniqueColumn &u : m_facts.unique.subspan(1)) {
            for (size_t i = 0; i < m_facts.fields.size(); ++i)
                if (qstrcmp(m_facts.fields[i].column, u.column) == 0) parked |= 1u << i;
            Statement s(m_db, QStringLiteral("UPDATE %1 SET %2=char(1)||id WHERE id=?")
                                  .arg(table(), QString::fromLatin1(u.column)));
            for (const Rec &r : rows) s.exec(int(r.*m_facts.id));
        }
        return parked;
    }
    TableSql<Rec> m_sql;
};

} // namespace refhost
