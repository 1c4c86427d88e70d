#include "controls/input/StepArrows.h"

#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace QV_DOC_CONTROLS {

StepArrows::StepArrows(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);                // the keys that step belong to the box beside
    setAttribute(Qt::WA_Hover);
}

QSize StepArrows::sizeHint() const
{
    const int side = fontMetrics().height();
    return {side, 2 * side};
}

void StepArrows::paintArrow(QPainter &painter, bool up) const
{
    const int half = height() / 2;
    QStyleOptionButton button;
    button.initFrom(this);
    button.rect = up ? QRect(0, 0, width(), half) : QRect(0, half, width(), height() - half);
    const bool down = m_down == (up ? Down::Upper : Down::Lower);
    button.state |= down ? QStyle::State_Sunken : QStyle::State_Raised;
    if (!button.rect.contains(mapFromGlobal(QCursor::pos()))) button.state &= ~QStyle::State_MouseOver;
    style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &button, &painter, this);
    const int side = qMin(button.rect.width(), button.rect.height()) * 3 / 4;
    button.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {side, side}, button.rect);
    const auto arrow = up ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown;
    style()->drawPrimitive(arrow, &button, &painter, this);
}

void StepArrows::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    paintArrow(painter, true);
    paintArrow(painter, false);
}

void StepArrows::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) return event->ignore();
    const bool up = event->position().y() <= height() / 2.0;
    m_down = up ? Down::Upper : Down::Lower;
    update();
    emit pressed(up);
}

void StepArrows::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) letGo();
}

void StepArrows::letGo()
{
    if (m_down == Down::None) return;
    m_down = Down::None;
    update();
    emit released();
}

/// What a handler opens meanwhile, or a press that ends elsewhere, must not leave the arrows down.
bool StepArrows::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::UngrabMouse: letGo(); break;
    case QEvent::EnabledChange:
        if (!isEnabled()) letGo();
        break;
    case QEvent::MouseButtonDblClick: mousePressEvent(static_cast<QMouseEvent *>(event)); return true;
    default: break;
    }
    return QWidget::event(event);
}

} // namespace QV_DOC_CONTROLS
