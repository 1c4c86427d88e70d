#include "kit/ask/StepRun.h"

#include "kit/ask/runModal.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <QWindow>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kMostWaitMs = 200;    ///< for the window system to show the window

} // namespace

bool StepRun::run(const Steps &steps, QWidget *over)
{
    QElapsedTimer clock;
    clock.start();
    size_t done = 0;
    while (done < steps.size() && std::chrono::milliseconds(clock.elapsed()) < m_silent) steps[done++]();
    const bool through =
        done == steps.size() || StepProgress(m_caption, steps, done, over ? over->window() : nullptr).run();
    m_tookLong = std::chrono::milliseconds(clock.elapsed()) >= kSilent;
    return through;
}

StepProgress::StepProgress(const QString &caption, const StepRun::Steps &steps, size_t done, QWidget *window)
    : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_steps(steps),
      m_done(done), m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("StepProgress"));
    setWindowTitle(caption);
    auto *const text = new QLabel(caption, this);
    m_bar->setRange(0, int(steps.size()));
    m_bar->setValue(int(done));
    m_bar->setAccessibleName(caption);
    m_bar->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto *const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_bar);
    connect(&m_timer, &QTimer::timeout, this, &StepProgress::runNext);
}

bool StepProgress::run()
{
    m_shown.start();
    m_timer.start(0);
    const bool through = runModal(*this) == QDialog::Accepted;
    m_timer.stop();
    if (m_error) std::rethrow_exception(m_error);
    return through;
}

/// A step that takes long must not begin before there is something to look at.
bool StepProgress::isSeen()
{
    return (windowHandle() && windowHandle()->isExposed()) || m_shown.elapsed() > kMostWaitMs;
}

void StepProgress::runNext()
{
    if (!isSeen()) return;
    repaint();
    try {
        m_steps[m_done++]();
    } catch (...) { // no error crosses the event loop: run() throws it
        m_error = std::current_exception();
    }
    m_bar->setValue(int(m_done));
    if (m_error) return QDialog::reject();
    if (m_done == m_steps.size()) accept();
}

} // namespace QV_DOC_CONTROLS
