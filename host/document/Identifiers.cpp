#include "document/Identifiers.h"

#include "facade/services/Text.h"

#include <limits>

using namespace QV_DOC_CONTROLS;

namespace refhost {

constexpr int kHighest = std::numeric_limits<qint16>::max();

Identifiers::Identifiers(Database &db, const QString &table) : m_db(db), m_table(table)
{
    m_last = numberOf(db, QStringLiteral("SELECT max(coalesce((SELECT last FROM counters WHERE name=?), 0), "
                                         "coalesce((SELECT max(id) FROM %1), 0))").arg(table), 0, table);
}

bool Identifiers::inUse(int id) const
{
    return numberOf(m_db, QStringLiteral("SELECT 1 FROM %1 WHERE id=?").arg(m_table), 0, id) != 0;
}

qint16 Identifiers::next()
{
    if (m_last < kHighest) return qint16(++m_last);
    while (++m_gap <= kHighest)
        if (!inUse(m_gap)) return qint16(m_gap);
    throw DocumentError(
        txt(Text{30045, u"A tábla megtelt: 32767 elem van benne. Törölj a fölöslegesek közül!"}));
}

qint16 Identifiers::wanted(qint16 id)
{
    if (id <= 0 || inUse(id)) return next();
    m_last = std::max(m_last, int(id));
    return id;
}

void Identifiers::keep()
{
    change(m_db, QStringLiteral("INSERT OR REPLACE INTO counters(name, last) VALUES(?, ?)"), m_table, m_last);
}

void Identifiers::note(Database &db, const QString &table, qint16 id)
{
    Identifiers all(db, table);
    all.m_last = std::max(all.m_last, int(id));
    all.keep();
}

} // namespace refhost
