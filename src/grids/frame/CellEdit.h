#pragma once

#include "facade/services/Prompts.h"
#include "grids/frame/Column.h"
#include "kit/ask/ErrorRelay.h"

#include <algorithm>
#include <span>

namespace QV_DOC_CONTROLS {

/// Why the table does not take `edited` instead of `now`: another record has its value in a column. Null = it
/// does.
template <class Table>
const Refusal *refusalOf(const typename Table::Record &now, const typename Table::Record &edited, int c,
                         std::span<const typename Table::Record> all)
{
    const auto &column = Table::columns[c];
    if (!column.taken) return nullptr;
    const QVariant wanted = column.get(edited);
    const auto has = [&](const auto &r) {
        return Table::id(r) != Table::id(now) && column.get(r) == wanted;
    };
    return std::ranges::any_of(all, has) ? &*column.taken : nullptr;
}

/// The record with another value in a column; empty = that is no value of the column, or the one it has. The
/// converted values are compared: a typed "10" is text.
template <class Table>
std::optional<typename Table::Record> withValue(const typename Table::Record &now, int c,
                                                const QVariant &value)
{
    const auto &column = Table::columns[c];
    auto edited = now;
    if (!column.put(edited, value) || !column.takes(column.get(edited))) return std::nullopt;
    if (column.get(edited) == column.get(now)) return std::nullopt;
    if (column.follow) column.follow(edited);
    return edited;
}

/// The record as the document has it, after an edit of which nobody knows whether it was written; its
/// identifier may be the edited one.
template <class Table>
typename Table::Record asStored(ZolWDoc::ZOLW_Doc &doc, const typename Table::Record &before,
                                const typename Table::Record &edited)
{
    const auto found = Table::role(doc).find(Table::id(before));
    return found ? *found : Table::role(doc).find(Table::id(edited)).value_or(before);
}

/// Lets `write` store what an edit in a column made of the shown record. When it throws, the record is what
/// the document has now, an error of its own apart.
template <class Table, class Write>
void storeCell(ZolWDoc::ZOLW_Doc &doc, int c, typename Table::Record &shown,
               const typename Table::Record &edited, Write write)
{
    try {
        ZolWDoc::inCommand(doc, txt(Table::columns[c].caption), write);
    } catch (...) {
        ErrorRelay::tryQuietly([&] { shown = asStored<Table>(doc, shown, edited); });
        throw;
    }
    shown = edited;
}

inline Message messageOf(const Refusal &r) { return {r.icon, txt(r.title), txt(r.text)}; }

} // namespace QV_DOC_CONTROLS
