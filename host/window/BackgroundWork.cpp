#include "window/BackgroundWork.h"

#include "facade/services/Text.h"

#include <QEventLoop>
#include <QLabel>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <exception>

namespace refhost {

using QV_DOC_CONTROLS::Text;
using QV_DOC_CONTROLS::txt;

namespace {

constexpr int kPatience = 500;          // milliseconds without a progress box
constexpr int kTick = 50;               // milliseconds between two looks at the progress
constexpr int kFull = 1000;

void waitWithBox(QWidget &window, const QString &caption, QThread &thread, std::atomic<int> &done,
                 std::atomic<bool> &cancelled)
{
    QProgressDialog box(&window);
    box.setWindowTitle(window.windowTitle());
    auto *const label = new QLabel(caption, &box);
    label->setTextFormat(Qt::PlainText);                // a file name may look like markup
    box.setLabel(label);
    box.setCancelButtonText(txt(Text{2801, u"Mégse"}));
    box.setRange(0, kFull);
    box.setAutoReset(false);
    box.setMinimumDuration(0);
    box.setWindowModality(Qt::ApplicationModal);
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &box, [&] { box.setValue(done); });
    tick.start(kTick);
    QEventLoop loop;
    // Breaking off closes the box, but the work must have noticed before anything else happens.
    QObject::connect(&box, &QProgressDialog::canceled, &box, [&cancelled] { cancelled = true; });
    QObject::connect(&thread, &QThread::finished, &loop, &QEventLoop::quit);
    box.show();
    if (!thread.isFinished()) loop.exec();
}

} // namespace

void runWithProgress(QWidget &window, const QString &caption,
                     const std::function<void(const WorkProgress &)> &work)
{
    std::atomic<int> done = 0;
    std::atomic<bool> cancelled = false;
    std::exception_ptr error;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            work([&](double share) {
                done = int(share * kFull);
                return !cancelled;
            });
        } catch (...) {
            error = std::current_exception();
        }
    }));
    QEventLoop quiet;
    QObject::connect(thread.get(), &QThread::finished, &quiet, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &quiet, &QEventLoop::quit);
    thread->start();
    quiet.exec(QEventLoop::ExcludeUserInputEvents); // the window stays as it is while nothing is said
    if (!thread->isFinished()) waitWithBox(window, caption, *thread, done, cancelled);
    thread->wait();
    if (error) std::rethrow_exception(error);
}

} // namespace refhost
