#pragma once

#include "dialogs/viewtools/LevelDialog.h"

class QLabel;

namespace QV_DOC_CONTROLS {

/// The dialog in which the user chooses up to four group levels of a grid, and whether its groups are open.
class frmGroupBy final : public LevelDialog {
    Q_OBJECT
public:
    explicit frmGroupBy(QWidget *owner = nullptr);
    ~frmGroupBy() override { TearDown(); }
    bool GroupGrid(AbstractGrid &grid);         ///< true = confirmed, the grid has the chosen levels; else it is untouched
    bool GroupGrid2(AbstractGrid &grid);        ///< the same without the state of groups, which stays as it is

    QComboBox *const cboState;                  ///< entry 0 opens every group, 1 closes them
    QLabel *const lblState;

private:
    bool groupLevels(AbstractGrid &grid);
    void readCaptions() override;
};

} // namespace QV_DOC_CONTROLS
