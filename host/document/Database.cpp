#include "document/Database.h"

#include "document/FileCheck.h"

#include "facade/services/Text.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

/// With a log beside the file part of the drawing lies there, and another program may be writing to it.
void lookOnly(QSqlDatabase &db, const QString &path)
{
    const bool hasLog = QFileInfo::exists(path + QStringLiteral("-wal"));
    db.setDatabaseName(fileUri(path) + (hasLog ? QString() : QStringLiteral("?immutable=1")));
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
}

} // namespace

Database::Database(const QString &path, Access access)
    : m_path(path), m_name(QUuid::createUuid().toString()),
      m_connection(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
{
    m_connection.setDatabaseName(path);
    if (access == Access::Look) lookOnly(m_connection, path);
    try {
        if (!m_connection.open()) fail(m_connection.lastError());
        run(QStringLiteral("PRAGMA foreign_keys=ON"));
        run(QStringLiteral("PRAGMA synchronous=FULL"));
        run(QStringLiteral("PRAGMA temp_store=MEMORY"));
        run(QStringLiteral("CREATE TEMP TABLE gone(id INTEGER PRIMARY KEY)"));
    } catch (...) {
        close();
        throw;
    }
}

Database::~Database()
{
    // A command left open keeps what it wrote.
    while (m_depth > 0) {
        try {
            commit();
        } catch (const DocumentError &) {
            rollback();
        }
    }
    close();
}

void Database::close()
{
    m_statements.clear();
    m_connection.close();
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

void Database::run(const QString &sql)
{
    QSqlQuery query(m_connection);
    if (!query.exec(sql)) fail(query.lastError());
}

std::shared_ptr<QSqlQuery> Database::prepared(const QString &sql)
{
    auto &kept = m_statements[sql];
    if (kept && kept.use_count() == 1) return kept;
    auto query = std::make_shared<QSqlQuery>(m_connection);
    query->setForwardOnly(true);
    if (!query->prepare(sql)) fail(query->lastError());
    if (!kept) kept = query;
    return query;
}

void Database::begin()
{
    run(m_depth == 0 ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("SAVEPOINT s%1").arg(m_depth));
    ++m_depth;
}

void Database::commit()
{
    run(m_depth == 1 ? QStringLiteral("COMMIT") : QStringLiteral("RELEASE s%1").arg(m_depth - 1));
    --m_depth;
}

void Database::rollback() noexcept
{
    // Errors are passed over: a full disk may have ended the whole transaction already.
    QSqlQuery query(m_connection);
    --m_depth;
    if (m_depth == 0) {
        query.exec(QStringLiteral("ROLLBACK"));
    } else {
        query.exec(QStringLiteral("ROLLBACK TO s%1").arg(m_depth));
        query.exec(QStringLiteral("RELEASE s%1").arg(m_depth));
    }
}

quint64 Database::revision(ZolWDoc::TableKind kind)
{
    // The upper half counts what other connections wrote.
    const auto others = quint64(numberOf(*this, QStringLiteral("PRAGMA data_version"), 0));
    return (others << 40) + m_revisions[size_t(kind)];
}

void Database::fail(const QSqlError &error) const
{
    static const QRegularExpression taken(QStringLiteral("UNIQUE constraint failed: (\\w+\\.\\w+)"));
    const auto found = taken.match(error.databaseText());
    throw SqlFailure(
        join(Text{30000, u"A(z) '"}, m_path,
             Text{30009, u"' rajz írása vagy olvasása nem sikerült. Ellenőrizd, hogy van-e szabad hely és "
                         u"írási jog, és nem használja-e más program! Részletek: "},
             error.databaseText().isEmpty() ? error.driverText() : error.databaseText()),
        found.hasMatch() ? found.captured(1) : QString());
}

} // namespace refhost
