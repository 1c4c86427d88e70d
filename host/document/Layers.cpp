#include "document/Layers.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;
using ZolWDoc::TableKind;
using ZolWDoc::tLay;

namespace refhost {
namespace {
const QString kLowest = QStringLiteral("(SELECT id FROM layers ORDER BY nr LIMIT 1)");
}

std::optional<tLay> Layers::findByNumber(qint16 gNr) const
{
    const int id = numberOf(m_db, QStringLiteral("SELECT id FROM layers WHERE nr=?"), 0, int(gNr));
    return id ? find(qint16(id)) : std::nullopt;
}

void Layers::added(const std::vector<qint16> &) { joinSystemGroup(); }

int Layers::fillGone(std::span<const qint16> ids)
{
    change(m_db, QStringLiteral("DELETE FROM gone"));
    for (qint16 id : ids)
        change(m_db, QStringLiteral("INSERT OR IGNORE INTO gone SELECT id FROM layers WHERE id=?"), int(id));
    return numberOf(m_db, QStringLiteral("SELECT count(*) FROM gone"), 0);
}

bool Layers::remove(qint16 id, bool alsoOrphans)
{
    if (!find(id)) return false;
    int looked = 0;
    removeAll(std::span<const qint16>(&id, 1), alsoOrphans, looked);
    return true;
}

void Layers::removeAll(std::span<const qint16> ids, std::vector<qint16> &refused, int &looked)
{
    std::vector<qint16> unknown;
    for (qint16 id : ids)
        if (!find(id)) unknown.push_back(id);
    removeAll(ids, false, looked);
    refused = std::move(unknown);
}

void Layers::removeAll(std::span<const qint16> ids, bool alsoOrphans, int &looked)
{
    looked = 0;
    Write write(m_db);
    if (fillGone(ids) > 0) {
        change(m_db, QStringLiteral("DELETE FROM layers WHERE id IN (SELECT id FROM gone)"));
        leave(m_db, alsoOrphans);
    }
    changed();
    write.keep();
    looked = int(ids.size());
}

void Layers::leave(Database &db, bool alsoOrphans)
{
    const QString gone = QStringLiteral(" WHERE layer IN (SELECT id FROM gone)");
    if (alsoOrphans) {
        change(db, QStringLiteral("DELETE FROM elements") + gone);
        change(db, QStringLiteral("DELETE FROM points") + gone);
    } else {
        change(db, QStringLiteral("UPDATE elements SET layer=NULL") + gone);
        change(db, QStringLiteral("UPDATE points SET layer=-1") + gone);
    }
    for (const char *table : {"text_types", "symbols"})
        change(db,
               QStringLiteral("UPDATE %1 SET layer=coalesce(%2, 0)").arg(QString::fromLatin1(table), kLowest)
                   + gone);
    makeSureOfCurrent(db);
    for (TableKind kind : {TableKind::Points, TableKind::TextTypes, TableKind::Symbols}) db.touch(kind);
}

void Layers::makeSureOfCurrent(Database &db)
{
    change(db, QStringLiteral("UPDATE meta SET value=coalesce(%1, -1) WHERE key='current_layer' "
                              "AND CAST(value AS INTEGER) NOT IN (SELECT id FROM layers)").arg(kLowest));
}

void Layers::makeCurrent(const tLay &layer)
{
    if (!find(layer.LayId)) failUnknown(layer.LayId);
    Write write(m_db);
    change(m_db, QStringLiteral("UPDATE meta SET value=? WHERE key='current_layer'"), int(layer.LayId));
    changed();
    write.keep();
}

qint16 Layers::currentId() const
{
    return qint16(numberOf(m_db, QStringLiteral("SELECT value FROM meta WHERE key='current_layer'"), -1));
}

void Layers::writeAll(std::span<const tLay> all)
{
    int written = 0;
    updateAll(all, written);
}

int Layers::deleteElements(std::span<const qint16> layIds)
{
    Write write(m_db);
    fillGone(layIds);
    const QString gone = QStringLiteral(" WHERE layer IN (SELECT id FROM gone)");
    const int n = change(m_db, QStringLiteral("DELETE FROM elements") + gone)
                  + change(m_db, QStringLiteral("DELETE FROM points") + gone);
    m_db.touch(TableKind::Points);
    write.keep();
    return n;
}

} // namespace refhost
