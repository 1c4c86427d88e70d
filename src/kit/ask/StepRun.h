#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <exception>
#include <functional>
#include <vector>

class QProgressBar;

namespace QV_DOC_CONTROLS {

/// Steps that belong together, run one after the other. Once they take long, a window that cannot be closed
/// shows how far they are; between two of them the program lives, behind that window.
class StepRun {
public:
    using Steps = std::vector<std::function<void()>>;
    static constexpr std::chrono::milliseconds kSilent{500};

    /// `silent`: for so long nothing is shown; none = the window comes before the first step.
    explicit StepRun(QString caption, std::chrono::milliseconds silent = kSilent)
        : m_caption(std::move(caption)), m_silent(silent)
    {}
    /// Throws what a step throws. False = the window was closed from outside (an error is on its way), and
    /// the steps that were left never ran. `over`: a widget of the window that waits.
    bool run(const Steps &steps, QWidget *over);
    bool tookLong() const { return m_tookLong; }        ///< the last run, the steps alone

private:
    QString m_caption;
    std::chrono::milliseconds m_silent;
    bool m_tookLong = false;
};

/// Shows the steps that are left of a run.
class StepProgress final : public QDialog {
    Q_OBJECT
public:
    StepProgress(const QString &caption, const StepRun::Steps &steps, size_t done, QWidget *window);
    bool run();                                 ///< modal; as StepRun::run()
    void reject() override {}                   ///< what is half shown must be finished
private:
    void runNext();
    bool isSeen();
    const StepRun::Steps &m_steps;
    size_t m_done;
    std::exception_ptr m_error;
    QProgressBar *m_bar;
    QTimer m_timer;                             ///< of zero length: between two ticks the program lives
    QElapsedTimer m_shown;
};

} // namespace QV_DOC_CONTROLS
