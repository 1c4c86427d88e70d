#pragma once

#include "dialogs/viewtools/LevelDialog.h"

namespace QV_DOC_CONTROLS {

/// The dialog in which the user chooses up to four sort keys of a grid.
class frmSort final : public LevelDialog {
    Q_OBJECT
public:
    explicit frmSort(QWidget *owner = nullptr);
    ~frmSort() override { TearDown(); }
    /// True = confirmed, the grid has the chosen keys; else it is untouched
    bool SortGrid(SortableRows &grid);
private:
    void readCaptions() override;
};

} // namespace QV_DOC_CONTROLS
