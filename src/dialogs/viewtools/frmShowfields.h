#pragma once

#include "kit/forms/ModalForm.h"
#include "kit/grid/AbstractGrid.h"

class QKeySequence;
class QLabel;
class QListWidget;

namespace QV_DOC_CONTROLS {

/// The dialog in which the user chooses which columns of a grid are shown, and in which order.
class frmShowfields final : public ModalForm {
    Q_OBJECT
public:
    explicit frmShowfields(QWidget *owner = nullptr);
    ~frmShowfields() override { TearDown(); }
    void TearDown() override { m_grid = nullptr; }
    void ShowFields(AbstractGrid &grid, bool &confirmed); ///< not confirmed = the grid is untouched

    QListWidget *const lstAvail;                ///< the columns that are not shown
    QListWidget *const lstVisible;              ///< the others, in display order; entries can be dragged too
    QPushButton *const cmdAdd;
    QPushButton *const cmdRemove;
    QPushButton *const cmdUp;
    QPushButton *const cmdDown;
    QLabel *const lblCaption;

private:
    QListWidget *makeList(const char *name);
    QPushButton *makeButton(const char *name, const char *icon);
    void arrange();
    void connectControls();
    void connectKey(const QKeySequence &keys, QPushButton &button, int by);
    void fill();
    void readCaptions() override;
    void move(QListWidget &from, QListWidget &to);
    void step(int by);                          ///< the current entry of lstVisible, if there is room
    void followLists();                         ///< what can be done now

    QLabel *m_availTitle;
    QLabel *m_visibleTitle;
    AbstractGrid *m_grid = nullptr;
};

} // namespace QV_DOC_CONTROLS
