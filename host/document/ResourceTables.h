#pragma once

#include "document/Groups.h"
#include "document/SqlTable.h"

namespace refhost {

class LineTypes : public SqlTable<ZolWDoc::tPenStyle, ZolWDoc::LineTypeRole> {
public:
    using SqlTable::SqlTable;
};
class Symbolizations : public SqlTable<ZolWDoc::tPenStyleSi, ZolWDoc::SymbolizationRole> {
public:
    using SqlTable::SqlTable;
};
class Points : public SqlTable<ZolWDoc::tPt, ZolWDoc::PointRole> {
public:
    using SqlTable::SqlTable;
};

class TextTypes : public SqlTable<ZolWDoc::tTxd, ZolWDoc::TextTypeRole> {
public:
    explicit TextTypes(Database &db)
        : SqlTable(db), m_groups(db, ZolWDoc::TableKind::TextTypes, "text_type_groups", "text_types") {}
    ZolWDoc::GroupRole &groups() override { return m_groups; }
    void renumber(qint16 from, qint16 to) override;
    /// A free number when its own is taken, the first group, and a name of its own: "Name", "Name_2", ...
    qint16 takeOver(const ZolWDoc::tTxd &) override;
protected:
    ZolWDoc::tTxd completed(const ZolWDoc::tTxd &) const override;
private:
    Groups m_groups;
};

class Symbols : public SqlTable<ZolWDoc::tSid, ZolWDoc::SymbolRole>, public ZolWDoc::SymbolRenumberRole {
public:
    explicit Symbols(Database &db)
        : SqlTable(db), m_groups(db, ZolWDoc::TableKind::Symbols, "symbol_groups", "symbols") {}
    ZolWDoc::GroupRole &groups() override { return m_groups; }
    bool nameExists(const QString &shortName) const override;
    qint16 highestId() const override;
    void renumber(qint16 from, qint16 to) override;
protected:
    ZolWDoc::tSid completed(const ZolWDoc::tSid &) const override;
private:
    Groups m_groups;
};

} // namespace refhost
