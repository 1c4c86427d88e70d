#pragma once

#include "Figures.h"
#include "GridRows.h"
#include "GridWays.h"

#include <QAbstractItemView>
#include <QEventLoop>
#include <QScrollBar>
#include <QTimer>

#include <memory>

namespace benchmarks {

inline constexpr int kName = 1, kVisible = 2, kLineType = 3, kColor = 4, kPrint = 5, kGroups = 7;
inline constexpr QSize kDialog(900, 600);
inline constexpr int kExposed = 50;                    ///< milliseconds in which a window gets on the screen

/// What waits, layout and picture, as the event loop would bring it next.
inline void finish(QAbstractItemView &shown) { shown.viewport()->repaint(); }

/// The user looks at the table before going on: what gets ready in the meantime does.
inline void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

template <class T> std::function<void()> on(const std::shared_ptr<T> &state, void (*act)(T &))
{
    return [state, act] { act(*state); };
}

} // namespace benchmarks
