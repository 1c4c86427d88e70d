#include "document/Schema.h"

#include "document/ChangeSpans.h"
#include "document/RecordFields.h"

using namespace ZolWDoc;

namespace refhost {
namespace {

// What is not a plain table of records; those are made from their fields.
constexpr const char *kStatements[] = {
    "CREATE TABLE meta(key TEXT PRIMARY KEY, value) WITHOUT ROWID",
    "CREATE TABLE counters(name TEXT PRIMARY KEY, last INTEGER NOT NULL) WITHOUT ROWID",
    "CREATE TABLE symbol_groups(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)",
    "CREATE TABLE text_type_groups(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)",
    "CREATE TABLE layer_groups(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE, system INTEGER NOT NULL)",
    "CREATE TABLE layer_members(place INTEGER PRIMARY KEY, "
    "group_id INTEGER NOT NULL REFERENCES layer_groups(id) ON DELETE CASCADE, "
    "layer INTEGER NOT NULL REFERENCES layers(id) ON DELETE CASCADE, UNIQUE(layer, group_id))",
    "CREATE INDEX layer_members_group ON layer_members(group_id)",
    "CREATE TABLE pens(id INTEGER PRIMARY KEY, screen INTEGER NOT NULL, print INTEGER NOT NULL)",
    "CREATE TABLE palette(id INTEGER PRIMARY KEY, rgb INTEGER NOT NULL)",
    // Offered by mode: bit 0 = mode 1, bit 1 = mode 2.
    "CREATE TABLE kh_items(id INTEGER PRIMARY KEY, text TEXT NOT NULL, modes INTEGER NOT NULL)",
    "CREATE TABLE glyphs(code INTEGER PRIMARY KEY, name TEXT NOT NULL, strokes BLOB NOT NULL, advance REAL "
    "NOT NULL)",
    "CREATE TABLE elements(id INTEGER PRIMARY KEY AUTOINCREMENT, kind INTEGER NOT NULL, layer INTEGER, "
    "line_type INTEGER, pen INTEGER, text_type INTEGER, symbol INTEGER, shape BLOB NOT NULL, text TEXT NOT "
    "NULL)",
    "CREATE INDEX elements_layer ON elements(layer) WHERE layer IS NOT NULL",
    "CREATE INDEX elements_line_type ON elements(line_type) WHERE line_type IS NOT NULL",
    "CREATE INDEX elements_pen ON elements(pen) WHERE pen IS NOT NULL",
    "CREATE INDEX elements_text_type ON elements(text_type) WHERE text_type IS NOT NULL",
    "CREATE INDEX elements_symbol ON elements(symbol) WHERE symbol IS NOT NULL",
    "CREATE INDEX layers_line_type ON layers(line_type)",
    "CREATE INDEX layers_text_type ON layers(text_type)",
    "CREATE INDEX symbols_group ON symbols(group_id)",
    "CREATE INDEX symbols_layer ON symbols(layer)",
    "CREATE INDEX text_types_group ON text_types(group_id)",
    "CREATE INDEX text_types_layer ON text_types(layer)",
    "CREATE INDEX symbolizations_symbol ON symbolizations(symbol)",
    "CREATE INDEX points_layer ON points(layer)",
    "CREATE VIEW line_type_slots AS SELECT l.id AS line_type, l.name AS name, slot.value AS symbolization "
    "FROM line_types l, json_each(l.slots) slot WHERE slot.value<>0",
    "CREATE TABLE change_spans(kind INTEGER PRIMARY KEY)",
    "CREATE TABLE span_moves(place INTEGER PRIMARY KEY, kind INTEGER NOT NULL, from_id INTEGER NOT NULL, "
    "to_id INTEGER NOT NULL)",
};

template <class Rec> void createTable(Database &db)
{
    const TableFacts<Rec> &facts = factsOf<Rec>();
    QStringList columns;
    for (const Field<Rec> &f : facts.fields)
        if (f.type) columns << QString::fromLatin1(f.column) + u' ' + QString::fromLatin1(f.type);
    db.run(QStringLiteral("CREATE TABLE %1(%2)").arg(QString::fromLatin1(facts.table), columns.join(u',')));
}

} // namespace

void createSchema(Database &db)
{
    createTable<tLay>(db);
    createTable<tTxd>(db);
    createTable<tSid>(db);
    createTable<tPenStyle>(db);
    createTable<tPenStyleSi>(db);
    createTable<tPt>(db);
    for (const char *sql : kStatements) db.run(QString::fromLatin1(sql));
    for (const QString &table : ChangeSpans::tables())
        db.run(QStringLiteral("CREATE TABLE before_%1 AS SELECT * FROM %1 WHERE 0").arg(table));
    db.run(QStringLiteral("PRAGMA application_id=%1").arg(kApplicationId));
    db.run(QStringLiteral("PRAGMA user_version=%1").arg(SqliteDoc::kVersion));
}

QStringList schemaTables()
{
    QStringList all = ChangeSpans::tables();
    for (const QString &table : ChangeSpans::tables()) all << QStringLiteral("before_") + table;
    return all << QStringLiteral("meta") << QStringLiteral("counters") << QStringLiteral("kh_items")
               << QStringLiteral("glyphs") << QStringLiteral("elements") << QStringLiteral("line_type_slots")
               << QStringLiteral("change_spans") << QStringLiteral("span_moves");
}

} // namespace refhost
