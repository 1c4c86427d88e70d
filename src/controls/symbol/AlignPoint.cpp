#include "controls/symbol/AlignPoint.h"

#include <QPainter>

namespace QV_DOC_CONTROLS {

AlignPoint::AlignPoint(QWidget *parent) : QRadioButton(parent)
{
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void AlignPoint::setPoint(QPointF at)
{
    m_at = at + QPointF(0.5, 0.5);
    update();
}

double AlignPoint::reach(const QWidget &on) { return on.fontMetrics().height() * 0.5; }

/// Marked ones differ by size and filling, not by colour alone.
void AlignPoint::paintEvent(QPaintEvent *)
{
    const double reach = AlignPoint::reach(*this);
    const QColor ink = palette().color(QPalette::Text), highlight = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = reach * (isChecked() ? 0.6 : 0.4);
    painter.setPen(QPen(underMouse() && isEnabled() ? highlight : ink, isDown() ? 2 : 1));
    const QColor marked = isEnabled() ? highlight : ink;
    painter.setBrush(isChecked() ? marked : palette().color(QPalette::Base));
    painter.drawEllipse(m_at, radius, radius);
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 1.5));
    painter.drawEllipse(m_at, reach - 1, reach - 1);
}

} // namespace QV_DOC_CONTROLS
