#include "facade/services/Prompts.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/ask/runModal.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QMessageBox>

#include <stdexcept>

using namespace QV_DOC_CONTROLS;

namespace {

/// A form to which something happens while it is being shown.
struct Form final : QDialog {
    using QDialog::QDialog;
    ErrorRelay relay;
    std::function<void()> whenShown;
    void showEvent(QShowEvent *event) override
    {
        QDialog::showEvent(event);
        if (whenShown) relay.guard(whenShown);
    }
};

} // namespace

class tst_runModal : public QObject {
    Q_OBJECT
private slots:
    void whatEndsWhileItIsShownIsNotWaitedFor()
    {
        Form failing;
        failing.whenShown = [] { throw std::runtime_error("host"); };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, failing.relay.exec(failing));
        QVERIFY(!failing.isVisible() && !QApplication::activeModalWidget());
        Form closed;
        closed.whenShown = [&] { closed.accept(); };
        QCOMPARE(closed.relay.exec(closed), int(QDialog::Accepted));
    }
    void theOwnerMayGoBeforeThem()
    {
        auto *const owner = new QWidget;
        owner->show();
        Form form(owner);
        const auto user = tests::whileModal<QDialog>([&](QDialog &f) {
            const auto inner = tests::whileModal<QMessageBox>([&](QMessageBox &) { delete owner; });
            prompts().tell({Icon::Information, "A", "B"}, &f);
        });
        QCOMPARE(form.relay.exec(form), int(QDialog::Rejected));
        QVERIFY(!form.parentWidget());
    }
};
QVDC_TEST(tst_runModal)
#include "tst_runModal.moc"
