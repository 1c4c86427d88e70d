#pragma once

#include <QWidget>

#include <functional>

class QKeyEvent;

namespace QV_DOC_CONTROLS {

/// Checks a field once when the user leaves it for another one of the window. The check comes at once; what
/// it has to tell comes when the focus has changed, so that no message stands between a click and what was
/// clicked.
///
/// It does not come because the window goes inactive or a popup opens, and it waits while the focus is on a
/// button that rejects: a click on Cancel cancels. A button that is pressed by its access key gets the focus
/// first, and is not pressed when there is something to tell. Goes before the field, and before what it
/// checks.
class LeavingCheck final : public QObject {
public:
    using Tell = std::function<void()>;         ///< empty = there is nothing to tell
    LeavingCheck(QWidget &field, std::function<Tell()> check); ///< what the check throws is told later too
    bool eventFilter(QObject *watched, QEvent *event) override;
private:
    void left(Qt::FocusReason reason);
    void focusWent(QWidget *to);
    bool stopsPress(const QKeyEvent &key);
    void check();
    QWidget &m_field;
    std::function<Tell()> m_check;
    bool m_waiting = false;                     ///< left for a button that rejects
    bool m_telling = false;
};

} // namespace QV_DOC_CONTROLS
