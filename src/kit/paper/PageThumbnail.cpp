#include "kit/paper/PageThumbnail.h"

#include "kit/paper/Ink.h"

#include <QPainter>

namespace QV_DOC_CONTROLS {

void PageThumbnail::setPage(const QPageLayout &page)
{
    m_page = page;
    update();
}

QSize PageThumbnail::sizeHint() const
{
    const int side = fontMetrics().height() * 11;
    return {side, side};
}

void PageThumbnail::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF paper = m_page.fullRect(QPageLayout::Millimeter);
    if (paper.isEmpty()) return;
    const double scale = 0.96 * std::min(width() / paper.width(), height() / paper.height());
    painter.translate((width() - paper.width() * scale) / 2, (height() - paper.height() * scale) / 2);
    painter.scale(scale, scale);
    QPen edge(palette().color(QPalette::WindowText));
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(QColor::fromRgb(kPaper));
    painter.drawRect(paper);

    const QRectF left = paper.marginsRemoved(m_page.margins(QPageLayout::Millimeter));
    if (left.width() <= 0 || left.height() <= 0) return;
    QPen frame(QColor::fromRgb(kGrayInk), 1, Qt::DashLine);
    frame.setCosmetic(true);
    painter.setPen(frame);
    painter.drawRect(left);
    QPen rule(QColor::fromRgb(kRule));
    rule.setCosmetic(true);
    painter.setPen(rule);
    constexpr double kLine = 12;                ///< millimetres between the lines that stand for rows
    for (double y = left.top() + kLine; y < left.bottom() - kLine / 2; y += kLine)
        painter.drawLine(QPointF(left.left() + 4, y), QPointF(left.right() - 4, y));
}

} // namespace QV_DOC_CONTROLS
