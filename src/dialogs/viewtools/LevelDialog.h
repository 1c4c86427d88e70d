#pragma once

#include "kit/forms/ModalForm.h"
#include "kit/grid/AbstractGrid.h"

#include <array>

class QComboBox;
class QGroupBox;
class QRadioButton;
class QVBoxLayout;

namespace QV_DOC_CONTROLS {

/// Four levels, each a column and its order: what sorting and grouping have in common.
///
/// A level can be set only when the one above it is; one without a column takes the levels below it along to
/// "(None)". A column serves one level: the other lists show it and do not offer it, for a second key of the
/// same column would order nothing.
class LevelDialog : public ModalForm {
    Q_OBJECT
public:
    std::array<QComboBox *, kMaxLevels> cboGroups{};            // published names
    /// Of level n: 2n ascending, 2n + 1 descending
    std::array<QRadioButton *, 2 * kMaxLevels> optOrder{};
    QPushButton *const cmdClearAll;

    void TearDown() override { m_grid = nullptr; }

protected:
    LevelDialog(const char *form, QWidget *owner);
    void fill(const SortableRows &grid, std::span<const SortKey> keys); ///< the grid's until TearDown()
    std::vector<SortKey> keys() const;          ///< one per level that has a column
    void readLevelCaptions(std::span<const QString> frames); ///< access keys included
    QVBoxLayout *body() const { return m_body; } ///< below the levels

private:
    QGroupBox *makeLevel(int level);
    void clearAll();
    void followLists();
    void offerFreeColumns();
    void readColumns();
    bool eventFilter(QObject *watched, QEvent *event) override;

    std::array<QGroupBox *, kMaxLevels> m_frames{};
    QVBoxLayout *m_body;
    const SortableRows *m_grid = nullptr;
};

} // namespace QV_DOC_CONTROLS
