#pragma once

#include <QWidget>

#include <functional>

namespace QV_DOC_CONTROLS {

/// Checks a field once when the user has left it for another one of the window. The check comes after the
/// focus has changed, so that its message does not stand between a click and what was clicked.
///
/// It does not come because the window goes inactive or a popup opens, and it waits while the focus is on a
/// button that rejects: a click on Cancel cancels. The field's own.
class LeavingCheck final : public QObject {
public:
    LeavingCheck(QWidget &field, std::function<void()> check);
    bool eventFilter(QObject *watched, QEvent *event) override;
private:
    void later();
    void run();
    QWidget &m_field;
    std::function<void()> m_check;
    bool m_due = false, m_queued = false;
};

} // namespace QV_DOC_CONTROLS
