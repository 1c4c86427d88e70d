#include "controls/InputForm.h"

#include "support/Registry.h"

using namespace tests;

class tst_usInputBoxFocus : public QObject {
    Q_OBJECT
private slots:
    void leavingChecksOnceAndTellsAfterTheFocusHasChanged()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().type("11");
        {
            ScriptedPrompts silent;
            f.leave();
            QVERIFY(f.after->hasFocus());
            QCOMPARE(f.text(), "5"); // restored at once, told later
        }
        bool heldFocus = false;
        ScriptedPrompts::Step told = refusal(kZeroToTen);
        told.meanwhile = [&] { heldFocus = f.after->hasFocus(); };
        ScriptedPrompts user({told});
        f.sendPosted();
        QVERIFY(heldFocus);
        f.box->setFocus();
        f.type("7");
        f.leave();
        QCOMPARE(f.raised, QStringList{"Change 7"});
    }

    void goingElsewhereForAWhileIsNotLeaving()
    {
        ScriptedPrompts silent;
        InputForm f;
        f.whole(5, 0, 10).shown().type("11");
        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);  // deactivated
        f.sendPosted();
        QCOMPARE(f.text(), "11");
        QApplication::setActiveWindow(&f.dialog);
        QVERIFY(f.box->txtCombo->hasFocus());
        QCOMPARE(f.line().selectedText(), QString()); // the user is back where he was
        QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
        QApplication::sendEvent(f.box->txtCombo, &popup);
        QCOMPARE(f.text(), "11");
        f.type("9\n");
    }

    void buttonsEndTheDialogWithOrWithoutTheNumber()
    {
        const auto click = [](QPushButton *button) {
            button->setFocus(Qt::MouseFocusReason);
            QTest::mouseClick(button, Qt::LeftButton);
        };
        const auto access = [](InputForm &f, Qt::Key key) { // a press takes a while to click
            f.press(key, Qt::AltModifier);
            QTRY_VERIFY(!f.dialog.isVisible());
        };
        const std::tuple<const char *, std::function<void(InputForm &)>, double, bool> rows[] = {
            {"11", [&](auto &f) { click(f.cancel); }, 5, false}, // 11 cannot be taken
            {"11", [](auto &f) { f.press(Qt::Key_Escape); }, 5, false},
            {"11", [&](auto &f) { access(f, Qt::Key_M); }, 5, false},
            {"7", [&](auto &f) { click(f.ok); }, 7, false},
            {"7", [&](auto &f) { access(f, Qt::Key_K); }, 7, false},
            {"11", [&](auto &f) { f.press(Qt::Key_K, Qt::AltModifier); }, 5, true}};
        for (const auto &[typed, act, value, open] : rows) {
            InputForm f;
            f.whole(5, 0, 10).shown().type(typed);
            ScriptedPrompts user(tests::told(open ? kZeroToTen : ""));
            act(f);
            f.sendPosted();
            QCOMPARE(f.dialog.isVisible(), open);
            QCOMPARE(f.ok->isDown(), false);    // what was refused is not confirmed a moment later
            QCOMPARE(f.value(), value);
        }
    }

    void whoOnlyPassesTheCancelButtonHasLeft()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().type("7");
        f.cancel->setFocus(Qt::TabFocusReason);
        QCOMPARE(f.value(), 5.0);
        f.ok->setFocus(Qt::TabFocusReason);
        QCOMPARE(f.value(), 7.0);
        f.box->setFocus();
        f.type("8");
        f.cancel->setFocus(Qt::TabFocusReason);
        f.box->setFocus();                      // back to go on typing
        QCOMPARE(f.text(), "8");
        QCOMPARE(f.value(), 7.0);
    }

    void entrySelectsAllOrGoesToTheEnd()
    {
        InputForm f;
        f.whole(123, 0, 1000).shown();
        QCOMPARE(f.line().selectedText(), "123");
        f.leave();
        QTest::mouseClick(&f.line(), Qt::LeftButton, {}, QPoint(2, f.line().height() / 2));
        QCOMPARE(f.line().selectedText(), "123");
        f.leave();
        f.box->setAutoSelect(false);
        f.box->setFocus(Qt::TabFocusReason);
        QCOMPARE(f.line().selectedText(), QString());
        QCOMPARE(f.line().cursorPosition(), 3);
    }

    void focusGoesToTheSiblingOfThatTabIndex()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        QWidget *const own = f.box->txtCombo;
        const std::tuple<int, int, Qt::Key, QWidget *> rows[] = { // next, back, key, where it goes
            {-1, -1, Qt::Key_Down, own}, {-1, -1, Qt::Key_Up, own}, {2, 0, Qt::Key_Down, f.after},
            {2, 0, Qt::Key_Up, f.before}, {99, 0, Qt::Key_Down, own}, {0, 0, Qt::Key_Return, f.before}};
        for (const auto &[next, back, key, to] : rows) {
            f.box->setFocus();
            f.box->setSetFocusNextTabIndex(next);
            f.box->setSetFucusBackTabIndex(back);
            f.press(key);
            QCOMPARE(f.dialog.focusWidget(), to);
        }
        f.before->setProperty("TabIndex", 2);   // the first that has it
        f.box->setSetFocusNextTabIndex(2);
        f.box->setFocus();
        f.press(Qt::Key_Down);
        QVERIFY(f.before->hasFocus());
    }

    void holdingTheArrowRepeatsUntilTheBound()
    {
        InputForm f;
        f.whole(3, 0, 5).steps(1).shown();
        f.hold(InputForm::Upper);
        QCOMPARE(f.box->Timer1->interval(), 500);
        f.tick();
        QCOMPARE(f.box->Timer1->interval(), 50);
        QCOMPARE(f.raised, QStringList({"Change 4", "Change 5"}));
        f.tick();                               // the bound: no event, on purpose
        QVERIFY(!f.box->Timer1->isActive());
        f.letGo();
        QCOMPARE(f.raised.size(), 2);
        QCOMPARE(f.text(), "5");
        f.raised.clear();
        f.steps(2);
        for (int i = 0; i < 3; ++i) f.hold(InputForm::Lower), f.letGo();
        QCOMPARE(f.raised, QStringList({"Change 3", "Change 1"}));
        QCOMPARE(f.text(), "0"); // clamped silently
        QTest::mouseClick(f.box->UpDown1, Qt::LeftButton, {}, {3, f.box->UpDown1->height() / 2});
        QCOMPARE(f.raised.last(), "Change 2"); // half way is up; the step is positive again
        f.box->setTimerInterval(0);
        f.hold(InputForm::Upper);
        QVERIFY(!f.box->Timer1->isActive());
        f.letGo();
        f.box->setTimerInterval(50);
        f.hold(InputForm::Lower);
        f.steps(3);                             // the host speeds it up: it goes on downwards
        f.tick();
        QCOMPARE(f.text(), "0");
        f.letGo();
        f.hold(InputForm::Upper);
        f.box->setEnabled(false);               // nobody will let go
        QVERIFY(!f.box->Timer1->isActive());
    }

    void nothingRepeatsBehindADialogThatAHandlerOpens()
    {
        InputForm f;
        f.whole(3, 0, 9).steps(1).shown().type("4");
        const auto asking = QObject::connect(f.box, &usInputBox::Change, f.box, [&] {
            QDialog dialog(&f.dialog);
            QTimer::singleShot(0, &dialog, &QDialog::accept);
            dialog.exec();
        });
        f.hold(InputForm::Upper);               // takes what is typed, and the handler asks
        QVERIFY(!f.box->Timer1->isActive());
        QCOMPARE(f.raised, QStringList{"Change 4"});
        QObject::disconnect(asking);
    }

    void stepsAreExactAndBeginAtWhatIsTyped()
    {
        InputForm f;
        f.decimals(0, 1, "").steps(0.1).shown();
        for (int i = 0; i < 9; ++i) f.press(Qt::Key_Up);
        QCOMPARE(f.text(), "0.9"); // single precision steps, without their dirt
        f.press(Qt::Key_Up), f.press(Qt::Key_Up);
        QCOMPARE(f.raised.size(), 10);
        f.type("0.5");
        f.box->setSetFocusNextTabIndex(2);
        f.press(Qt::Key_Down, Qt::ControlModifier); // steps all the same
        QCOMPARE(f.text(), "0.4");
        f.type("2");
        ScriptedPrompts user({refusal("0 és 1 közé eső értéket kell megadni!")});
        f.hold(InputForm::Upper);
        QCOMPARE(f.text(), "0.4"); // refused, and no step
        f.letGo();
        f.steps(0).press(Qt::Key_Up);
        QCOMPARE(f.raised.last(), "Change 0.4"); // a step of nothing is a step
        f.box->LetValue(9007199254740981.0, 0, 1e300);
        f.steps(1).press(Qt::Key_Up);
        QVERIFY(f.value() == 9007199254740982.0); // more digits than one reads
    }

    void theWheelChangesOnlyAFocusedBox()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        const auto turn = [&](int angle) {
            const QPointF at(f.box->txtCombo->rect().center());
            QWheelEvent wheel(at, f.box->txtCombo->mapToGlobal(at), {}, {0, angle}, {}, {}, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(f.box->txtCombo, &wheel);
        };
        turn(120);                              // no arrows, no list
        f.steps(1).leave();
        turn(120);
        QCOMPARE(f.text(), "5");
        f.box->setFocus();
        for (const int angle : {120, -120, -240, 60, 40, 20}) turn(angle); // fine ones add up to a step
        QCOMPARE(f.raised, QStringList({"Change 6", "Change 5", "Change 4", "Change 3", "Change 4"}));
    }

    void theMouseIsReportedInTwips()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().noting();
        const QPoint at = f.line().mapTo(f.box, QPoint(4, 5)) * 1440 / f.box->logicalDpiX();
        const QString place = QString(" %1 %2").arg(at.x()).arg(at.y());
        QTest::mouseClick(&f.line(), Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, {4, 5});
        QCOMPARE(f.told(), "down 1 3" + place + " | up 1 3" + place + " | click");
        QTest::mousePress(&f.line(), Qt::LeftButton, {}, {4, 5});
        QTest::mouseRelease(&f.line(), Qt::LeftButton, {}, {4, 500}); // outside: no click
        QTest::mouseDClick(&f.line(), Qt::LeftButton, {}, {4, 5});
        QTest::mouseRelease(&f.line(), Qt::LeftButton, {}, {4, 5});   // nor is this a second one
        QCOMPARE(f.raised.size(), 4);
        QVERIFY(f.told().endsWith(" | double | up 1 0" + place));
        QTest::mousePress(f.box->findChild<QLabel *>("lblBefore"), Qt::MiddleButton, {}, {1, 1});
        QCOMPARE(f.raised.size(), 1);           // a caption is the control, once
        QVERIFY(f.told().startsWith("down 4 0 15 "));
    }
};
QVDC_TEST(tst_usInputBoxFocus)
#include "tst_usInputBoxFocus.moc"
