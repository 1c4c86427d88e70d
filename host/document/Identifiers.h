#pragma once

#include "document/Database.h"

namespace refhost {

/// Hands out the 16-bit identifiers of one table inside a write. A number is not given twice while the
/// document lives; only after 32767 the lowest free ones follow. `keep` stores how far it came.
class Identifiers {
public:
    Identifiers(Database &db, const QString &table);
    qint16 next();                          ///< throws when the table is full
    qint16 wanted(qint16 id);               ///< `id` itself when it is above 0 and free, else the next one
    void keep();

    static void note(Database &, const QString &table, qint16 id); ///< `id` came into use in another way
private:
    bool inUse(int id) const;
    Database &m_db;
    QString m_table;
    int m_last = 0;                         ///< highest ever given
    int m_gap = 0;                          ///< where the search for a free one goes on
};

} // namespace refhost
