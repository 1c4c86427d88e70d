#include "dialogs/values/ReportBox.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>

using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::whileModal;

class tst_ReportBox : public QObject {
    Q_OBJECT
private slots:
    void linesAreReadAndCopiedButNotWritten()
    {
        const auto watch = whileModal<ReportBox>([](ReportBox &box) {
            auto &lines = child<QPlainTextEdit>(box, "txtLines");
            QTest::keyClick(&box, Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(box.focusWidget(), &lines);
            QTest::keyClicks(&lines, QStringLiteral("x"));
            QTest::keySequence(&lines, QKeySequence::SelectAll);
            QTest::keySequence(&lines, QKeySequence::Copy);
            QTest::keyClick(&lines, Qt::Key_Escape);
        });
        prompts().show({QStringLiteral("t"), QStringLiteral("<b>2</b>"), {"'a' ---> 'b'", "'c' ---> 'd'"}},
                          nullptr);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("'a' ---> 'b'\n'c' ---> 'd'"));
    }
    void enterCloses()
    {
        const auto watch = whileModal<ReportBox>(
            [](ReportBox &box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
        prompts().show({QStringLiteral("t"), QStringLiteral("2"), {}}, nullptr);
    }
};
QVDC_TEST(tst_ReportBox)
#include "tst_ReportBox.moc"
