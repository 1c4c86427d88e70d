#pragma once

#include "Figures.h"

#include <QApplication>
#include <QEvent>

namespace benchmarks {

/// Milliseconds of a dialog.
struct Showing {
    double opening = 0; ///< from the call to the first picture
    double closing = 0; ///< from Cancel to the end of the call
};

/// Opens the dialog by the call of `open` and rejects it once it was painted.
template <class Dialog, class Open> Showing showingOf(Open open)
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
    return {std::chrono::duration<double, std::milli>(watch.painted - start).count(),
            nanosecondsSince(watch.painted) / 1e6};
}
template <class Dialog, class Open> double untilFirstPaint(Open open)
{
    return showingOf<Dialog>(open).opening;
}

} // namespace benchmarks
