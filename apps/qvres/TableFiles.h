#pragma once

#include "qvres/Table.h"

#include "rules/recordset/Recordset.h"

#include <optional>

namespace qvres {

/// A file as tables; of a set file the set itself, with its columns and its values as they stand.
struct Content {
    std::vector<Table> tables; ///< none when there is a set
    std::optional<QV_DOC_CONTROLS::Recordset> set;
};
std::vector<Table> tablesOf(Content content); ///< that of the set too, which costs rows by columns

Failure failureOf(const QString &path, const QString &why);
/// Errors of `body` name the file.
template <class Body> auto about(const QString &path, Body body)
{
    try {
        return body();
    } catch (const Failure &e) {
        throw failureOf(path, QString::fromUtf8(e.what()));
    }
}

/// By the file's ending: ".rst", ".z3l", ".qvd", ".json", ".csv". `codePage` is that of layer files; empty =
/// the system's. Throws Failure with the file's name.
Content read(const QString &path, const QString &codePage);

/// By the file's ending: ".rst", ".json", ".csv". Replaces the file when the new one is whole. `like`: a set
/// file whose columns a new set gets; empty = none. Throws Failure with the file's name.
void write(const QString &path, const Content &content, const QString &like);

} // namespace qvres
