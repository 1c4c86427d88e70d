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
    /// True = confirmed, the grid has the chosen levels; else it is untouched
    bool GroupGrid(AbstractGrid &grid);
    /// The same without the state of groups, which stays as it is
    bool GroupGrid2(AbstractGrid &grid);

    QComboBox *const cboState;                  ///< entry 0 opens every group, 1 closes them
    QLabel *const lblState;

private:
    bool groupLevels(AbstractGrid &grid);
    void readCaptions() override;
};

} // namespace QV_DOC_CONTROLS
