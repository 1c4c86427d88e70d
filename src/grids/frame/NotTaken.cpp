#include "grids/frame/NotTaken.h"

#include "facade/services/Text.h"
#include "rules/NumberWording.h"

namespace QV_DOC_CONTROLS {

Message notTaken(const QString &record, const QString &column, const QString &typed, const NumberField &field)
{
    return {Icon::Exclamation, column,
            join(record, QStringLiteral("\n"), Text{22341, u"Nem fogadható el: "}, typed,
                 QStringLiteral("\n\n"), refusalFor(typed, field))};
}

} // namespace QV_DOC_CONTROLS
