#include "dialogs/viewtools/frmGroupBy.h"

#include "facade/services/Text.h"
#include "kit/forms/AccessKeys.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace QV_DOC_CONTROLS {

frmGroupBy::frmGroupBy(QWidget *owner)
    : LevelDialog("frmGroupBy", owner), cboState(new QComboBox(this)), lblState(new QLabel(this))
{
    cboState->setObjectName(QStringLiteral("cboState"));
    cboState->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboState->addItems({QString(), QString()});
    cboState->installEventFilter(this);
    lblState->setObjectName(QStringLiteral("lblState"));
    lblState->setBuddy(cboState);
    auto *const row = new QHBoxLayout;
    row->addWidget(lblState);
    row->addWidget(cboState, 1);
    body()->addLayout(row);
    setTabOrder(optOrder.back(), cboState);
}

bool frmGroupBy::GroupGrid(AbstractGrid &grid)
{
    const Trace trace("frmGroupBy", "GroupGrid");
    const bool confirmed = groupLevels(grid);
    if (confirmed) grid.setAllExpanded(cboState->currentIndex() == 0);
    return confirmed;
}

bool frmGroupBy::GroupGrid2(AbstractGrid &grid)
{
    const Trace trace("frmGroupBy", "GroupGrid2");
    cboState->hide();
    lblState->hide();
    return groupLevels(grid);
}

bool frmGroupBy::groupLevels(AbstractGrid &grid)
{
    fill(grid, grid.groupLevels());
    const bool confirmed = run();
    if (confirmed) grid.setGroupLevels(keys());
    TearDown();
    return confirmed;
}

void frmGroupBy::readCaptions()
{
    setWindowTitle(txt(Text{2796, u"Csoportosítás"}));
    const QStringList keyed = withAccessKeys(
        {txt(Text{2809, u"1. csoportosítási szempont"}), txt(Text{2808, u"2. csoportosítási szempont"}),
         txt(Text{2807, u"3. csoportosítási szempont"}), txt(Text{2803, u"4. csoportosítási szempont"}),
         txt(Text{2800, u"Összes törlése"}), txt(Text{2810, u"A csoportok állapota :"})});
    readLevelCaptions(std::span(keyed).first(kMaxLevels));
    cmdClearAll->setText(keyed[kMaxLevels]);
    lblState->setText(keyed.last());
    cboState->setAccessibleName(txt(Text{2810, u"A csoportok állapota :"}));
    cboState->setItemText(0, txt(Text{2798, u"Összes csoport nyitva"}));
    cboState->setItemText(1, txt(Text{2799, u"Összes csoport csukva"}));
}

} // namespace QV_DOC_CONTROLS
