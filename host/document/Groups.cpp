#include "document/Groups.h"

#include "document/Identifiers.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tGroup;

namespace refhost {

void nameGroup(Database &db, const QString &sql, const QString &name, int id)
{
    bool known = true;
    try {
        Statement s(db, sql);
        known = s.exec(name, id).touched() > 0;
    } catch (const SqlFailure &failure) {
        if (!failure.unique.endsWith(QStringLiteral(".name"))) throw;
        throw DocumentError(join(Text{30039, u"Már van ilyen nevű csoport: "}, name));
    }
    if (!known) throw DocumentError(join(Text{30026, u"Nincs ilyen azonosítójú csoport: "}, id));
}

Groups::Groups(Database &db, ZolWDoc::TableKind kind, const char *table, const char *records)
    : m_db(db), m_kind(kind), m_table(QString::fromLatin1(table)), m_records(QString::fromLatin1(records))
{
}

std::vector<tGroup> Groups::readAll() const
{
    std::vector<tGroup> all;
    Statement s(m_db, QStringLiteral("SELECT id, name FROM %1 ORDER BY id").arg(m_table));
    for (s.exec(); s.next();) all.push_back({qint16(s.number(0)), s.value(1).toString()});
    return all;
}

qint16 Groups::add(const QString &name)
{
    Write write(m_db);
    Identifiers numbers(m_db, m_table);
    const qint16 id = numbers.next();
    nameGroup(m_db, QStringLiteral("INSERT INTO %1(name, id) VALUES(?, ?)").arg(m_table), name, id);
    numbers.keep();
    m_db.touch(m_kind);
    write.keep();
    return id;
}

void Groups::rename(qint16 id, const QString &name)
{
    Write write(m_db);
    nameGroup(m_db, QStringLiteral("UPDATE %1 SET name=? WHERE id=?").arg(m_table), name, id);
    m_db.touch(m_kind);
    write.keep();
}

bool Groups::remove(qint16 id)
{
    Write write(m_db);
    const bool gone = change(m_db,
                             QStringLiteral("DELETE FROM %1 WHERE id=? AND NOT EXISTS"
                                            "(SELECT 1 FROM %2 WHERE group_id=%1.id)")
                                 .arg(m_table, m_records),
                             int(id))
                      > 0;
    m_db.touch(m_kind);
    write.keep();
    return gone;
}

qint16 Groups::resolved(qint16 id, const QString &name) const
{
    if (numberOf(m_db, QStringLiteral("SELECT 1 FROM %1 WHERE id=?").arg(m_table), 0, int(id))) return id;
    const int byName = numberOf(m_db, QStringLiteral("SELECT id FROM %1 WHERE name=?").arg(m_table), 0, name);
    if (byName) return qint16(byName);
    if (id > 0) throw DocumentError(join(Text{30026, u"Nincs ilyen azonosítójú csoport: "}, int(id)));
    const int first = numberOf(m_db, QStringLiteral("SELECT min(id) FROM %1").arg(m_table), 0);
    if (first) return qint16(first);
    // The last group was removed while the table was empty.
    return const_cast<Groups *>(this)->add(txt(Text{30114, u"Alapcsoport"}));
}

} // namespace refhost
