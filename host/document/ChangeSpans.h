#pragma once

#include "document/Database.h"

#include <QStringList>

namespace refhost {

/// Edit spans with before-images in side tables of the file. Discarding brings the records, groups and
/// memberships of that table back; references that a renumbering moved meanwhile go back with them. The
/// current layer stays.
class ChangeSpans : public ZolWDoc::ChangeScopeRole {
public:
    explicit ChangeSpans(Database &db) : m_db(db) {}
    void beginChanges(ZolWDoc::TableKind) override;
    void commitChanges(ZolWDoc::TableKind) override;
    void discardChanges(ZolWDoc::TableKind) override;
    bool changesOpen(ZolWDoc::TableKind) const override;

    /// Closes the spans that a crash left open; the changes stay. One note for each.
    QStringList closeLeftOpen();

    static QStringList tables();            ///< all that have a side table "before_..."
    static void noteMove(Database &, ZolWDoc::TableKind, qint16 from, qint16 to);
private:
    void requireOpen(ZolWDoc::TableKind) const;
    void close(ZolWDoc::TableKind);
    Database &m_db;
};

} // namespace refhost
