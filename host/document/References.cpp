#include "document/References.h"

namespace refhost {

using ZolWDoc::TableKind;
using Usage = ZolWDoc::UsageRole::Usage;
using By = Usage::By;

namespace {
// Rows of one target and table stand together.
constexpr Reference kRows[] = {
    {TableKind::Layers, By::Elements, "elements", "layer", nullptr, true},
    {TableKind::Layers, By::Elements, "points", "layer", nullptr, true},
    {TableKind::Layers, By::TextTypes, "text_types", "layer", "name", false},
    {TableKind::Layers, By::Symbols, "symbols", "layer", "name", false},
    {TableKind::TextTypes, By::Elements, "elements", "text_type", nullptr, true},
    {TableKind::TextTypes, By::Layers, "layers", "text_type", "name", true},
    {TableKind::LineTypes, By::Elements, "elements", "line_type", nullptr, true},
    {TableKind::LineTypes, By::Layers, "layers", "line_type", "name", true},
    {TableKind::Symbols, By::Elements, "elements", "symbol", nullptr, true},
    {TableKind::Symbols, By::LineSymbolizations, "symbolizations", "symbol", "name", true},
    {TableKind::PenColors, By::Elements, "elements", "pen", nullptr, true},
    {TableKind::PenColors, By::Layers, "layers", "pen", "name", true},
    {TableKind::PenColors, By::Layers, "layers", "screen_color", "name", true},
    {TableKind::PenColors, By::Layers, "layers", "print_color", "name", true},
    {TableKind::LineSymbolizations, By::LineTypes, "line_type_slots", "symbolization", "name", true},
};
QString text(const char *latin) { return QString::fromLatin1(latin); }
} // namespace

const std::span<const Reference> kReferences = kRows;

int usesOf(Database &db, TableKind kind, qint16 id)
{
    int n = 0;
    for (const Reference &r : kRows)
        if (r.target == kind && r.forbidsRemoval)
            n += numberOf(
                db, QStringLiteral("SELECT count(*) FROM %1 WHERE %2=?").arg(text(r.table), text(r.column)),
                0, int(id));
    return n;
}

std::vector<int> usesOfAll(Database &db, TableKind kind, std::span<const qint16> ids)
{
    if (ids.size() == 1) return {usesOf(db, kind, ids.front())};
    QHash<int, int> counts;
    for (const Reference &r : kRows) {
        if (r.target != kind || !r.forbidsRemoval) continue;
        Statement s(db, QStringLiteral("SELECT %2, count(*) FROM %1 WHERE %2 IS NOT NULL GROUP BY 1")
                            .arg(text(r.table), text(r.column)));
        for (s.exec(); s.next();) counts[s.number(0)] += s.number(1);
    }
    std::vector<int> all;
    all.reserve(ids.size());
    for (qint16 id : ids) all.push_back(counts.value(id));
    return all;
}

/// Rows are counted, not columns: a layer that draws, shows and prints with one pen is one user of it.
std::vector<Usage> usersOf(Database &db, TableKind kind, qint16 id)
{
    std::vector<Usage> all;
    for (auto r = std::begin(kRows); r != std::end(kRows);) {
        const Reference &first = *r;
        const auto sameTable = [&](const Reference &o) {
            return o.target == first.target && qstrcmp(o.table, first.table) == 0;
        };
        QStringList columns;
        for (; r != std::end(kRows) && sameTable(*r); ++r) columns << text(r->column) + QStringLiteral("=?");
        if (first.target != kind) continue;
        Statement s(db, QStringLiteral("SELECT count(*), %3 FROM %1 WHERE %2")
                            .arg(text(first.table), columns.join(QStringLiteral(" OR ")),
                                 first.name ? QStringLiteral("min(%1)").arg(text(first.name))
                                            : QStringLiteral("''")));
        for (int i = 0; i < int(columns.size()); ++i) s.bind(i, int(id));
        if (!s.exec().next() || s.number() == 0) continue;
        if (!all.empty() && all.back().by == first.by) all.back().count += s.number();
        else all.push_back({first.by, s.number(), s.value(1).toString()});
    }
    return all;
}

void moveReferences(Database &db, TableKind kind, qint16 from, qint16 to)
{
    for (const Reference &r : kRows) {
        // Slots are a view over line types; symbolizations keep their number for life.
        if (r.target != kind || kind == TableKind::LineSymbolizations) continue;
        change(db, QStringLiteral("UPDATE %1 SET %2=? WHERE %2=?").arg(text(r.table), text(r.column)),
               int(to), int(from));
        if (r.by == By::Layers) db.touch(TableKind::Layers);
        if (r.by == By::LineSymbolizations) db.touch(TableKind::LineSymbolizations);
    }
}

} // namespace refhost
