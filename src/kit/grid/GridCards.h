#pragma once

#include "kit/grid/LineView.h"

#include <vector>

namespace QV_DOC_CONTROLS {

/// Cards and compact cards: a card for each row, in lines of as many as fit, which share the width; bands
/// over the full width.
///
/// A card has a caption and a field for each shown column; a compact card only its pictures below the
/// caption. Up and Down go from field to field and on to the next card, Left and Right from card to card.
class GridCards final : public LineView {
    Q_OBJECT
public:
    GridCards(GridModel &model, QWidget *parent);
    void setColumns(std::vector<int> inOrder, bool compact);

    QRect lineRect(int line) const override;                    ///< of a card; a band's: the full width
    QRect visualRect(
        const QModelIndex &index) const override; ///< of the field; of the caption where there is none
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    void reset() override;
    void doItemsLayout() override;
    bool isIndexHidden(const QModelIndex &) const override { return false; }

protected:
    void linesChanged(int first) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    struct Field { int column, top, height; bool titled; };     ///< within a card
    struct Block { int line, count, top; bool band; };          ///< a band, or the cards up to the next one
    void arrange() const;
    void arrangeFields();
    int captionWidth() const;                                   ///< that the first cards ask for
    const Block *blockOf(int line) const;
    int lineNear(QPoint content) const;                         ///< -1 = none there
    int fieldOf(int column) const;
    QRect contentRect(int line) const;
    QRect fieldRect(const QRect &card, const Field &field) const;
    int lineBeside(int line, int steps) const;                  ///< the card so many lines of cards below
    void paintCard(QPainter &painter, QStyleOptionViewItem option, int line) const;

    std::vector<int> m_columns;
    bool m_compact = false;
    std::vector<Field> m_fields;
    int m_titles = 0, m_least = 0;                              ///< width of field names; of a card at least
    mutable QSize m_card;
    mutable std::vector<Block> m_blocks;
    mutable bool m_stale = true; ///< blocks are of other lines, or another width
    mutable int m_perLine = 1, m_height = 0;
};

} // namespace QV_DOC_CONTROLS
