#include "controls/InputForm.h"

#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QMenu>
#include <QWheelEvent>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

using Step = ScriptedPrompts::Step;
const Step kZeroToTen{"tell",
                      QStringLiteral("Érték hiba!"),
                      QStringLiteral("0 és 10 közé eső értéket kell megadni!"),
                      {},
                      Icon::Exclamation};

void turnWheel(QWidget &over, int angle)
{
    const QPointF at(over.rect().center());
    QWheelEvent wheel(at, over.mapToGlobal(at), {}, {0, angle}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &wheel);
}

} // namespace

class tst_usInputBoxFocus : public QObject {
    Q_OBJECT
private slots:
    void leavingChecksOnceAndTellsAfterTheFocusHasChanged()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().type(QStringLiteral("11"));
        {
            ScriptedPrompts silent;
            f.leave();
            QVERIFY(f.after->hasFocus());
            QCOMPARE(f.text(), QStringLiteral("5")); // restored at once, told later
        }
        bool heldFocus = false;
        Step told = kZeroToTen;
        told.meanwhile = [&] { heldFocus = f.after->hasFocus(); };
        ScriptedPrompts user({told});
        f.sendPosted();
        QVERIFY(heldFocus);
        f.box->setFocus();
        f.type(QStringLiteral("7"));
        f.leave();
        f.sendPosted();
        QCOMPARE(f.raised, QStringList{"Change 7"});
    }

    void goingElsewhereForAWhileIsNotLeaving()
    {
        ScriptedPrompts silent;
        InputForm f;
        f.whole(5, 0, 10).shown().type(QStringLiteral("11"));
        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);  // deactivated
        f.sendPosted();
        QCOMPARE(f.text(), QStringLiteral("11"));
        QApplication::setActiveWindow(&f.dialog);
        QVERIFY(f.box->txtCombo->hasFocus());
        QCOMPARE(f.line().selectedText(), QString()); // the user is back where he was
        QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
        QApplication::sendEvent(f.box->txtCombo, &popup);
        QCOMPARE(f.text(), QStringLiteral("11"));
        f.type(QStringLiteral("9\n"));
    }

    void cancelCancels_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("click") << true;
        QTest::newRow("Esc") << false;
    }
    void cancelCancels()
    {
        QFETCH(bool, byMouse);
        ScriptedPrompts silent;
        InputForm f;
        f.whole(5, 0, 10).shown().type(QStringLiteral("7"));
        QPushButton *const cancel = f.button(QDialogButtonBox::Cancel);
        if (byMouse) {
            cancel->setFocus(Qt::MouseFocusReason);
            QTest::mouseClick(cancel, Qt::LeftButton);
        } else {
            f.press(Qt::Key_Escape);
        }
        f.sendPosted();
        QVERIFY(!f.dialog.isVisible());
        QCOMPARE(f.dialog.result(), int(QDialog::Rejected));
        QCOMPARE(f.box->Value().toDouble(), 5.0); // nothing is stored
        QCOMPARE(f.raised, QStringList());
    }

    void whoOnlyPassesTheCancelButtonHasLeft()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().type(QStringLiteral("7"));
        f.button(QDialogButtonBox::Cancel)->setFocus(Qt::TabFocusReason);
        QCOMPARE(f.box->Value().toDouble(), 5.0);
        f.button(QDialogButtonBox::Ok)->setFocus(Qt::TabFocusReason);
        QCOMPARE(f.box->Value().toDouble(), 7.0);
        f.box->setFocus();
        f.type(QStringLiteral("8"));
        f.button(QDialogButtonBox::Cancel)->setFocus(Qt::TabFocusReason);
        f.box->setFocus();                      // back to go on typing
        QCOMPARE(f.text(), QStringLiteral("8"));
        QCOMPARE(f.box->Value().toDouble(), 7.0);
    }

    void okTakesWhatIsTyped()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().type(QStringLiteral("7"));
        QTest::mouseClick(f.button(QDialogButtonBox::Ok), Qt::LeftButton);
        f.button(QDialogButtonBox::Ok)->setFocus();
        QCOMPARE(f.box->Value().toDouble(), 7.0);
    }

    void entrySelectsAllOrGoesToTheEnd()
    {
        InputForm f;
        f.whole(123, 0, 1000).shown();
        QCOMPARE(f.line().selectedText(), QStringLiteral("123"));
        f.leave();
        QTest::mouseClick(&f.line(), Qt::LeftButton, {}, QPoint(2, f.line().height() / 2));
        QCOMPARE(f.line().selectedText(), QStringLiteral("123"));
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
        f.press(Qt::Key_Down), f.press(Qt::Key_Up), f.press(Qt::Key_Return); // -1: nowhere
        QVERIFY(f.box->txtCombo->hasFocus());
        f.box->setSetFocusNextTabIndex(2);
        f.box->setSetFucusBackTabIndex(0);
        f.press(Qt::Key_Down);
        QVERIFY(f.after->hasFocus());
        f.box->setFocus();
        f.press(Qt::Key_Up);
        QVERIFY(f.before->hasFocus());
        f.box->setFocus();
        f.before->setProperty("TabIndex", 2);   // the first that has it
        f.press(Qt::Key_Return);
        QVERIFY(f.before->hasFocus());
        f.box->setFocus();
        f.box->setSetFocusNextTabIndex(99);
        f.press(Qt::Key_Down);
        QVERIFY(f.box->txtCombo->hasFocus());
    }

    void holdingTheArrowRepeatsUntilTheBound()
    {
        InputForm f;
        f.whole(3, 0, 5).shown();
        f.box->setUpDownVisible(true), f.box->setUpDownInc(1);
        QTest::mousePress(f.box->UpDown1, Qt::LeftButton, {}, f.upper());
        QCOMPARE(f.box->Timer1->interval(), 500);
        f.tick();
        QCOMPARE(f.box->Timer1->interval(), 50);
        QCOMPARE(f.raised, QStringList({"Change 4", "Change 5"}));
        f.tick();                               // the bound: no event, on purpose
        QVERIFY(!f.box->Timer1->isActive());
        QTest::mouseRelease(f.box->UpDown1, Qt::LeftButton, {}, f.upper());
        QCOMPARE(f.raised.size(), 2);
        QCOMPARE(f.text(), QStringLiteral("5"));
        f.raised.clear();
        f.box->setUpDownInc(2);
        for (int i = 0; i < 3; ++i) QTest::mouseClick(f.box->UpDown1, Qt::LeftButton, {}, f.lower());
        QCOMPARE(f.raised, QStringList({"Change 3", "Change 1"}));
        QCOMPARE(f.text(), QStringLiteral("0")); // clamped silently
        QCOMPARE(f.box->UpDownInc(), 2.0);
        QTest::mouseClick(f.box->UpDown1, Qt::LeftButton, {}, {3, f.box->UpDown1->height() / 2});
        QCOMPARE(f.raised.last(),
                 QStringLiteral("Change 2")); // exactly half way is up; the step is positive again
        f.box->setTimerInterval(0);
        QTest::mousePress(f.box->UpDown1, Qt::LeftButton, {}, f.upper());
        QVERIFY(!f.box->Timer1->isActive());
        f.box->setTimerInterval(50);
        QTest::mouseRelease(f.box->UpDown1, Qt::LeftButton, {}, f.upper());
        QTest::mousePress(f.box->UpDown1, Qt::LeftButton, {}, f.lower());
        f.box->setEnabled(false);               // nobody will let go
        QVERIFY(!f.box->Timer1->isActive());
    }

    void stepsAreExactAndBeginAtWhatIsTyped()
    {
        InputForm f;
        f.decimals(0, 1, "").shown();
        f.box->setUpDownVisible(true), f.box->setUpDownInc(0.1);
        for (int i = 0; i < 9; ++i) f.press(Qt::Key_Up);
        QCOMPARE(f.text(), QStringLiteral("0.9")); // single precision steps, without their dirt
        f.press(Qt::Key_Up), f.press(Qt::Key_Up);
        QCOMPARE(f.raised.size(), 10);
        f.type(QStringLiteral("0.5"));
        f.press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(f.text(), QStringLiteral("0.4"));
        f.type(QStringLiteral("2"));
        ScriptedPrompts user({{"tell",
                               QStringLiteral("Érték hiba!"),
                               QStringLiteral("0 és 1 közé eső értéket kell megadni!"),
                               {},
                               Icon::Exclamation}});
        QTest::mouseClick(f.box->UpDown1, Qt::LeftButton, {}, f.upper());
        QCOMPARE(f.text(), QStringLiteral("0.4")); // refused, and no step
        f.box->setUpDownInc(0);
        f.press(Qt::Key_Up);
        QCOMPARE(f.raised.last(), QStringLiteral("Change 0.4")); // a step of nothing is a step
    }

    void theWheelChangesOnlyAFocusedBox()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        turnWheel(*f.box->txtCombo, 120);       // no arrows, no list
        f.box->setUpDownVisible(true), f.box->setUpDownInc(1);
        f.after->setFocus();
        turnWheel(*f.box->txtCombo, 120);
        QCOMPARE(f.text(), QStringLiteral("5"));
        f.box->setFocus();
        turnWheel(*f.box->txtCombo, 120);
        turnWheel(*f.box->txtCombo, -120);
        turnWheel(*f.box->txtCombo, -120);
        QCOMPARE(f.raised, QStringList({"Change 6", "Change 5", "Change 4"}));
    }

    void theMouseIsReportedInTwips()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        const auto note = [&](const char *what) {
            return [&f, what](qint16 button, qint16 shift, double x, double y) {
                f.raised << QStringLiteral("%1 %2 %3 %4 %5")
                                .arg(QLatin1String(what))
                                .arg(button)
                                .arg(shift)
                                .arg(x)
                                .arg(y);
            };
        };
        QObject::connect(f.box, &usInputBox::MouseDown, f.box, note("down"));
        QObject::connect(f.box, &usInputBox::MouseMove, f.box, note("move"));
        QObject::connect(f.box, &usInputBox::MouseUp, f.box, note("up"));
        QObject::connect(f.box, &usInputBox::Click, f.box, [&] { f.raised << QStringLiteral("click"); });
        QObject::connect(f.box, &usInputBox::DblClick, f.box, [&] { f.raised << QStringLiteral("double"); });
        const QPoint at = f.line().mapTo(f.box, QPoint(4, 5)) * 1440 / f.box->logicalDpiX();
        const QString place = QStringLiteral(" %1 %2").arg(at.x()).arg(at.y());
        QTest::mouseClick(&f.line(), Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, {4, 5});
        QCOMPARE(f.raised, QStringList({"down 1 3" + place, "up 1 3" + place, "click"}));
        f.raised.clear();
        QTest::mousePress(&f.line(), Qt::LeftButton, {}, {4, 5});
        QTest::mouseMove(&f.line(), {4, 5});
        QTest::mouseRelease(&f.line(), Qt::LeftButton, {}, {4, 500});
        QTest::mouseDClick(&f.line(), Qt::LeftButton, {}, {4, 5});
        QVERIFY(f.raised.contains(QStringLiteral("double")));
        f.raised.clear();
        QTest::mousePress(f.box->findChild<QLabel *>(QStringLiteral("lblBefore")), Qt::MiddleButton, {},
                          {1, 1});
        QCOMPARE(f.raised.size(), 1); // a caption is the control, once
        QVERIFY(f.raised.first().startsWith(QStringLiteral("down 4 0 15 ")));
    }
};
QVDC_TEST(tst_usInputBoxFocus)
#include "tst_usInputBoxFocus.moc"
