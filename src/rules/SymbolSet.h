#pragma once

#include "facade/contract/Records.h"
#include "rules/recordset/SetFields.h"

namespace QV_DOC_CONTROLS {

/// A symbol set file's content ("*.rst"), in the order of its columns.
std::variant<Recordset, SetFault> symbolSetOf(std::span<const ZolWDoc::tSid> symbols);

/// The symbols of a set. Numbers, groups and check marks are not read back: whoever loads them gives them
/// new ones. A vector symbol is not stretched. What a row lacks is as in a new symbol; its
/// names are empty then.
SetContent<ZolWDoc::tSid> symbolsIn(const Recordset &set);

} // namespace QV_DOC_CONTROLS
