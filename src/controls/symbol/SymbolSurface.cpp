#include "controls/symbol/SymbolSurface.h"

#include "kit/forms/GroupRole.h"

#include <QPainter>

namespace QV_DOC_CONTROLS {

SymbolSurface::SymbolSurface(QWidget *parent) : QFrame(parent)
{
    announceAs<SymbolSurface, QAccessible::Graphic>();
}

void SymbolSurface::setBorder(int borderStyle, int appearance)
{
    if (borderStyle == 0) return setFrameStyle(QFrame::NoFrame);
    setFrameStyle(appearance == 0 ? QFrame::Box | QFrame::Plain : QFrame::StyledPanel | QFrame::Sunken);
}

QPixmap SymbolSurface::picture() const
{
    return drawing.picture(contentsRect().size(), devicePixelRatioF());
}

void SymbolSurface::paintEvent(QPaintEvent *event)
{
    const QRect inside = contentsRect();
    QPainter painter(this);
    painter.translate(inside.topLeft());
    if (isEnabled() && !greyed) {
        drawing.paint(painter, inside.size());
    } else if (const QPixmap shown = picture(); !shown.isNull()) {
        const QImage grey = shown.toImage().convertToFormat(QImage::Format_Grayscale8);
        painter.fillRect(QRect({}, inside.size()), palette().window());
        painter.setOpacity(0.5);
        painter.drawImage(QPointF(), grey);
    }
    painter.end();
    QFrame::paintEvent(event);
}

} // namespace QV_DOC_CONTROLS
