#include "dialogs/values/ValuePrompts.h"
#include "dialogs/values/TextBox.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::whileModal;

using Act = std::function<void(TextBox &)>;
Q_DECLARE_METATYPE(Act)

class tst_TextBox : public QObject {
    Q_OBJECT
private slots:
    void theAnswerIsWhatStandsInTheLine_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("answer"); // null = cancelled
        const auto type = [](const char *text, Qt::Key end) {
            return Act([=](TextBox &box) {
                for (const QChar c : QString::fromLatin1(text))
                    QTest::sendKeyEvent(QTest::Click, box.focusWidget(), Qt::Key_A, c, {});
                QTest::keyClick(box.focusWidget(), end);
            });
        };
        QTest::newRow("the proposal at once") << type("", Qt::Key_Return) << QStringLiteral("12");
        QTest::newRow("typing replaces the proposal") << type("7x", Qt::Key_Return) << QStringLiteral("7x");
        QTest::newRow("nothing is an answer") << type("", Qt::Key_Delete) << QStringLiteral("");
        QTest::newRow("escape") << type("7", Qt::Key_Escape) << QString();
        QTest::newRow("cancel") << Act([](TextBox &box) { child<QPushButton>(box, "cmdCancel").click(); })
                                << QString();
    }
    void theAnswerIsWhatStandsInTheLine()
    {
        QFETCH(Act, act);
        QFETCH(QString, answer);
        const auto watch = whileModal<TextBox>([&](TextBox &box) {
            QCOMPARE(box.windowTitle(), QStringLiteral("Keresés"));
            QCOMPARE(child<QLineEdit>(box, "txtAnswer").accessibleName(),
                     QStringLiteral("A keresett érték:"));
            act(box);
            if (box.isVisible()) box.accept();
        });
        ValuePrompts boxes;
        const auto given = boxes.text(
            {QStringLiteral("Keresés"), QStringLiteral("A keresett érték:"), QStringLiteral("12")}, nullptr);
        QCOMPARE(given.has_value(), !answer.isNull());
        QCOMPARE(given.value_or(QString()), answer);
    }
};
QVDC_TEST(tst_TextBox)
#include "tst_TextBox.moc"
