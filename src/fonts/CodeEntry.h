#pragma once

#include "fonts/CharacterSource.h"

#include <optional>

namespace QV_DOC_CONTROLS {

/// The code that someone means who types "337", "0x151", "U+0151", "&H151" or the character itself; empty =
/// none of 0..65535. A single digit is a code. `source` null = characters stand for themselves.
std::optional<int> codeMeant(const QString &text, const CharacterSource *source);

} // namespace QV_DOC_CONTROLS
