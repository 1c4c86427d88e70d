#pragma once

#include "document/Database.h"
#include "document/RecordFields.h"

#include <optional>

namespace refhost {

/// The statements of one table, built from its fields.
template <class Rec> struct TableSql {
    QString all, byId, insert;
    TableSql(const TableFacts<Rec> &f)
    {
        QStringList read, stored, marks;
        for (const Field<Rec> &field : f.fields) {
            read << QString::fromLatin1(field.column);
            if (field.type) stored << read.back(), marks << QStringLiteral("?");
        }
        const QString table = QString::fromLatin1(f.table);
        const QString select = QStringLiteral("SELECT %1 FROM %2").arg(read.join(u','), table);
        all = select + QStringLiteral(" ORDER BY id");
        byId = select + QStringLiteral(" WHERE id=?");
        insert =
            QStringLiteral("INSERT INTO %1(%2) VALUES(%3)").arg(table, stored.join(u','), marks.join(u','));
    }
};

/// A unique value is already there; the text names it.
struct Taken : DocumentError {
    using DocumentError::DocumentError;
};
/// Runs a write of `r`; what SQLite says of a unique column becomes an error in the table's own words.
template <class Rec, class Act> void named(const TableFacts<Rec> &facts, const Rec &r, Act write)
{
    try {
        write();
    } catch (const SqlFailure &failure) {
        for (const UniqueColumn &u : facts.unique) {
            const QString column = QString::fromLatin1(facts.table) + u'.' + QString::fromLatin1(u.column);
            if (failure.unique != column) continue;
            for (const Field<Rec> &field : facts.fields)
                if (qstrcmp(field.column, u.column) == 0)
                    throw Taken(QV_DOC_CONTROLS::join(u.taken, field.get(r).toString()));
        }
        throw;
    }
}

/// Stores new records under the identifiers that they carry.
template <class Rec> class RowInsert {
public:
    RowInsert(Database &db, const TableFacts<Rec> &facts, const QString &sql)
        : m_facts(facts), m_statement(db, sql)
    {}
    void write(const Rec &r)
    {
        int place = 0;
        for (const Field<Rec> &field : m_facts.fields)
            if (field.type) m_statement.bind(place++, field.get(r));
        named(m_facts, r, [this] { m_statement.exec(); });
    }
private:
    const TableFacts<Rec> &m_facts;
    Statement m_statement;
};

/// Writes the columns of records that differ from what is stored; most updates change one of many.
template <class Rec> class RowUpdate {
public:
    /// `always`: columns written even where they seem the same, one bit for each field.
    RowUpdate(Database &db, const TableFacts<Rec> &facts, quint32 always)
        : m_db(db), m_facts(facts), m_always(always)
    {
    }
    void write(const Rec &stored, const Rec &wanted)
    {
        quint32 columns = m_always;
        for (size_t i = 1; i < m_facts.fields.size(); ++i)
            if (m_facts.fields[i].type && !m_facts.fields[i].same(stored, wanted)) columns |= 1u << i;
        if (columns == 0) return;
        if (columns != m_columns) prepare(columns);
        int place = 0;
        for (size_t i = 1; i < m_facts.fields.size(); ++i)
            if (columns >> i & 1) m_statement->bind(place++, m_facts.fields[i].get(wanted));
        m_statement->bind(place, int(wanted.*m_facts.id));
        m_statement->exec();
    }
private:
    void prepare(quint32 columns)
    {
        QStringList sets;
        for (size_t i = 1; i < m_facts.fields.size(); ++i)
            if (columns >> i & 1)
                sets << QString::fromLatin1(m_facts.fields[i].column) + QStringLiteral("=?");
        m_columns = columns;
        m_statement.emplace(m_db, QStringLiteral("UPDATE %1 SET %2 WHERE id=?")
                                      .arg(QString::fromLatin1(m_facts.table), sets.join(u',')));
    }
    Database &m_db;
    const TableFacts<Rec> &m_facts;
    quint32 m_always;
    quint32 m_columns = 0;
    std::optional<Statement> m_statement;
};

} // namespace refhost
