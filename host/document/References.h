#pragma once

#include "document/Database.h"

#include <span>

/// Who refers to whom: one row per column that holds another table's identifier.
namespace refhost {

struct Reference {
    ZolWDoc::TableKind target;
    ZolWDoc::UsageRole::Usage::By by;
    const char *table;
    const char *column;
    const char *name;       ///< column that names the user, null for elements
    bool forbidsRemoval;    ///< false: a target layer, which falls back to another one
};
extern const std::span<const Reference> kReferences;

int usesOf(Database &, ZolWDoc::TableKind, qint16 id);
std::vector<int> usesOfAll(Database &, ZolWDoc::TableKind, std::span<const qint16> ids);
std::vector<ZolWDoc::UsageRole::Usage> usersOf(Database &, ZolWDoc::TableKind, qint16 id);
/// All references to one identifier become references to another.
void moveReferences(Database &, ZolWDoc::TableKind, qint16 from, qint16 to);

} // namespace refhost
