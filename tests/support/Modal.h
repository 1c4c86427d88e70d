#pragma once

#include "support/QtClasses.h"

namespace tests {

/// Runs `act` once a dialog of type Dialog is open and active; fails the test when it never was, or when
/// `act` leaves it open.
template <class Dialog, class Act> class WhileModal {
public:
    explicit WhileModal(Act act) : m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
    }
    ~WhileModal()
    {
        if (!m_done) QTest::qFail("the dialog never opened", __FILE__, __LINE__);
    }
private:
    void look()
    {
        auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (m_done || !dialog || !dialog->isVisible()) return;
        if (!dialog->isActiveWindow()) return dialog->activateWindow(); // keys and focus need it
        m_done = true;
        m_timer.stop();
        m_act(*dialog);
        if (QApplication::activeModalWidget() != dialog) return;
        QTest::qFail("the dialog was left open", __FILE__, __LINE__);
        dialog->reject();
    }
    Act m_act;
    QTimer m_timer;
    bool m_done = false;
};
template <class Dialog, class Act> [[nodiscard]] WhileModal<Dialog, Act> whileModal(Act act)
{
    return WhileModal<Dialog, Act>(std::move(act));
}

/// The child with that published name; fails loudly when there is none.
template <class T> T &child(QWidget &of, const char *name)
{
    T *const found = of.findChild<T *>(QLatin1String(name));
    if (!found) qFatal("no child %s", name);
    return *found;
}

} // namespace tests
