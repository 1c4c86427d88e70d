#include "document/ChangeSpans.h"

#include "document/Layers.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;
using ZolWDoc::TableKind;

namespace refhost {
namespace {

struct SideRow {
    TableKind kind;
    const char *table;
};
// Groups before the records that refer to them.
constexpr SideRow kSides[] = {
    {TableKind::Layers, "layer_groups"},     {TableKind::Layers, "layers"},
    {TableKind::Layers, "layer_members"},    {TableKind::TextTypes, "text_type_groups"},
    {TableKind::TextTypes, "text_types"},    {TableKind::LineTypes, "line_types"},
    {TableKind::Symbols, "symbol_groups"},   {TableKind::Symbols, "symbols"},
    {TableKind::PenColors, "pens"},          {TableKind::PenColors, "palette"},
    {TableKind::LineSymbolizations, "symbolizations"}, {TableKind::Points, "points"},
};

constexpr Text kNames[] = {
    {30070, u"rétegek"},    {30071, u"felirattípusok"}, {30072, u"vonaltípusok"},
    {30073, u"jelkulcsok"}, {30074, u"tollszínek"},     {30075, u"vonaltípus-jelkulcsozások"},
    {30076, u"pontok"},
};
Text nameOf(TableKind kind) { return kNames[size_t(kind)]; }

template <class Act> void eachSide(TableKind kind, Act act)
{
    for (const SideRow &row : kSides)
        if (row.kind == kind) act(QString::fromLatin1(row.table));
}

/// References go back the way they came, last move first.
void undoMoves(Database &db, TableKind kind)
{
    std::vector<std::pair<qint16, qint16>> moves;
    {
        Statement s(db,
                    QStringLiteral("SELECT from_id, to_id FROM span_moves WHERE kind=? ORDER BY place DESC"));
        for (s.exec(int(kind)); s.next();) moves.emplace_back(qint16(s.number(0)), qint16(s.number(1)));
    }
    for (const auto &[from, to] : moves) moveReferences(db, kind, to, from);
}

} // namespace

QStringList ChangeSpans::tables()
{
    QStringList all;
    for (const SideRow &row : kSides) all << QString::fromLatin1(row.table);
    return all;
}

bool ChangeSpans::changesOpen(TableKind kind) const
{
    return numberOf(m_db, QStringLiteral("SELECT 1 FROM change_spans WHERE kind=?"), 0, int(kind)) != 0;
}

void ChangeSpans::requireOpen(TableKind kind) const
{
    if (!changesOpen(kind))
        throw DocumentError(
            join(Text{30061, u"Nincs megnyitott szerkesztés ebben a táblában: "}, nameOf(kind)));
}

void ChangeSpans::beginChanges(TableKind kind)
{
    if (changesOpen(kind))
        throw DocumentError(join(Text{30060, u"Már folyik szerkesztés ebben a táblában: "}, nameOf(kind)));
    Write write(m_db);
    change(m_db, QStringLiteral("INSERT INTO change_spans(kind) VALUES(?)"), int(kind));
    eachSide(kind, [&](const QString &table) {
        change(m_db, QStringLiteral("INSERT INTO before_%1 SELECT * FROM %1").arg(table));
    });
    write.keep();
}

void ChangeSpans::close(TableKind kind)
{
    change(m_db, QStringLiteral("DELETE FROM change_spans WHERE kind=?"), int(kind));
    change(m_db, QStringLiteral("DELETE FROM span_moves WHERE kind=?"), int(kind));
    eachSide(kind,
             [&](const QString &table) { change(m_db, QStringLiteral("DELETE FROM before_%1").arg(table)); });
}

void ChangeSpans::commitChanges(TableKind kind)
{
    requireOpen(kind);
    Write write(m_db);
    close(kind);
    write.keep();
}

void ChangeSpans::discardChanges(TableKind kind)
{
    requireOpen(kind);
    Write write(m_db);
    undoMoves(m_db, kind);
    if (kind == TableKind::Layers) {
        change(m_db, QStringLiteral("DELETE FROM gone"));
        change(m_db,
               QStringLiteral("INSERT INTO gone SELECT id FROM layers EXCEPT SELECT id FROM before_layers"));
    }
    m_db.run(QStringLiteral("PRAGMA defer_foreign_keys=ON"));
    eachSide(kind, [&](const QString &table) { change(m_db, QStringLiteral("DELETE FROM %1").arg(table)); });
    eachSide(kind, [&](const QString &table) {
        change(m_db, QStringLiteral("INSERT INTO %1 SELECT * FROM before_%1").arg(table));
    });
    if (kind == TableKind::Layers) Layers::leave(m_db, false);
    close(kind);
    m_db.touch(kind);
    write.keep();
}

QStringList ChangeSpans::closeLeftOpen()
{
    QStringList notes;
    for (size_t i = 0; i < std::size(kNames); ++i) {
        if (!changesOpen(TableKind(i))) continue;
        notes << join(
            Text{30062,
                 u"Az előző szerkesztés félbeszakadt; a módosításai megmaradtak. Nézd át ezt a táblát: "},
            kNames[i]);
        commitChanges(TableKind(i));
    }
    return notes;
}

void ChangeSpans::noteMove(Database &db, TableKind kind, qint16 from, qint16 to)
{
    change(db,
           QStringLiteral("INSERT INTO span_moves(kind, from_id, to_id) "
                          "SELECT kind, ?, ? FROM change_spans WHERE kind=?"),
           int(from), int(to), int(kind));
}

} // namespace refhost
