#pragma once

#include "document/SqliteDoc.h"

namespace refhost {

/// What an element gets when the user places it.
struct NewElement {
    /// It is placed on each of them; none = on the current layer, a symbol on its own.
    std::vector<qint16> layers;
    double width = 0;            ///< of a line: millimetres on paper, 0 = the layer's line type
    double rotation = 0;         ///< of a text: degrees anticlockwise
    double textHeight = 0;       ///< of a text: millimetres on paper, 0 = its text type's
};

/// Adds the element once on each layer, drawn as `attributes` say. A line type of a width that the drawing
/// lacks is added too. One command of the document; throws its errors.
void addNew(SqliteDoc &doc, Element element, const NewElement &attributes);

} // namespace refhost
