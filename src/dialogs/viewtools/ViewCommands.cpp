#include "dialogs/viewtools/ViewCommands.h"

#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"

namespace QV_DOC_CONTROLS {

void ViewCommands::showFields()
{
    bool confirmed = false;
    frmShowfields(m_owner).ShowFields(m_grid, confirmed);
}

void ViewCommands::sort() { frmSort(m_owner).SortGrid(m_grid); }
void ViewCommands::groupBy() { frmGroupBy(m_owner).GroupGrid(m_grid); }

} // namespace QV_DOC_CONTROLS
