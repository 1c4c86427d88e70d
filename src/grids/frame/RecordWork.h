#pragma once

#include "facade/contract/ResourcePicker.h"
#include "grids/frame/CellEdit.h"
#include "grids/frame/Desk.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/ask/UniqueText.h"
#include "rules/AsNow.h"

namespace QV_DOC_CONTROLS {

/// The selected records as the document has them now.
template <class Table> auto selectedNow(TableDesk<Table> &desk)
{
    return asNow(desk.selected(), Table::role(desk.doc()).readAll(), &Table::id);
}
/// The record of the current row as it is in `all`; empty when it is gone.
template <class Table>
std::optional<typename Table::Record> currentNow(const TableDesk<Table> &desk,
                                                 const std::vector<typename Table::Record> &all)
{
    const auto row = desk.currentRecord();
    if (!row) return {};
    const auto now = asNow(std::vector{*row}, all, &Table::id);
    return now.empty() ? std::nullopt : std::optional(now.front());
}

/// Writes the records that differ, in one call and as one command.
template <class Table>
void store(TableDesk<Table> &desk, const QString &command,
           const std::vector<typename Table::Record> &before, std::vector<typename Table::Record> after)
{
    size_t changed = 0;
    for (size_t i = 0; i < after.size(); ++i)
        if (after[i] != before[i]) std::swap(after[changed++], after[i]);
    if (changed == 0) return;
    after.resize(changed);
    desk.write(command, [&] {
        int written = 0;
        Table::role(desk.doc()).updateAll(after, written);
    });
}
/// Gives every record of `before` what `change` says.
template <class Table, class Change>
void change(TableDesk<Table> &desk, const QString &command,
            const std::vector<typename Table::Record> &before, Change change)
{
    auto after = before;
    for (auto &r : after) change(r);
    store(desk, command, before, std::move(after));
}

/// Asks in the selection dialog of another table which of its records the selected ones are to refer to.
template <class Table>
void pickForSelected(TableDesk<Table> &desk, const QString &command, ZolWDoc::TableKind kind,
                     qint16 Table::Record::*reference)
{
    const auto chosen = desk.selected();
    if (chosen.empty() || !canPickResource(kind)) return;
    const auto id = resourcePicker()->pick(kind, desk.doc(), chosen.front().*reference, desk.asker());
    desk.relay().checkpoint();
    if (id) change(desk, command, selectedNow(desk), [&](auto &r) { r.*reference = *id; });
}

/// Asks for a name until no record beside `r` has it; empty = cancelled, or it is the one that `r` has.
template <class Table>
std::optional<QString> askForName(TableDesk<Table> &desk, const TextQuestion &question,
                                  const typename Table::Record &r,
                                  const std::vector<typename Table::Record> &all)
{
    const auto refusalFor = [&](const QString &name) -> std::optional<Message> {
        const auto edited = withValue<Table>(r, Table::nameColumn, name);
        const Refusal *const why = edited ? refusalOf<Table>(r, *edited, Table::nameColumn, all) : nullptr;
        return why ? std::optional(messageOf(*why)) : std::nullopt;
    };
    const auto name = uniqueText(desk.relay(), question, refusalFor, desk.asker());
    return name && withValue<Table>(r, Table::nameColumn, *name) ? name : std::nullopt;
}

} // namespace QV_DOC_CONTROLS
