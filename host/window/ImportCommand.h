#pragma once

#include "window/OpenDrawing.h"

class QWidget;

namespace refhost {

/// Asks for the unit of the file, imports it into a drawing of its own and tells what was carried over. Null
/// when the user broke it off; throws DocumentError for a file that cannot be read. With `ask` off the unit
/// is taken as guessed.
std::unique_ptr<OpenDrawing> importedDrawing(QWidget &window, const QString &path, bool ask, QString &report);

} // namespace refhost
