#include "grids/frame/PenChoice.h"

#include "facade/services/Text.h"
#include "grids/frame/ColorStyles.h"
#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

std::optional<int> askForPen(Desk &desk, const QString &title, const QString &record, int now)
{
    const ColorIndexQuestion question{title, join(Text{22343, u"Válassz tollat! "}, record), now,
                                      screenColorsOfPens(desk.doc())};
    const auto pen = prompts().colorIndex(question, desk.asker());
    desk.relay().checkpoint();
    return pen;
}

} // namespace QV_DOC_CONTROLS
