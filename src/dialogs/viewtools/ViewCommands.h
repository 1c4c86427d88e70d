#pragma once

#include "kit/grid/AbstractGrid.h"
#include "kit/tools/Tool.h"

class QWidget;

namespace QV_DOC_CONTROLS {

/// What the view tools do to a grid, for a command table. Grid and owner, the window of its dialogs, outlive
/// it.
class ViewCommands {
public:
    ViewCommands(AbstractGrid &grid, QWidget *owner) : m_grid(grid), m_owner(owner) {}
    void showFields();
    void sort();
    void groupBy();
    void collapseAll() { m_grid.setAllExpanded(false); }
    void expandAll() { m_grid.setAllExpanded(true); }
    bool isGrouped() const { return !m_grid.groupLevels().empty(); }
private:
    AbstractGrid &m_grid;
    QWidget *m_owner;
};

inline constexpr ToolCommand<ViewCommands> kViewCommands[] = {
    {"miShowFields", &ViewCommands::showFields},
    {"miSort", &ViewCommands::sort},
    {"miGroupBy", &ViewCommands::groupBy},
    {"miCollapseAll", &ViewCommands::collapseAll, &ViewCommands::isGrouped},
    {"miExpandAll", &ViewCommands::expandAll, &ViewCommands::isGrouped},
};

} // namespace QV_DOC_CONTROLS
