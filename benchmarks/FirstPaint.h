#pragma once

#include "Figures.h"

#include <QApplication>
#include <QEvent>

namespace benchmarks {

/// Milliseconds from the call of `open` to the first picture of the dialog, which is rejected then.
template <class Dialog, class Open> double untilFirstPaint(Open open)
{
    struct Watch final : QObject {
        Clock::time_point painted;
        bool eventFilter(QObject *object, QEvent *event) override
        {
            auto *const dialog = qobject_cast<Dialog *>(object);
            if (event->type() != QEvent::Paint || !dialog) return false;
            qApp->removeEventFilter(this);
            const auto done = [this, dialog] {          // once all that is in it has painted too
                painted = Clock::now();
                dialog->reject();
            };
            QMetaObject::invokeMethod(dialog, done, Qt::QueuedConnection);
            return false;
        }
    } watch;
    qApp->installEventFilter(&watch);
    const auto start = Clock::now();
    open();
    qApp->removeEventFilter(&watch);
    return std::chrono::duration<double, std::milli>(watch.painted - start).count();
}

} // namespace benchmarks
