#include "dialogs/viewtools/frmSort.h"

#include "facade/services/Text.h"
#include "kit/forms/AccessKeys.h"

#include <QPushButton>

namespace QV_DOC_CONTROLS {

frmSort::frmSort(QWidget *owner) : LevelDialog("frmSort", owner) {}

bool frmSort::SortGrid(SortableRows &grid)
{
    const Trace trace("frmSort", "SortGrid");
    fill(grid, grid.sortKeys());
    const bool confirmed = run();
    if (confirmed) grid.setSortKeys(keys());
    TearDown();
    return confirmed;
}

void frmSort::readCaptions()
{
    setWindowTitle(txt(Text{2814, u"Rendezés"}));
    const QStringList keyed = withAccessKeys(
        {txt(Text{2818, u"1. rendezési szempont"}), txt(Text{2817, u"2. rendezési szempont"}),
         txt(Text{2816, u"3. rendezési szempont"}), txt(Text{2815, u"4. rendezési szempont"}),
         txt(Text{2800, u"Összes törlése"})});
    readLevelCaptions(std::span(keyed).first(kMaxLevels));
    cmdClearAll->setText(keyed.last());
}

} // namespace QV_DOC_CONTROLS
