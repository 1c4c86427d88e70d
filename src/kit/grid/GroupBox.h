#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/SortKey.h"

#include <QAbstractButton>

namespace QV_DOC_CONTROLS {

/// One group level in the group-by box. A click or Space turns its order round, the cross or Delete takes it
/// away.
class GroupChip final : public QAbstractButton {
    Q_OBJECT
public:
    GroupChip(const QString &caption, SortOrder order, QWidget *parent);
    QSize sizeHint() const override;
signals:
    void removeAsked();
    void moveAsked(int steps);                          ///< by keyboard: Ctrl+Left, Ctrl+Right
    void dragged(QPoint global);
    void droppedAt(QPoint global);
protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
private:
    QRect crossRect() const;
    SortOrder m_order;
    QPoint m_pressed;
    bool m_dragging = false;
};

/// The box above the header that column headers are dragged into: shows the group levels and lets them be
/// changed.
class GroupBox final : public QWidget {
    Q_OBJECT
public:
    explicit GroupBox(QWidget *parent);
    void showLevels(const std::vector<SortKey> &levels, const std::vector<GridColumn> &columns);
    bool holds(QPoint global) const;
    void markPlace(QPoint global);                      ///< where a drop would go; elsewhere: no mark
    void insert(int column, QPoint global); ///< asks for that level at the place; a present one moves
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
signals:
    void levelsAsked(const std::vector<SortKey> &levels);
protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override { layOut(); }
private:
    int placeAt(QPoint global) const;
    int gap() const;
    void addChip(int level, const QString &caption);
    void turnRound(int level);
    void remove(int level);
    void move(int level, int to);
    void ask(std::vector<SortKey> levels, int focus);
    void layOut();
    std::vector<SortKey> m_levels;
    std::vector<GroupChip *> m_chips;
    int m_mark = -1;                                    ///< place of the drop mark; -1 = none
    int m_focus = -1;                                   ///< level whose chip gets the focus when shown next
};

} // namespace QV_DOC_CONTROLS
