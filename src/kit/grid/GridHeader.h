#pragma once

#include "kit/grid/GridSource.h"
#include "kit/grid/SortKey.h"

#include <QHeaderView>

class QLabel;

namespace QV_DOC_CONTROLS {

/// The header of a table: shows the sort keys with their ranks, a click sorts (Shift adds a key), a drag
/// moves the column or carries it elsewhere. The drag is the header's own, with nothing but mouse events.
class GridHeader final : public QHeaderView {
    Q_OBJECT
public:
    explicit GridHeader(QWidget *parent);
    void setSortKeys(std::vector<SortKey> keys);
    int widthOf(int column) const;                      ///< pixels; of a hidden column the one it had
    void setWidth(int column, int pixels);              ///< kept for a hidden column until it is shown
    void setShown(int column, bool shown);
    void makeRoomForCaptions();                         ///< widens columns that are too narrow for theirs

signals:
    void sortAsked(int column, bool adding);
    void dragged(int column, QPoint global);            ///< it is over that place
    void dropped(int column, QPoint global);            ///< outside the header
    void dragEnded();                                   ///< after a drop too, or given up
    void columnMoved();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    QSize sectionSizeFromContents(int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;

private:
    int columnToDrag(const QPoint &at) const;           ///< -1 = none there, or the edge that resizes
    int markRoom(int column) const;
    int rankOf(int column) const;                       ///< -1 = no sort key
    void startDrag(const QPoint &at);
    void giveUpDrag();
    void endDrag();
    void moveColumn(int column, int x);
    std::vector<SortKey> m_keys;
    int m_column = -1;                                  ///< pressed; may become a drag
    QPoint m_pressed;
    QHash<int, int> m_widths;                           ///< of hidden columns
    QLabel *m_ghost = nullptr; ///< the caption that follows the mouse; while dragging
};

} // namespace QV_DOC_CONTROLS
