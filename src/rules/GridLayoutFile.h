#pragma once

#include "facade/services/Text.h"
#include "rules/GridState.h"

#include <QByteArray>

#include <optional>
#include <span>

namespace QV_DOC_CONTROLS {

/// The content of a layout file: JSON that names its form, its version and its table.
QByteArray layoutBytes(const QString &table, const GridState &state);

/// The state that a layout file holds, or nothing when any of it is not to be trusted: foreign, damaged, of
/// another table, of a newer version, too large. `builtIn` are the table's columns as they stand without a
/// layout: columns of the file that are none of them are passed over, those that the file does not know keep
/// their built-in place.
std::optional<GridState> layoutFrom(const QByteArray &bytes, const QString &table,
                                    std::span<const GridState::Column> builtIn);

/// What a table calls its layout, and the text that ends the file's name in each language.
struct LayoutName {
    const char *table;
    Text suffix{3427, u"-hun"};
};
/// Path of a table's layout in the current language; each language has a file of its own.
QString layoutFileName(const LayoutName &layout);

/// Replaces the file by one with this state. The old file goes only when the new one is whole on the disk;
/// errors are swallowed.
void saveLayout(const QString &path, const QString &table, const GridState &state);

/// Nothing when there is no such file or layoutFrom() refuses it.
std::optional<GridState> loadLayout(const QString &path, const QString &table,
                                    std::span<const GridState::Column> builtIn);

} // namespace QV_DOC_CONTROLS
