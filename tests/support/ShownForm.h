#pragma once

#include "kit/grid/Grid.h"

#include "support/QtClasses.h"
#include <QDrag>

namespace tests {

/// The form on the screen, so that its rows have places.
template <class Form> struct ShownForm : Form {
    using Form::grid, Form::groups, Form::window;
    explicit ShownForm(ZolWDoc::ZOLW_Doc &doc) : Form(doc)
    {
        grid.setGeometry(0, 0, 400, 300), groups.setGeometry(400, 0, 200, 300);
        groups.setListOnly(true);
        window.resize(600, 300);
        window.show();
    }
    /// Drags the current row, with the selected ones if it is one of them; what the drag carries, null =
    /// there was none. Where no pointer drags, Qt ends a drag at once and leaves its data behind.
    static std::unique_ptr<QMimeData> dragged(QV_DOC_CONTROLS::Grid &from)
    {
        QAbstractItemView &view = *from.activeView();
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
    /// Drops it on a line of a grid, below the last one with -1; false = refused.
    static bool drop(const QMimeData &mime, QV_DOC_CONTROLS::Grid &on, int line)
    {
        QAbstractItemView &view = *on.activeView();
        const QPoint at = line < 0 ? view.viewport()->rect().bottomLeft() + QPoint(5, -5)
                                   : view.visualRect(view.model()->index(line, 0)).center();
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &enter);
        QDropEvent event(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &event);
        return enter.isAccepted() && event.isAccepted();
    }
    bool drop(QV_DOC_CONTROLS::Grid &from, QV_DOC_CONTROLS::Grid &on, int line)
    {
        const auto mime = dragged(from);
        return mime && drop(*mime, on, line);
    }
};

} // namespace tests
