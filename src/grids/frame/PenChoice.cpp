#include "grids/frame/PenChoice.h"

#include "facade/services/Text.h"
#include "grids/frame/ColorStyles.h"
#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

std::optional<QVariant> choosePen(Desk &desk, const QString &column, const QString &record,
                                  const QVariant &now)
{
    const ColorIndexQuestion question{column, join(Text{22343, u"Válassz tollat! "}, record),
                                      now.toInt(), screenColorsOfPens(desk.doc())};
    const auto pen = prompts().colorIndex(question, desk.asker());
    desk.relay().checkpoint();
    return pen ? std::optional<QVariant>(*pen) : std::nullopt;
}

} // namespace QV_DOC_CONTROLS
