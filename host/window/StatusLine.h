#pragma once

#include <QPointF>
#include <QString>

class QLabel;
class QStatusBar;

namespace refhost {

class DrawingView;

/// What the bar below the drawing says: a hint, the current layer, the place of the cursor, scale and count.
class StatusLine {
public:
    explicit StatusLine(QStatusBar &);              ///< the labels belong to the bar
    void show(const DrawingView &);
    void showCursor(QPointF world);
    void showHint(const QString &);
private:
    QLabel *m_hint = nullptr, *m_layer = nullptr, *m_place = nullptr, *m_scale = nullptr, *m_count = nullptr;
};

} // namespace refhost
