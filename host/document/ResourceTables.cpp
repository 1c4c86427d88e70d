#include "document/ResourceTables.h"

#include "document/ChangeSpans.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace refhost {
namespace {

/// Gives a record whose number is its identifier another one; everything that refers to it follows.
template <class Rec> void renumbered(Database &db, qint16 from, qint16 to)
{
    const TableFacts<Rec> &facts = factsOf<Rec>();
    const QString table = QString::fromLatin1(facts.table);
    const QString known = QStringLiteral("SELECT 1 FROM %1 WHERE id=?").arg(table);
    if (to <= 0)
        throw DocumentError(join(Text{30051, u"A sorszám csak 1 és 32767 közötti lehet: "}, int(to)));
    if (!numberOf(db, known, 0, int(from))) throw DocumentError(join(facts.unknown, int(from)));
    if (from == to) return;
    if (numberOf(db, known, 0, int(to))) throw DocumentError(join(facts.unique.front().taken, int(to)));
    Write write(db);
    change(db, QStringLiteral("UPDATE %1 SET id=? WHERE id=?").arg(table), int(to), int(from));
    moveReferences(db, facts.kind, from, to);
    ChangeSpans::noteMove(db, facts.kind, from, to);
    Identifiers::note(db, table, to);
    db.touch(facts.kind);
    write.keep();
}

} // namespace

void TextTypes::renumber(qint16 from, qint16 to) { renumbered<tTxd>(m_db, from, to); }
void Symbols::renumber(qint16 from, qint16 to) { renumbered<tSid>(m_db, from, to); }

tTxd TextTypes::completed(const tTxd &t) const
{
    tTxd stored = t;
    stored.GroupId = m_groups.resolved(t.GroupId, t.GroupName);
    return stored;
}

tSid Symbols::completed(const tSid &s) const
{
    tSid stored = s;
    stored.GroupId = m_groups.resolved(s.GroupId, s.GroupName);
    return stored;
}

qint16 TextTypes::takeOver(const tTxd &t)
{
    tTxd taken = t;
    taken.GroupId = -1;
    taken.GroupName.clear();
    const QString base = t.Name.isEmpty() ? txt(Text{3334, u"Új_típus"}) : t.Name;
    taken.Name = base;
    const QString known = QStringLiteral("SELECT 1 FROM text_types WHERE name=?");
    for (int n = 2; numberOf(m_db, known, 0, taken.Name); ++n) taken.Name = base + u'_' + QString::number(n);
    return add(taken);
}

bool Symbols::nameExists(const QString &shortName) const
{
    return numberOf(m_db, QStringLiteral("SELECT 1 FROM symbols WHERE name=?"), 0, shortName) != 0;
}

qint16 Symbols::highestId() const
{
    return qint16(numberOf(m_db, QStringLiteral("SELECT coalesce(max(id), 0) FROM symbols"), 0));
}

} // namespace refhost
