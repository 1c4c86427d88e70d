#pragma once

#include "document/Identifiers.h"
#include "document/RecordFields.h"
#include "document/References.h"

#include "facade/contract/TableRoles.h"

namespace refhost {

/// The statements of one table, built once from its fields.
template <class Rec> struct TableSql {
    QString select, insert, update;
    TableSql(const TableFacts<Rec> &f)
    {
        QStringList read, stored, marks, sets;
        for (const Field<Rec> &field : f.fields) {
            const QString column = QString::fromLatin1(field.column);
            read << column;
            if (!field.type) continue;
            stored << column;
            marks << QStringLiteral("?");
            sets << column + QStringLiteral("=?");
        }
        const QString table = QString::fromLatin1(f.table);
        select = QStringLiteral("SELECT %1 FROM %2").arg(read.join(u','), table);
        insert = QStringLiteral("INSERT INTO %1(%2) VALUES(%3)").arg(table, stored.join(u','), marks.join(u','));
        update = QStringLiteral("UPDATE %1 SET %2 WHERE id=?").arg(table, sets.mid(1).join(u','));
    }
};

/// The common role over one table. Every write call is one transaction: when it throws, nothing of it was written.
template <class Rec, class Role> class SqlTable : public Role {
public:
    explicit SqlTable(Database &db) : m_db(db), m_facts(factsOf<Rec>()), m_sql(m_facts) {}

    std::vector<Rec> readAll() const override
    {
        std::vector<Rec> all;
        all.reserve(size_t(count()));
        Statement s(m_db, m_sql.select + QStringLiteral(" ORDER BY id"));
        for (s.exec(); s.next();) all.push_back(recordOf(s));
        return all;
    }
    int count() const override { return numberOf(m_db, QStringLiteral("SELECT count(*) FROM ") + table(), 0); }
    std::optional<Rec> find(qint16 id) const override { return findBy(QStringLiteral(" WHERE id=?"), int(id)); }
    int uses(qint16 id) const override { return usesOf(m_db, m_facts.kind, id); }
    std::vector<int> usesAll(std::span<const qint16> ids) const override { return usesOfAll(m_db, m_facts.kind, ids); }

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
        for (const Rec &r : rows) {
            Rec stored = completed(r);
            stored.*m_facts.id = m_facts.numbered ? numbers.wanted(r.*m_facts.id) : numbers.next();
            insert(stored);
            given.push_back(stored.*m_facts.id);
        }
        numbers.keep();
        added(given);
        changed();
        write.keep();
        ids = std::move(given);
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
        if (rows.size() == 1 || !updatedAsTheyCome(rows)) {
            if (rows.size() > 1) park(rows);
            for (const Rec &r : rows) store(r);
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
            if (used[i] > 0 || change(m_db, QStringLiteral("DELETE FROM %1 WHERE id=?").arg(table()), int(ids[i])) == 0)
                kept.push_back(ids[i]);
        changed();
        write.keep();
        refused = std::move(kept), looked = int(ids.size());
    }
    /// Under its own identifier; throws when that is taken.
    void restore(const Rec &r)
    {
        Write write(m_db);
        Rec stored = completed(r);
        insert(stored);
        Identifiers::note(m_db, table(), r.*m_facts.id);
        added(std::vector<qint16>{r.*m_facts.id});
        changed();
        write.keep();
    }

protected:
    virtual Rec completed(const Rec &r) const { return r; }     ///< what the host decides about a record to be stored
    virtual void added(const std::vector<qint16> &) {}          ///< within the same write

    QString table() const { return QString::fromLatin1(m_facts.table); }
    void changed() { m_db.touch(m_facts.kind); }
    [[noreturn]] void failUnknown(qint16 id) const
    {
        throw DocumentError(QV_DOC_CONTROLS::join(m_facts.unknown, int(id)));
    }
    std::optional<Rec> findBy(const QString &condition, const QVariant &value) const
    {
        Statement s(m_db, m_sql.select + condition);
        s.bind(0, value);
        s.exec();
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
    void insert(const Rec &r)
    {
        Statement s(m_db, m_sql.insert);
        int place = 0;
        for (const Field<Rec> &field : m_facts.fields)
            if (field.type) s.bind(place++, field.get(r));
        named(r, [&] { s.exec(); });
    }
    void store(const Rec &r)
    {
        const Rec stored = completed(r);
        Statement s(m_db, m_sql.update);
        int place = 0;
        for (const Field<Rec> &field : m_facts.fields.subspan(1))
            if (field.type) s.bind(place++, field.get(stored));
        s.bind(place, int(r.*m_facts.id));
        named(r, [&] { s.exec(); });
        if (s.touched() == 0) failUnknown(r.*m_facts.id);
    }
    bool updatedAsTheyCome(std::span<const Rec> rows)
    {
        Write attempt(m_db);
        try {
            for (const Rec &r : rows) store(r);
        } catch (const Taken &) {
            return false;
        }
        attempt.keep();
        return true;
    }
    /// Takes the unique values of the rows out of the way.
    void park(std::span<const Rec> rows)
    {
        for (const UniqueColumn &u : m_facts.unique.subspan(1)) {
            const QString sql = QStringLiteral("UPDATE %1 SET %2=char(1)||id WHERE id=?")
                                    .arg(table(), QString::fromLatin1(u.column));
            for (const Rec &r : rows) change(m_db, sql, int(r.*m_facts.id));
        }
    }
    struct Taken : DocumentError {
        using DocumentError::DocumentError;
    };
    template <class Act> void named(const Rec &r, Act act) const
    {
        try {
            act();
        } catch (const SqlFailure &failure) {
            for (const UniqueColumn &u : m_facts.unique)
                if (failure.unique == table() + u'.' + QString::fromLatin1(u.column))
                    throw Taken(QV_DOC_CONTROLS::join(u.taken, valueOf(r, u.column)));
            throw;
        }
    }
    QString valueOf(const Rec &r, const char *column) const
    {
        for (const Field<Rec> &field : m_facts.fields)
            if (qstrcmp(field.column, column) == 0) return field.get(r).toString();
        return {};
    }
    TableSql<Rec> m_sql;
};

} // namespace refhost
