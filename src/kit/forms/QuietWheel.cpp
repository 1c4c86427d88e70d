#include "kit/forms/QuietWheel.h"

#include <QEvent>
#include <QWidget>

namespace QV_DOC_CONTROLS {
namespace {

struct WheelFilter final : QObject {
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus()) return false;
        event->ignore();
        return true;
    }
};

} // namespace

void quietWheel(QWidget &box)
{
    box.setFocusPolicy(Qt::StrongFocus);
    box.installEventFilter(new WheelFilter(&box));
}

} // namespace QV_DOC_CONTROLS
