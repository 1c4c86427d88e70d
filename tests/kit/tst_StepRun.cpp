#include "kit/ask/StepRun.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QProgressBar>

#include <stdexcept>

using namespace QV_DOC_CONTROLS;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds kAtOnce{0}, kNever{3600000};

/// Three steps that write down when they run and whether the window was there.
struct ThreeSteps {
    QStringList log;
    int failing = 0;
    StepRun::Steps steps = {[this] { step(1); }, [this] { step(2); }, [this] { step(3); }};
    void step(int n)
    {
        log << QString::number(n) + (QApplication::activeModalWidget() ? "+" : "-");
        if (n == failing) throw std::runtime_error("step");
    }
};

} // namespace

class tst_StepRun : public QObject {
    Q_OBJECT
private slots:
    void shortRunsShowNothing()
    {
        ThreeSteps three;
        StepRun run("wait", kNever);
        QVERIFY(run.run(three.steps, nullptr) && !run.tookLong());
        QCOMPARE(three.log.join(u' '), "1- 2- 3-");
    }
    void longRunsShowHowFarTheyAre()
    {
        ThreeSteps three;
        three.steps[1] = [&] {
            three.step(2);
            auto *const window = QApplication::activeModalWidget();
            QVERIFY(window && window->windowTitle() == "wait");
            const auto &bar = tests::child<QProgressBar>(*window, "");
            QCOMPARE(bar.value() * 10 + bar.maximum(), 13); // one of three
            QTest::keyClick(window, Qt::Key_Escape); // what is half shown must be finished
        };
        QVERIFY(StepRun("wait", kAtOnce).run(three.steps, nullptr));
        QCOMPARE(three.log.join(u' '), "1+ 2+ 3+");
    }
    void anErrorEndsTheRun()
    {
        for (const milliseconds silent : {kAtOnce, kNever}) { // behind the window, and without it
            ThreeSteps three;
            three.failing = 2;
            StepRun run("wait", silent);
            QVERIFY_EXCEPTION_THROWN(run.run(three.steps, nullptr), std::runtime_error);
            QCOMPARE(three.log.size(), 2);
            QVERIFY(!QApplication::activeModalWidget());
        }
    }
    void closedFromOutsideTheRestIsNotRun()
    {
        ThreeSteps three;
        three.steps[0] = [&] {
            three.step(1);
            qobject_cast<QDialog *>(QApplication::activeModalWidget())->QDialog::done(QDialog::Rejected);
        };
        QVERIFY(!StepRun("wait", kAtOnce).run(three.steps, nullptr));
        QCOMPARE(three.log.size(), 1);
    }
};
QVDC_TEST(tst_StepRun)
#include "tst_StepRun.moc"
