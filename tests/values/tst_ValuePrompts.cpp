#include "dialogs/values/ReportBox.h"
#include "dialogs/values/TextBox.h"

#include "facade/services/Language.h"
#include "kit/forms/AccessKeys.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

#include <QPlainTextEdit>

using namespace tests;

class tst_ValuePrompts : public QObject {
    Q_OBJECT
private:
    /// Once, as plain text without an access key; and no two of the others' keys are the same.
    static void asksPlainly(QDialog &box, const QString &text)
    {
        int asked = 0;
        QString keys;
        for (const auto *label : box.findChildren<QLabel *>()) {
            if (label->text() == text) asked += label->textFormat() == Qt::PlainText && !label->buddy();
            else keys += accessKeyOf(label->text());
        }
        QCOMPARE(asked, 1);
        for (const auto *button : box.findChildren<QAbstractButton *>()) keys += accessKeyOf(button->text());
        keys.remove(QChar());
        for (const QChar key : keys) QVERIFY2(keys.count(key) == 1, qPrintable(keys));
    }

private slots:
    void cleanup() { setLanguage(Hungarian, {}); }

    void everyBoxIsTitledAskedPlainlyAndOwned()
    {
        const QString title = "Cím", text = "<b>Kő & Fa</b>?";
        QWidget window;
        auto *const inside = new QWidget(&window);
        const NumberField number{.label = "Sorszám", .preset = 1, .min = 1, .max = 9};
        Prompts &p = prompts();
        const std::function<void()> all[] = {
            [&] { p.tell({Icon::Information, title, text}, inside); },
            [&] { p.show({title, text, {}}, inside); },
            [&] { p.yesNo({Icon::Question, title, text}, inside); },
            [&] { p.allYesNo({Icon::Question, title, text}, inside); },
            [&] { p.yesNoCancel({Icon::Question, title, text}, inside); },
            [&] { p.choose({title, text, {"a", "b"}}, inside); },
            [&] { p.choose({title, text, {"a", "b", "c", "d", "e"}}, inside); },
            [&] { p.text({title, text, {}, {}}, inside); },
            [&] { p.text({title, text, {}, {"a"}}, inside); },
            [&] { p.numbers({title, text, {number}}, inside); },
            [&] { p.colorIndex({title, text, 0, {0, 1}}, inside); }};
        for (const auto &ask : all)
            for (const int language : {Hungarian, Romanian, Vietnamese, English}) {
                setLanguage(language, {});
                const auto watch = whileModal<QDialog>([&](QDialog &box) {
                    QCOMPARE(box.windowTitle(), title);
                    QCOMPARE(box.parentWidget(), &window);
                    asksPlainly(box, text);
                    box.reject();
                });
                ask();
            }
    }

    void theAnswerIsWhatStandsInTheLine()
    {
        const QString asked = "A keresett érték:", preset = "Épület";
        const std::tuple<int, const char *, QString, bool> rows[] = { // null = cancelled; also without a list
            {0, "\r", preset, true}, {0, "őrház\r", "őrház", true}, {0, "é\r", "é", true},
            {0, "7\x1b", {}, true}, {Qt::Key_Delete, "\r", "", true}, {Qt::Key_Down, "\r", "Út", false},
            {Qt::Key_Up, "\r", "Gáz", false}};
        for (const auto &[key, typed, answer, ofLine] : rows)
            for (const QStringList &offered : {QStringList(), {"Gáz", "Épület", "Út"}}) {
                if (offered.isEmpty() && !ofLine) continue;
                const auto watch = whileModal<TextBox>([&, key = key, typed = typed](TextBox &box) {
                    QCOMPARE(child<QLineEdit>(box, "txtAnswer").accessibleName(), asked);
                    if (key) QTest::keyClick(box.focusWidget(), Qt::Key(key));
                    type(box, typed);
                });
                const auto given = prompts().text({"Keresés", asked, preset, offered});
                QCOMPARE(given.has_value(), !answer.isNull());
                QCOMPARE(given.value_or(QString()), answer);
            }
    }

    void linesOfAReportAreReadAndCopiedButNotWritten()
    {
        const auto watch = whileModal<ReportBox>([](ReportBox &box) {
            auto &lines = child<QPlainTextEdit>(box, "txtLines");
            QTest::keyClick(&box, Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(box.focusWidget(), &lines);
            QTest::keyClicks(&lines, "x");
            QTest::keySequence(&lines, QKeySequence::SelectAll);
            QTest::keySequence(&lines, QKeySequence::Copy);
            QTest::keyClick(&lines, Qt::Key_Backtab, Qt::ShiftModifier);
            QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        });
        prompts().show({"t", "2", {"'a' ---> 'b'", "'c' ---> 'd'"}}, nullptr);
        QCOMPARE(QApplication::clipboard()->text(), "'a' ---> 'b'\n'c' ---> 'd'");
    }
};
QVDC_TEST(tst_ValuePrompts)
#include "tst_ValuePrompts.moc"
