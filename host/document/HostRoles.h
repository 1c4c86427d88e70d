#pragma once

#include "document/Layers.h"
#include "document/ResourceTables.h"

namespace refhost {

/// All tables of one document.
struct Tables {
    explicit Tables(Database &db)
        : layers(db), textTypes(db), lineTypes(db), symbols(db), symbolizations(db), points(db) {}
    Layers layers;
    TextTypes textTypes;
    LineTypes lineTypes;
    Symbols symbols;
    Symbolizations symbolizations;
    Points points;
};

class Restorer : public ZolWDoc::RestoreRole {
public:
    explicit Restorer(Tables &t) : m_tables(t) {}
    void restore(const ZolWDoc::tLay &r) override { m_tables.layers.restore(r); }
    void restore(const ZolWDoc::tTxd &r) override { m_tables.textTypes.restore(r); }
    void restore(const ZolWDoc::tPenStyle &r) override { m_tables.lineTypes.restore(r); }
    void restore(const ZolWDoc::tSid &r) override { m_tables.symbols.restore(r); }
    void restore(const ZolWDoc::tPenStyleSi &r) override { m_tables.symbolizations.restore(r); }
    void restore(const ZolWDoc::tPt &r) override { m_tables.points.restore(r); }
private:
    Tables &m_tables;
};

class Usages : public ZolWDoc::UsageRole {
public:
    explicit Usages(Database &db) : m_db(db) {}
    std::vector<Usage> usersOf(ZolWDoc::TableKind kind, qint16 id) const override
    {
        return refhost::usersOf(m_db, kind, id);
    }
private:
    Database &m_db;
};

class Revisions : public ZolWDoc::RevisionRole {
public:
    explicit Revisions(Database &db) : m_db(db) {}
    quint64 revision(ZolWDoc::TableKind kind) const override { return m_db.revision(kind); }
private:
    Database &m_db;
};

/// Commands as transactions: the outermost one counts. A call that throws inside takes back only what it
/// wrote itself.
class Commands : public ZolWDoc::CommandScopeRole {
public:
    explicit Commands(Database &db) : m_db(db) {}
    void beginCommand(const QString &name) override;
    void endCommand() override;
    bool open() const { return m_open > 0; }
private:
    Database &m_db;
    int m_open = 0;
};

} // namespace refhost
