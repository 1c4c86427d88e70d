#include "grids/frame/FindInColumn.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/grid/Grid.h"

namespace QV_DOC_CONTROLS {

void findInColumn(Grid &grid, int column, const ErrorRelay &relay)
{
    if (column < 0 || column >= int(grid.columns().size())) return;
    const int row = grid.currentRow();
    const QString proposed = row < 0 ? QString() : grid.shownText(row, column);
    const auto value =
        prompts().text({txt(Text{3030, u"Keresés"}), txt(Text{3031, u"A keresett érték:"}), proposed}, &grid);
    relay.checkpoint();
    if (!value || value->isEmpty() || grid.find(column, *value)) return;
    prompts().tell(
        {Icon::Information, productName(), join(Text{3029, u"Nincs "}, *value, Text{3028, u" érték!"})},
        &grid);
}

} // namespace QV_DOC_CONTROLS
