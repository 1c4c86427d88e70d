#pragma once

#include "facade/contract/Records.h"

#include <span>

namespace QV_DOC_CONTROLS {

/// Whether a group beside `except` has the name, or the pseudo-group of all records has it.
bool isGroupNameTaken(const QString &name, qint16 except, std::span<const ZolWDoc::tGroup> groups);
/// `wanted`, or with "_2", "_3" ... behind it.
QString freeGroupName(const QString &wanted, std::span<const ZolWDoc::tGroup> groups);

} // namespace QV_DOC_CONTROLS
