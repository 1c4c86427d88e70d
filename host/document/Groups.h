#pragma once

#include "document/Database.h"

namespace refhost {

/// The groups of symbols or of text types. Every record is in exactly one group.
class Groups : public ZolWDoc::GroupRole {
public:
    /// `table` holds the groups, `records` the rows whose group_id refers to them.
    Groups(Database &db, ZolWDoc::TableKind kind, const char *table, const char *records);

    std::vector<ZolWDoc::tGroup> readAll() const override;
    qint16 add(const QString &name) override;
    void rename(qint16 id, const QString &name) override;
    bool remove(qint16 id) override;

    /// The group of a record to be stored: the one with that identifier, else with that name; a record
    /// without either goes to the first group. Throws when an identifier is given that no group has.
    qint16 resolved(qint16 id, const QString &name) const;
private:
    Database &m_db;
    ZolWDoc::TableKind m_kind;
    QString m_table, m_records;
};

/// `sql` writes a group name; a name that exists becomes an error that says so.
void nameGroup(Database &, const QString &sql, const QString &name, int id);

} // namespace refhost
