#pragma once

#include "kit/grid/GridHeader.h"
#include "kit/grid/LineView.h"

namespace QV_DOC_CONTROLS {

/// The table view: cells under a header, bands over the full width. All lines are of one height and scroll
/// line by line.
class GridTable final : public LineView {
    Q_OBJECT
public:
    GridTable(GridModel &model, QWidget *parent);
    GridHeader *header() const { return m_header; }

    QHeaderView *columnHeader() const override { return m_header; }
    QRect lineRect(int line) const override;
    QRect visualRect(const QModelIndex &index) const override;  ///< of a band: the full width
    QModelIndex indexAt(const QPoint &point) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void reset() override;
    void doItemsLayout() override;

protected:
    void linesChanged(int first) override;
    void paintEvent(QPaintEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;             ///< pixels across, lines down
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override { return m_header->offset(); }
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex &index) const override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    struct Section { int column, left, width; };
    std::vector<Section> sectionsIn(const QRect &rect) const;
    void paintLine(QPainter &painter, QStyleOptionViewItem option, std::span<const Section> sections) const;
    int lineHeight() const;
    int lineAt(int y) const;                    ///< may be beyond the last
    int wholeLines() const;                     ///< that the viewport has room for, at least one
    int columnBeside(int column, int step) const;
    void placeHeader();
    void setScrollRanges();

    GridHeader *m_header;
    mutable int m_lineHeight = 0;               ///< 0 = to be asked for
    bool m_arranging = false;
};

} // namespace QV_DOC_CONTROLS
