#include "kit/grid/GridCards.h"

#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kValueLetters = 20;                               ///< room of a value, in average letters
constexpr int kLeastCaption = 16, kMostCaption = 40;            ///< of a compact card, likewise
constexpr int kMostTitle = 40;                                  ///< of a field's name
constexpr int kMeasured = 200;                                  ///< cards that the width is taken from

} // namespace

GridCards::GridCards(GridModel &model, QWidget *parent) : LineView(model, parent)
{
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void GridCards::linesChanged(int)
{
    m_stale = true;
    scheduleDelayedItemsLayout();
}

void GridCards::setColumns(std::vector<int> inOrder, bool compact)
{
    m_columns = std::move(inOrder);
    m_compact = compact;
    doItemsLayout();
}

int GridCards::captionWidth() const
{
    const auto &rows = m_model.engine().shownRows();
    QString longest;
    for (size_t i = 0; i < std::min(rows.size(), size_t(kMeasured)); ++i)
        if (const QString caption = m_model.cardCaption(rows[i]); caption.size() > longest.size())
            longest = caption;
    const int letter = fontMetrics().averageCharWidth();
    return std::clamp(fontMetrics().horizontalAdvance(longest) + 2 * letter, kLeastCaption * letter,
                      kMostCaption * letter);
}

/// What stands in a card, and how much room that needs.
void GridCards::arrangeFields()
{
    const QStyleOptionViewItem option = cellOption();
    const int line = m_delegate.lineHeight(option), letter = fontMetrics().averageCharWidth();
    int bottom = line;
    m_fields.clear();
    m_titles = 0;
    for (int c : m_columns) {
        const GridColumn *column = m_model.column(c);
        const bool picture = column && column->kind == CellKind::Picture;
        if (!column || (m_compact && !picture)) continue;
        const int height = picture ? std::max(line, m_delegate.pictureRoom()) : line;
        m_fields.push_back({c, bottom, height, !m_compact});
        bottom += height;
        if (!m_compact) m_titles = std::max(m_titles, fontMetrics().horizontalAdvance(column->caption));
    }
    m_titles = std::min(m_titles, kMostTitle * letter) + 2 * GridDelegate::padding(fontMetrics());
    m_least = m_compact ? captionWidth() : m_titles + kValueLetters * letter;
    m_card.setHeight(bottom + 2);
}

void GridCards::arrange() const
{
    if (!std::exchange(m_stale, false)) return;
    const int gap = GridDelegate::padding(fontMetrics()), bandHeight = m_delegate.lineHeight(cellOption());
    const int room = viewport()->width() - gap;
    m_perLine = std::max(1, room / (m_least + gap));
    m_card.setWidth(std::max(m_least, room / m_perLine - gap));
    m_blocks.clear();
    const RowEngine &engine = m_model.engine();
    int top = gap;
    const auto close = [&](int end) {
        if (m_blocks.empty() || m_blocks.back().band) return;
        Block &cards = m_blocks.back();
        cards.count = end - cards.line;
        top += (cards.count + m_perLine - 1) / m_perLine * (m_card.height() + gap);
    };
    for (int line = 0; line < engine.lines(); ++line) {
        if (engine.bandAt(line) >= 0) {
            close(line);
            m_blocks.push_back({line, 1, top, true});
            top += bandHeight + gap;
        } else if (m_blocks.empty() || m_blocks.back().band) {
            m_blocks.push_back({line, 0, top, false});
        }
    }
    close(engine.lines());
    m_height = top;
}

void GridCards::doItemsLayout()
{
    arrangeFields();
    m_stale = true;
    QAbstractItemView::doItemsLayout();
}

void GridCards::reset()
{
    QAbstractItemView::reset();
    m_stale = true;
    updateGeometries();
    viewport()->update();
}

void GridCards::resizeEvent(QResizeEvent *event)
{
    m_stale = true;
    QAbstractItemView::resizeEvent(event);
}

void GridCards::changeEvent(QEvent *event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) doItemsLayout();
}

void GridCards::updateGeometries()
{
    arrange();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(m_delegate.lineHeight(cellOption()));
    verticalScrollBar()->setRange(0, std::max(0, m_height - viewport()->height()));
    QAbstractItemView::updateGeometries();
}

int GridCards::verticalOffset() const { return verticalScrollBar()->value(); }

const GridCards::Block *GridCards::blockOf(int line) const
{
    arrange();
    const auto after = std::ranges::upper_bound(m_blocks, line, {}, &Block::line);
    return after == m_blocks.begin() ? nullptr : &after[-1];
}

QRect GridCards::contentRect(int line) const
{
    const Block *block = blockOf(line);
    if (!block) return {};
    const int gap = GridDelegate::padding(fontMetrics());
    if (block->band) return {0, block->top, viewport()->width(), m_delegate.lineHeight(cellOption())};
    const int place = line - block->line;
    return {QPoint(gap + place % m_perLine * (m_card.width() + gap),
                   block->top + place / m_perLine * (m_card.height() + gap)), m_card};
}

QRect GridCards::lineRect(int line) const { return contentRect(line).translated(0, -verticalOffset()); }

int GridCards::fieldOf(int column) const
{
    const auto found = std::ranges::find(m_fields, column, &Field::column);
    return found == m_fields.end() ? -1 : int(found - m_fields.begin());
}

QRect GridCards::fieldRect(const QRect &card, const Field &field) const
{
    const int title = field.titled ? m_titles : 0;
    return {card.left() + 1 + title, card.top() + field.top, card.width() - 2 - title, field.height};
}

QRect GridCards::visualRect(const QModelIndex &index) const
{
    if (!index.isValid()) return {};
    const QRect card = lineRect(index.row());
    if (m_model.bandOf(index) >= 0) return card;
    const int field = fieldOf(index.column());
    if (field >= 0) return fieldRect(card, m_fields[size_t(field)]);
    return {card.left(), card.top(), card.width(), m_delegate.lineHeight(cellOption())};
}

int GridCards::lineNear(QPoint content) const
{
    arrange();
    const auto after = std::ranges::upper_bound(m_blocks, content.y(), {}, &Block::top);
    if (after == m_blocks.begin()) return -1;
    const Block &block = after[-1];
    if (block.band) return contentRect(block.line).contains(content) ? block.line : -1;
    const int gap = GridDelegate::padding(fontMetrics());
    const int row = (content.y() - block.top) / (m_card.height() + gap),
              column = (content.x() - gap) / (m_card.width() + gap);
    const int line = block.line + row * m_perLine + column;
    const bool isThere = content.x() >= gap && column < m_perLine && line < block.line + block.count;
    return isThere && contentRect(line).contains(content) ? line : -1;
}

QModelIndex GridCards::indexAt(const QPoint &point) const
{
    const QPoint content = point + QPoint(0, verticalOffset());
    const int line = lineNear(content);
    if (line < 0) return {};
    const QRect card = contentRect(line);
    for (const Field &field : m_fields)
        if (content.y() >= card.top() + field.top && content.y() < card.top() + field.top + field.height)
            return m_model.index(line, field.column);
    return m_model.index(line, std::max(m_model.cardNameColumn(), 0));
}

void GridCards::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const QRect card = contentRect(index.row());
    if (card.isNull()) return;
    updateGeometries();
    const int above = card.top() - GridDelegate::padding(fontMetrics()),
              below = card.bottom() - viewport()->height();
    int to = verticalOffset();
    if (hint == PositionAtCenter) to = card.center().y() - viewport()->height() / 2;
    else if (hint == PositionAtTop || above < to) to = above;
    else if (hint == PositionAtBottom || below > to) to = below;
    verticalScrollBar()->setValue(to);
}

/// The line `steps` lines of cards further down, in the same column where there is one.
int GridCards::lineBeside(int line, int steps) const
{
    const QRect from = contentRect(line);
    const int wanted = from.center().y() + steps * (from.height() + GridDelegate::padding(fontMetrics()));
    for (int x = from.center().x(); x > 0; x -= std::max(1, m_card.width() / 2))
        if (const int there = lineNear({x, wanted}); there >= 0) return there;
    const Block *block = blockOf(line); // the next line is a band, or another block's cards
    const int next = steps > 0 ? block->line + block->count : block->line - 1;
    const int here = line - block->line, last = block->count - 1;
    if (steps > 0 && !block->band && here / m_perLine < last / m_perLine) return block->line + last;
    return next >= 0 && next < m_model.engine().lines() ? next : line;
}

QModelIndex GridCards::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_model.engine().lines() - 1;
    if (last < 0) return {};
    const QModelIndex now = currentIndex().isValid() ? currentIndex() : m_model.index(0, 0);
    const int page = std::max(1, viewport()->height() / std::max(1, m_card.height()));
    const bool down = action == MoveDown;
    switch (action) {
    case MoveHome: return m_model.index(0, now.column());
    case MoveEnd: return m_model.index(last, now.column());
    case MovePageUp: return m_model.index(std::max(0, now.row() - page * m_perLine), now.column());
    case MovePageDown: return m_model.index(std::min(last, now.row() + page * m_perLine), now.column());
    case MoveLeft: case MovePrevious: return m_model.index(std::max(0, now.row() - 1), now.column());
    case MoveRight: case MoveNext: return m_model.index(std::min(last, now.row() + 1), now.column());
    default: break;
    }
    const int field = m_model.bandOf(now) >= 0 ? -1 : fieldOf(now.column()), count = int(m_fields.size());
    const int next = field + (down ? 1 : -1);
    if (field >= 0 && next >= 0 && next < count) return now.siblingAtColumn(m_fields[size_t(next)].column);
    const int line = lineBeside(now.row(), down ? 1 : -1);
    if (line == now.row() || count == 0) return m_model.index(line, now.column());
    return m_model.index(line, m_fields[size_t(down ? 0 : count - 1)].column);
}

void GridCards::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    int first = m_model.engine().lines(), last = -1;
    const QRect content = rect.normalized().translated(0, verticalOffset());
    arrange();
    for (const Block &block : m_blocks) {
        if (block.top > content.bottom()) break;
        for (int line = block.line; line < block.line + block.count; ++line) {
            const QRect card = contentRect(line);
            if (card.top() > content.bottom()) break;
            if (card.intersects(content)) first = std::min(first, line), last = std::max(last, line);
        }
    }
    QItemSelection lines;
    if (last >= 0) lines.select(m_model.index(first, 0), m_model.index(last, m_model.columnCount() - 1));
    selectionModel()->select(lines, command);
}

QRegion GridCards::visualRegionForSelection(const QItemSelection &) const { return viewport()->rect(); }

void GridCards::paintCard(QPainter &painter, QStyleOptionViewItem option, int line) const
{
    const QRect card = lineRect(line);
    const QModelIndex head = m_model.index(line, 0);
    const bool selected = selectionModel()->isSelected(head),
               current = currentIndex().row() == line && hasFocus();
    const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QRect title(card.left(), card.top(), card.width(), m_delegate.lineHeight(option));
    const int gap = GridDelegate::padding(option.fontMetrics);
    painter.fillRect(card, option.palette.brush(QPalette::Base));
    painter.fillRect(title, option.palette.brush(group, selected ? QPalette::Highlight : QPalette::Button));
    painter.setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.drawText(title.adjusted(gap, 0, -gap, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     option.fontMetrics.elidedText(m_model.cardCaption(m_model.engine().rowAt(line)),
                                                   Qt::ElideRight, title.width() - 2 * gap));
    for (const Field &field : m_fields) {
        option.rect = fieldRect(card, field);
        option.state.setFlag(QStyle::State_HasFocus, current && currentIndex().column() == field.column);
        m_delegate.paint(&painter, option, m_model.index(line, field.column));
        if (!field.titled) continue;
        const QRect name(card.left() + gap, option.rect.top(), option.rect.left() - card.left() - gap,
                         field.height);
        QColor quiet = option.palette.color(group, QPalette::Text);
        quiet.setAlphaF(0.65f);
        painter.setPen(quiet);
        painter.drawText(name, Qt::AlignVCenter | Qt::TextSingleLine,
                         option.fontMetrics.elidedText(m_model.column(field.column)->caption, Qt::ElideRight,
                                                       name.width()));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(option.palette.color(group, selected || current ? QPalette::Highlight : QPalette::Mid),
             current ? 2 : 1));
    painter.drawRect(card.adjusted(0, 0, -1, -1));
}

void GridCards::paintEvent(QPaintEvent *event)
{
    arrange();
    QPainter painter(viewport());
    QStyleOptionViewItem option = cellOption();
    painter.setFont(option.font);
    const int top = event->rect().top() + verticalOffset(),
              bottom = event->rect().bottom() + verticalOffset();
    auto block = std::ranges::upper_bound(m_blocks, top, {}, &Block::top);
    if (block != m_blocks.begin()) --block;
    const int pitch = m_card.height() + GridDelegate::padding(fontMetrics());
    for (; block != m_blocks.end() && block->top <= bottom; ++block) {
        const int skipped = block->band ? 0 : std::max(0, (top - block->top) / pitch) * m_perLine;
        for (int line = block->line + skipped; line < block->line + block->count; ++line) {
            option.rect = lineRect(line);
            if (option.rect.top() > event->rect().bottom()) break;
            option.state.setFlag(QStyle::State_HasFocus, currentIndex().row() == line && hasFocus());
            if (block->band) m_delegate.paintBand(&painter, option, m_model.engine().bandAt(line));
            else paintCard(painter, option, line);
        }
    }
    paintDropLine(painter);
}

} // namespace QV_DOC_CONTROLS
