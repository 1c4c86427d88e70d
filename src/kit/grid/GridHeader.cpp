#include "kit/grid/GridHeader.h"

#include "kit/grid/GridDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>

namespace QV_DOC_CONTROLS {

GridHeader::GridHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(false);
    setSortIndicatorShown(false);
    setTextElideMode(Qt::ElideRight);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setContextMenuPolicy(Qt::NoContextMenu); // the grid asks for one
    connect(this, &QHeaderView::sectionCountChanged, this, &GridHeader::giveUpDrag); // other columns
}

void GridHeader::setSortKeys(std::vector<SortKey> keys)
{
    m_keys = std::move(keys);
    viewport()->update();
}

int GridHeader::widthOf(int column) const
{
    return isSectionHidden(column) ? m_widths.value(column, defaultSectionSize()) : sectionSize(column);
}

void GridHeader::setWidth(int column, int pixels)
{
    if (isSectionHidden(column)) m_widths.insert(column, pixels);
    else resizeSection(column, pixels);
}

void GridHeader::setShown(int column, bool shown)
{
    if (shown == !isSectionHidden(column)) return;
    if (!shown) m_widths.insert(column, sectionSize(column));
    setSectionHidden(column, !shown);
    if (shown && m_widths.contains(column)) resizeSection(column, m_widths.take(column));
}

void GridHeader::makeRoomForCaptions()
{
    for (int c = 0; c < count(); ++c) setWidth(c, std::max(widthOf(c), sectionSizeHint(c)));
}

int GridHeader::rankOf(int column) const
{
    const auto found = std::ranges::find(m_keys, column, &SortKey::column);
    return found == m_keys.end() ? -1 : int(found - m_keys.begin());
}

int GridHeader::markRoom(int column) const
{
    if (rankOf(column) < 0) return 0;
    const int arrow = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    return arrow + (m_keys.size() > 1 ? fontMetrics().horizontalAdvance(u'4') : 0)
           + GridDelegate::padding(fontMetrics());
}

QSize GridHeader::sectionSizeFromContents(int column) const
{
    const int mark = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    return QHeaderView::sectionSizeFromContents(column)
           + QSize(mark + 2 * GridDelegate::padding(fontMetrics()), 0);
}

void GridHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    option->text = fontMetrics().elidedText(option->text, Qt::ElideRight,
                                            sectionSize(column) - 2 * margin - markRoom(column));
}

void GridHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore();
    const int rank = rankOf(column);
    if (rank < 0) return;
    const int side = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    QRect mark(rect.right() - markRoom(column), rect.top(), markRoom(column), rect.height());
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(mark.left(), rect.center().y() - side / 2, side, side);
    const bool up = m_keys[size_t(rank)].order == SortOrder::Ascending;
    style()->drawPrimitive(up ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &arrow, painter,
                           this);
    if (m_keys.size() < 2) return;
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->drawText(mark.adjusted(side, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      QString::number(rank + 1));
}

int GridHeader::columnToDrag(const QPoint &at) const
{
    const int column = logicalIndexAt(at);
    if (column < 0) return -1;
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    const int left = sectionViewportPosition(column), right = left + sectionSize(column);
    const bool first = visualIndex(column) == 0;
    return (at.x() < left + grip && !first) || at.x() >= right - grip ? -1 : column;
}

void GridHeader::mousePressEvent(QMouseEvent *event)
{
    m_column = event->button() == Qt::LeftButton ? columnToDrag(event->position().toPoint()) : -1;
    m_pressed = event->position().toPoint();
    QHeaderView::mousePressEvent(event);
}

void GridHeader::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    const bool far = (at - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!m_ghost && m_column >= 0 && event->buttons() & Qt::LeftButton && far) startDrag(at);
    if (!m_ghost) return QHeaderView::mouseMoveEvent(event);
    const QPoint global = event->globalPosition().toPoint();
    m_ghost->move(window()->mapFromGlobal(global) + QPoint(GridDelegate::padding(fontMetrics()), 0));
    emit dragged(m_column, global);
}

void GridHeader::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint(), global = event->globalPosition().toPoint();
    const int column = std::exchange(m_column, -1);
    if (!m_ghost) {
        QHeaderView::mouseReleaseEvent(event);
        const bool clicked = event->button() == Qt::LeftButton && column >= 0 && logicalIndexAt(at) == column;
        if (clicked && rect().contains(at)) emit sortAsked(column, event->modifiers() & Qt::ShiftModifier);
        return;
    }
    endDrag();
    if (rect().contains(at)) moveColumn(column, at.x());
    else emit dropped(column, global);
}

void GridHeader::startDrag(const QPoint &)
{
    m_ghost = new QLabel(model()->headerData(m_column, Qt::Horizontal).toString(), window());
    m_ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ghost->setFrameStyle(int(QFrame::Panel) | int(QFrame::Raised));
    m_ghost->setAutoFillBackground(true);
    m_ghost->adjustSize();
    m_ghost->show();
    QMouseEvent away(QEvent::MouseButtonRelease, QPointF(-1, -1), QPointF(-1, -1), Qt::LeftButton, {}, {});
    QHeaderView::mouseReleaseEvent(&away);  // no longer a click
    qApp->installEventFilter(this);         // Esc gives up, wherever the focus is
}

void GridHeader::giveUpDrag()
{
    m_column = -1;
    if (m_ghost) endDrag();
}

void GridHeader::endDrag()
{
    qApp->removeEventFilter(this);
    delete std::exchange(m_ghost, nullptr);
    emit dragEnded();
}

bool GridHeader::eventFilter(QObject *watched, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!m_ghost || !key || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QHeaderView::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress) giveUpDrag();
    return true;
}

void GridHeader::keyPressEvent(QKeyEvent *event) { event->ignore(); }

/// Dropped on the header: the column goes before or behind the one there, whichever half the mouse is in.
void GridHeader::moveColumn(int column, int x)
{
    const int there = logicalIndexAt(x);
    const int from = visualIndex(column);
    int to = count() - 1;
    if (there >= 0) {
        const bool behind = x >= sectionViewportPosition(there) + sectionSize(there) / 2;
        to = visualIndex(there) + behind;
        if (to > from) --to;
    }
    if (to == from) return;
    moveSection(from, to);
    emit columnMoved();
}

} // namespace QV_DOC_CONTROLS
