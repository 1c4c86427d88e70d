#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>

#include <memory>

namespace tests {

/// Drags the current row, with the selected ones if it is one of them; what the drag carries, null = there
/// was none. Where no pointer drags, Qt ends a drag at once and leaves its data behind.
inline std::unique_ptr<QMimeData> dragged(QAbstractItemView &view)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the drag before
    const QPoint at = view.visualRect(view.currentIndex()).center(), away(0, 50);
    const auto mouse = [&](QEvent::Type type, QPoint where, Qt::MouseButtons held) {
        QMouseEvent event(type, where, view.viewport()->mapToGlobal(where),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, {});
        QApplication::sendEvent(view.viewport(), &event);
    };
    mouse(QEvent::MouseButtonPress, at, Qt::LeftButton);
    for (const int part : {1, 2}) mouse(QEvent::MouseMove, at + away * part / 2, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, at + away, {});
    const auto *const drag = view.findChild<QDrag *>();
    if (!drag) return {};
    auto copy = std::make_unique<QMimeData>();
    for (const QString &format : drag->mimeData()->formats())
        copy->setData(format, drag->mimeData()->data(format));
    return copy;
}

/// Drops it on a row, below the last one with -1; false = the view did not take it.
inline bool drop(const QMimeData &mime, QAbstractItemView &on, int row)
{
    const QPoint at = row < 0 ? on.viewport()->rect().bottomLeft() + QPoint(5, -5)
                              : on.visualRect(on.model()->index(row, 0)).center();
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(on.viewport(), &enter);
    QDropEvent event(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(on.viewport(), &event);
    return enter.isAccepted() && event.isAccepted();
}

} // namespace tests
