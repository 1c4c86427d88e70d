#pragma once

#include <QStringView>

#include <string>

namespace QV_DOC_CONTROLS {

enum class Accents { Keep, Drop };

/// Appends `text` for a search that does not tell upper case from lower, as UTF-8: "Árvíz" -> "árvíz" or
/// "arviz". Control characters become blanks, so that a caller can put its own between texts. Returns whether
/// the text has accents, so that the two forms differ.
bool appendFolded(std::string &to, QStringView text, Accents accents);
std::string folded(QStringView text, Accents accents);

} // namespace QV_DOC_CONTROLS
