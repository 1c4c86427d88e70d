#pragma once

#include "kit/grid/Grid.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>

namespace tests {

/// A drag with the pointer of an X server. Other platforms end a drag at once.
class RealDrag {
public:
    static bool isPossible() { return QGuiApplication::platformName() == "xcb"; }
    static const char *hindrance()              ///< why there can be none here; null = there can
    {
        if (!isPossible()) return "needs an X server";
        return pointer().isEmpty() ? "needs xdotool to move the pointer" : nullptr;
    }
    /// Begins to drag a line of one grid to a line of another; the window's events do the rest.
    RealDrag(QV_DOC_CONTROLS::Grid &from, int line, QV_DOC_CONTROLS::Grid &to, int onLine)
    {
        const QPoint start = onScreen(from, line), end = onScreen(to, onLine);
        QStringList moves;
        const auto moveTo = [&](QPoint at) {
            moves << "mousemove" << QString::number(at.x()) << QString::number(at.y()) << "sleep" << "0.1";
        };
        moveTo(start);
        moves << "mousedown" << "1" << "sleep" << "0.1";
        for (int i = 1; i <= 5; ++i) moveTo(start + (end - start) * i / 5);
        moveTo(end + QPoint(2, 0));
        moves << "mouseup" << "1";
        m_hand.start(pointer(), moves);
    }
    bool ended() { return m_hand.state() == QProcess::NotRunning || m_hand.waitForFinished(); }

private:
    static QString pointer() { return QStandardPaths::findExecutable("xdotool"); }
    static QPoint onScreen(QV_DOC_CONTROLS::Grid &grid, int line)
    {
        const QAbstractItemView &view = *grid.activeView();
        const QPoint at = view.visualRect(view.model()->index(line, 0)).center();
        return view.viewport()->mapToGlobal(at) * grid.devicePixelRatioF();
    }
    QProcess m_hand;
};

} // namespace tests
