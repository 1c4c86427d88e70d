#pragma once

#include "document/SqliteDoc.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <array>
#include <exception>
#include <memory>

namespace refhost {

/// What SQLite refused. `unique` names the column, "table.column", when a value is already taken.
struct SqlFailure : DocumentError {
    SqlFailure(const QString &text, const QString &column) : DocumentError(text), unique(column) {}
    QString unique;
};

/// One connection with its prepared statements, transactions and revisions.
class Database {
public:
    enum class Access : quint8 { Write, Look };
    /// Write opens or creates the file; Look leaves it byte for byte as it is. Throws DocumentError.
    explicit Database(const QString &path, Access access = Access::Write);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    QString path() const { return m_path; }
    void run(const QString &sql);               ///< a statement without answer, not kept
    std::shared_ptr<QSqlQuery> prepared(const QString &sql); ///< shared with nobody who still reads from it

    void begin();                               ///< a transaction, or a savepoint inside one
    void commit();                              ///< durable when the outermost one returns
    void rollback() noexcept;
    int depth() const { return m_depth; }

    void touch(ZolWDoc::TableKind kind)             ///< the table is being changed
    {
        ++m_revisions[size_t(kind)];
        if (onTouch) onTouch();
    }
    std::function<void()> onTouch;
    quint64 revision(ZolWDoc::TableKind kind);
    [[noreturn]] void fail(const QSqlError &error) const;

private:
    void close();
    QString m_path;
    QString m_name;
    QSqlDatabase m_connection;
    QHash<QString, std::shared_ptr<QSqlQuery>> m_statements;
    std::array<quint64, 7> m_revisions{};
    int m_depth = 0;
};

/// Text for a column that is never null.
inline QVariant sqlText(const QString &s) { return s.isNull() ? QVariant(QStringLiteral("")) : QVariant(s); }

/// A prepared statement in use; its locks end with it.
class Statement {
public:
    Statement(Database &db, const QString &sql) : m_db(db), m_query(db.prepared(sql)) {}
    ~Statement() { m_query->finish(); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    void bind(int place, const QVariant &value) { m_query->bindValue(place, value); }
    Statement &exec()
    {
        if (!m_query->exec()) m_db.fail(m_query->lastError());
        return *this;
    }
    template <class... A> Statement &exec(const A &...arguments)
    {
        int place = 0;
        (bind(place++, asVariant(arguments)), ...);
        return exec();
    }
    bool next() { return m_query->next(); }
    QVariant value(int column) const { return m_query->value(column); }
    int number(int column = 0) const { return value(column).toInt(); }
    qint64 insertedId() const { return m_query->lastInsertId().toLongLong(); }
    int touched() const { return m_query->numRowsAffected(); }
private:
    static const QVariant &asVariant(const QVariant &v) { return v; }
    static QVariant asVariant(const QString &s) { return sqlText(s); }
    static QVariant asVariant(const QByteArray &b)
    {
        return b.isNull() ? QVariant(QByteArray("")) : QVariant(b);
    }
    static QVariant asVariant(auto number) { return number; }
    Database &m_db;
    std::shared_ptr<QSqlQuery> m_query;
};

/// A write that counts as a whole: what is not kept is taken back.
class Write {
public:
    explicit Write(Database &db) : m_db(db) { db.begin(); }
    ~Write() { if (!m_kept) m_db.rollback(); }
    Write(const Write &) = delete;
    Write &operator=(const Write &) = delete;
    void keep()
    {
        m_db.commit();
        m_kept = true;
    }
private:
    Database &m_db;
    bool m_kept = false;
};

/// The error of the document that ended `body`; null = it came to its end.
template <class Body> std::exception_ptr refusalIn(Body body)
{
    try {
        body();
    } catch (const DocumentError &) {
        return std::current_exception();
    }
    return {};
}

/// The first number of an answer, or `fallback` without one.
template <class... A> int numberOf(Database &db, const QString &sql, int fallback, const A &...arguments)
{
    Statement s(db, sql);
    s.exec(arguments...);
    return s.next() ? s.number() : fallback;
}
template <class... A> int change(Database &db, const QString &sql, const A &...arguments)
{
    return Statement(db, sql).exec(arguments...).touched();
}

} // namespace refhost
