#pragma once

#include "qvres/Table.h"

namespace QV_DOC_CONTROLS {
class Recordset;
struct LayerFile;
} // namespace QV_DOC_CONTROLS
namespace ZolWDoc {
struct ZOLW_Doc;
}

namespace qvres {

Table tableOf(const QV_DOC_CONTROLS::Recordset &set);
std::vector<Table> tablesOf(const QV_DOC_CONTROLS::LayerFile &file);
std::vector<Table> tablesOf(ZolWDoc::ZOLW_Doc &doc);

/// The set that a table stands for: in the columns of `like` when there is one, else in those of a symbol
/// set when it has just these columns, else in columns as its values need them. Throws Failure.
QV_DOC_CONTROLS::Recordset setFor(const Table &table, const QV_DOC_CONTROLS::Recordset *like);

} // namespace qvres
