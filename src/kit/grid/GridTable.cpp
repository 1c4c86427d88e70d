#include "kit/grid/GridTable.h"

#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace QV_DOC_CONTROLS {

GridTable::GridTable(GridModel &model, QWidget *parent)
    : LineView(model, parent), m_header(new GridHeader(this))
{
    setHorizontalScrollMode(ScrollPerPixel);
    m_header->setModel(&model);
    const auto relaid = [this] { scheduleDelayedItemsLayout(); };
    connect(m_header, &QHeaderView::sectionResized, this, relaid);
    connect(m_header, &QHeaderView::sectionMoved, this, relaid);
    connect(m_header, &QHeaderView::sectionCountChanged, this, relaid);
    connect(m_header, &QHeaderView::geometriesChanged, this, &GridTable::updateGeometries);
}

int GridTable::lineHeight() const
{
    if (m_lineHeight == 0) m_lineHeight = m_delegate.sizeHint(cellOption(), {}).height();
    return m_lineHeight;
}

int GridTable::lineAt(int y) const
{
    const int down = y >= 0 ? y / lineHeight() : (y + 1) / lineHeight() - 1;
    return verticalScrollBar()->value() + down;
}

int GridTable::wholeLines() const { return std::max(1, viewport()->height() / lineHeight()); }
int GridTable::verticalOffset() const { return verticalScrollBar()->value() * lineHeight(); }

QRect GridTable::lineRect(int line) const
{
    return {0, (line - verticalScrollBar()->value()) * lineHeight(), viewport()->width(), lineHeight()};
}

bool GridTable::isIndexHidden(const QModelIndex &index) const
{
    return m_model.bandOf(index) < 0 && m_header->isSectionHidden(index.column());
}

/// Cells stand in columns: numbers on their right.
void GridTable::initViewItemOption(QStyleOptionViewItem *option) const
{
    LineView::initViewItemOption(option);
    option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
}

QRect GridTable::visualRect(const QModelIndex &index) const
{
    if (!index.isValid()) return {};
    QRect rect = lineRect(index.row());
    if (m_model.bandOf(index) >= 0) return rect;
    rect.setLeft(m_header->sectionViewportPosition(index.column()));
    rect.setWidth(m_header->sectionSize(index.column())); // none of a hidden one, whose line still counts
    return rect;
}

QModelIndex GridTable::indexAt(const QPoint &point) const
{
    const int line = lineAt(point.y()), column = m_header->logicalIndexAt(point.x());
    const bool band = line >= 0 && line < m_model.rowCount() && m_model.engine().bandAt(line) >= 0;
    return m_model.index(line, band ? std::max(column, 0) : column);
}

void GridTable::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid() || isIndexHidden(index)) return;
    executeDelayedItemsLayout();
    QScrollBar &down = *verticalScrollBar(), &across = *horizontalScrollBar();
    const int line = index.row(), page = wholeLines();
    int first = down.value();
    if (hint == PositionAtCenter) first = line - page / 2;
    else if (hint == PositionAtTop || line < first) first = line;
    else if (hint == PositionAtBottom || line >= first + page) first = line - page + 1;
    down.setValue(first);
    if (m_model.bandOf(index) >= 0) return;
    const int left = m_header->sectionPosition(index.column()), width = m_header->sectionSize(index.column());
    const int room = viewport()->width();
    if (left < across.value() || width > room) across.setValue(left);
    else if (left + width > across.value() + room) across.setValue(left + width - room);
}

void GridTable::reset()
{
    QAbstractItemView::reset();
    m_header->doItemsLayout();                  // its columns may be others
}

void GridTable::doItemsLayout()
{
    m_lineHeight = 0;
    QAbstractItemView::doItemsLayout();
}

/// Lines above stay as they are painted.
void GridTable::linesChanged(int first)
{
    updateGeometries();
    QRect below = viewport()->rect();
    below.setTop(std::max(0, lineRect(first).top()));
    viewport()->update(below);
}

void GridTable::placeHeader()
{
    const int height = m_header->isHidden() ? 0 : m_header->sizeHint().height();
    if (viewportMargins().top() != height) setViewportMargins(0, height, 0, 0);
    const QRect below = viewport()->geometry();
    m_header->setGeometry(below.left(), below.top() - height, below.width(), height);
}

/// Neither bar is needed when everything fits without them.
void GridTable::setScrollRanges()
{
    const QSize whole = maximumViewportSize();
    const int lines = m_model.rowCount(), width = m_header->length();
    const bool fits = lines * lineHeight() <= whole.height() && width <= whole.width();
    verticalScrollBar()->setRange(0, fits ? 0 : std::max(0, lines - wholeLines()));
    horizontalScrollBar()->setRange(0, fits ? 0 : std::max(0, width - viewport()->width()));
    verticalScrollBar()->setPageStep(wholeLines());
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(lineHeight());
}

void GridTable::updateGeometries()
{
    if (m_arranging) return;
    const QScopedValueRollback arranging(m_arranging, true);
    placeHeader();
    setScrollRanges();                          // a bar that comes or goes resizes the view once more
    m_header->setOffset(horizontalScrollBar()->value());
    QAbstractItemView::updateGeometries();
}

void GridTable::scrollContentsBy(int dx, int dy)
{
    if (dx) m_header->setOffset(horizontalScrollBar()->value());
    LineView::scrollContentsBy(dx, dy * lineHeight());
}

/// The next shown column in the order of the header; itself when there is none. -1 stands before the first.
int GridTable::columnBeside(int column, int step) const
{
    for (int visual = m_header->visualIndex(column) + step; visual >= 0 && visual < m_header->count();
         visual += step)
        if (const int c = m_header->logicalIndex(visual); !m_header->isSectionHidden(c)) return c;
    return column;
}

/// Left and Right go from cell to cell, in the order of the header; a cell is what F2 and Space act on.
QModelIndex GridTable::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_model.rowCount() - 1;
    const QModelIndex now = currentIndex();
    if (last < 0 || m_header->count() == 0) return {};
    if (!now.isValid()) return m_model.index(0, columnBeside(-1, 1));
    const auto at = [&](int line) { return m_model.index(std::clamp(line, 0, last), now.column()); };
    const int onward = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (action) {
    case MoveHome: return at(0);
    case MoveEnd: return at(last);
    case MovePageUp: return at(now.row() - wholeLines());
    case MovePageDown: return at(now.row() + wholeLines());
    case MoveUp: case MovePrevious: return at(now.row() - 1);
    case MoveDown: case MoveNext: return at(now.row() + 1);
    case MoveLeft: return now.siblingAtColumn(columnBeside(now.column(), -onward));
    case MoveRight: return now.siblingAtColumn(columnBeside(now.column(), onward));
    }
    return now;
}

void GridTable::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const QRect wanted = rect.normalized();
    const int from = std::max(0, lineAt(wanted.top())),
              to = std::min(lineAt(wanted.bottom()), m_model.rowCount() - 1);
    QItemSelection lines;
    if (from <= to) lines.select(m_model.index(from, 0), m_model.index(to, m_model.columnCount() - 1));
    selectionModel()->select(lines, command);
}

QRegion GridTable::visualRegionForSelection(const QItemSelection &selection) const
{
    const int first = lineAt(0), last = lineAt(viewport()->height());
    QRegion region;
    for (const QItemSelectionRange &range : selection) {
        const int from = std::max(first, range.top()), to = std::min(last, range.bottom());
        if (from <= to) region += lineRect(from).united(lineRect(to));
    }
    return region;
}

std::vector<GridTable::Section> GridTable::sectionsIn(const QRect &rect) const
{
    std::vector<Section> sections;
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const int c = m_header->logicalIndex(visual);
        const Section section{c, m_header->sectionViewportPosition(c), m_header->sectionSize(c)};
        const bool seen = section.left <= rect.right() && section.left + section.width > rect.left();
        if (seen && !m_header->isSectionHidden(c)) sections.push_back(section);
    }
    return sections;
}

void GridTable::paintLine(QPainter &painter, QStyleOptionViewItem option,
                          std::span<const Section> sections) const
{
    const QRect row = option.rect;
    const QModelIndex head = m_model.index(lineAt(row.top()), 0);
    const int focused = hasFocus() && currentIndex().row() == head.row() ? currentIndex().column() : -1;
    option.state.setFlag(QStyle::State_HasFocus, focused >= 0);
    if (const int band = m_model.bandOf(head); band >= 0) return m_delegate.paintBand(&painter, option, band);
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(head));
    const QColor line = palette().color(QPalette::Midlight);
    for (const Section &section : sections) {
        option.rect = QRect(section.left, row.top(), section.width - 1, row.height() - 1);
        option.state.setFlag(QStyle::State_HasFocus, section.column == focused);
        m_delegate.paint(&painter, option, head.siblingAtColumn(section.column));
        painter.fillRect(section.left + section.width - 1, row.top(), 1, row.height(), line);
    }
    const int end = std::min(row.width(), m_header->length() - m_header->offset());
    painter.fillRect(0, row.bottom(), end, 1, line);
}

void GridTable::paintEvent(QPaintEvent *event)
{
    executeDelayedItemsLayout();
    QPainter painter(viewport());
    QStyleOptionViewItem option = cellOption();
    const std::vector<Section> sections = sectionsIn(event->rect());
    const int last = std::min(lineAt(event->rect().bottom()), m_model.rowCount() - 1);
    for (int line = lineAt(event->rect().top()); line <= last; ++line) {
        option.rect = lineRect(line);
        paintLine(painter, option, sections);
    }
    paintDropLine(painter);
}

} // namespace QV_DOC_CONTROLS
