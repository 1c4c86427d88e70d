#include "kit/forms/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace QV_DOC_CONTROLS {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 6, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::fitting() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), fitting(),
                          foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || fitting() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
    return true;
}

} // namespace QV_DOC_CONTROLS
