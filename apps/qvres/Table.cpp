#include "qvres/Table.h"

#include "rules/recordset/RecordsetValues.h"

namespace qvres {

bool Cell::same(const Cell &other) const
{
    if (kind != other.kind) return false;
    if (text == other.text || kind != Kind::Number) return text == other.text;
    const auto mine = QV_DOC_CONTROLS::numberIn(text), its = QV_DOC_CONTROLS::numberIn(other.text);
    return mine && its && *mine == *its;
}

} // namespace qvres
