#include "controls/InputForm.h"

#include "support/Registry.h"
#include "support/WillingPrompts.h"

#include <QInputMethodEvent>

using namespace tests;

class tst_usInputBox : public QObject {
    Q_OBJECT
private slots:
    void typedValuesAreCheckedOnEnter()
    {
        const std::tuple<const char *, double, const char *> rows[] = { // 3 stands there; the refusal
            {"10", 10, ""}, {"0", 0, ""}, {"10.5", 3, kZeroToTen}, {"", 3, kNotANumber},
            {".", 3, kNotANumber}, {"2,5", 2.5, ""}, {"1.2.5", 1.25, ""}}; // one point only
        for (const auto &[typed, value, refused] : rows) {
            InputForm f;
            f.decimals(0, 10, "0.##").box->LetValue(3);
            f.raised.clear();
            f.shown().type(typed);
            {
                ScriptedPrompts user(tests::told(refused));
                f.press(Qt::Key_Return);
                QCOMPARE(user.alerts(), int(*refused != 0));
            }
            QCOMPARE(f.value(), value);
            QCOMPARE(f.text(), QString::number(value));
            f.press(Qt::Key_Enter, Qt::KeypadModifier); // the same again: nothing new
            QCOMPARE(f.told(), *refused ? "" : "Change " + QString::number(value));
            QVERIFY(f.box->txtCombo->hasFocus());       // -1 moves no focus
            QVERIFY(f.dialog.isVisible());              // and the dialog never saw the key
        }
    }

    void aTextThatIsNotTouchedIsNeverReadBack()
    {
        InputForm f(kComma);
        f.decimals(0, 10, "0.00 \"m\"").box->LetValue(3.5);
        f.shown();
        f.press(Qt::Key_Return);
        f.leave();
        QCOMPARE(f.value(), 3.5);
        f.box->LetValue(3.14159);
        f.box->setFocus();
        f.key(u'7');
        ScriptedPrompts silent;
        f.press(Qt::Key_Z, Qt::ControlModifier); // undone is untouched, the pattern's text included
        QCOMPARE(f.text(), "3,14 m");
        f.leave();
        QCOMPARE(f.value(), 3.14159);
        f.box->setFocus();
        f.type("3,14\n"); // the same text, but typed: read as far as it goes, on purpose
        QCOMPARE(f.value(), 3.0);
        f.box->setReadsLocale(true);
        f.type("1.5\n");        // the point types the comma
        QCOMPARE(f.value(), 1.5);
        QCOMPARE(silent.alerts(), 0);
    }

    void keysAreFiltered()
    {
        ScriptedPrompts user;
        InputForm f;
        f.whole(5, -10, 10).shown();
        f.type("-1a.,+2-");
        QCOMPARE(f.text(), "-12");
        QCOMPARE(user.alerts(), 5);
        f.press(Qt::Key_Backspace);
        f.line().setSelection(0, 2);
        f.key(u'-');
        QCOMPARE(f.text(), "-"); // it overwrites all, so it stands at the start
        f.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.text(), "-1"); // shortcuts are no characters
        f.line().clear();
        InputForm comma(kComma);
        comma.decimals(0, 10).shown().type("1");
        QTest::sendKeyEvent(QTest::Click, comma.box->txtCombo, Qt::Key_Period, "'", Qt::KeypadModifier);
        comma.key(u'2', Qt::KeypadModifier);
        QCOMPARE(comma.text(), "1,2"); // the keypad's decimal key, whatever its character
        comma.line().clear();
    }

    void pasteDropAndInputMethodsPassTheSameFilter()
    {
        ScriptedPrompts user;
        InputForm f(kComma);
        const auto paste = [&](const char *text) {
            QApplication::clipboard()->setText(QLatin1String(text));
            f.press(Qt::Key_V, Qt::ControlModifier);
        };
        f.decimals(0, 1000, "0.0 \"mm\"").shown();
        f.type({});
        paste("a1.2x.3");
        QCOMPARE(f.text(), "1,23");
        QCOMPARE(user.alerts(), 1);
        QInputMethodEvent typed;
        typed.setCommitString("４5.");
        QApplication::sendEvent(f.box->txtCombo, &typed);
        QCOMPARE(f.text(), "1,235");
        QMimeData data;
        data.setText("-7.b8");
        QDragEnterEvent over({1, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&f.line(), &over);
        QDropEvent drop(QPointF(1, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&f.line(), &drop);
        QCOMPARE(f.text(), "781,235");
        f.line().selectAll();
        paste("xyz");
        QCOMPARE(f.text(), QString());
        f.type("12");
        f.line().setCursorPosition(1);
        paste("1");
        QCOMPARE(f.text(), "112");
        QCOMPARE(f.line().cursorPosition(), 2);
        f.press(Qt::Key_Return);
        QCOMPARE(f.text(), "112,0 mm"); // the pattern's own text is not filtered
    }

    void theHostSeesKeysFirstAndMayChangeThem()
    {
        ScriptedPrompts user;
        InputForm f;
        f.whole(5, 0, 100).shown().noting();
        QObject::connect(f.box, &usInputBox::KeyDown, f.box, [](qint16 &code, qint16) {
            if (code == 113) code = 40;         // F2 goes down
            if (code == 46) code = 0;
        });
        QObject::connect(f.box, &usInputBox::KeyPress, f.box, [](qint16 &key) {
            if (key == u'x') key = u'7';
            if (key == u'8') key = 0;
            if (key == u'b') key = 8;
        });
        f.line().selectAll();
        f.press(Qt::Key_Delete);                // taken away
        QCOMPARE(f.text(), "5");
        f.raised.clear();
        f.key(u'x');
        QCOMPARE(f.told(), "KeyDown 88 0 | KeyPress 120 | KeyUp 88");
        QCOMPARE(f.text(), "7");
        f.key(u'8'), f.key(u'9'), f.key(u'b');
        QCOMPARE(f.text(), "7");
        QCOMPARE(user.alerts(), 0);
        f.raised.clear();
        f.press(Qt::Key_Left, Qt::ShiftModifier); // no character
        QCOMPARE(f.told(), "KeyDown 16 1 | KeyDown 37 1 | KeyUp 37 | KeyUp 16");
        f.box->setSetFocusNextTabIndex(2);
        f.press(Qt::Key_F2);
        QVERIFY(f.after->hasFocus());
    }

    void enterRaisesThenChecksThenMoves()
    {
        InputForm f;
        f.whole(5, 0, 10).shown().noting();
        f.box->setSetFocusNextTabIndex(2);
        QObject::connect(qApp, &QApplication::focusChanged, f.box, [&] { f.raised << "focus"; });
        f.type("7");
        f.raised.clear();
        f.press(Qt::Key_Return);
        QCOMPARE(f.told(), "KeyDown 13 0 | KeyPress 13 | Change 7 | focus | KeyUp 13");
        QVERIFY(f.after->hasFocus());
        f.box->setFocus();
        f.type("11");
        ScriptedPrompts user({refusal(kZeroToTen)});
        f.press(Qt::Key_Return);
        QVERIFY(f.after->hasFocus());           // whatever the check said; and it is told once
        f.sendPosted();
        QCOMPARE(f.text(), "7");
    }

    void aHandlerMayPutAnotherValueIn()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        QObject::connect(f.box, &usInputBox::Change, f.box,
                         [](double &value) { value = value == 6 ? 8 : 99; });
        f.type("6\n");
        QCOMPARE(f.text(), "8");
        f.type("7\n");          // 99 is out of bounds
        QCOMPARE(f.value(), 7.0);
        QCOMPARE(f.raised, QStringList({"Change 6", "Change 7"}));
    }

    void aHandlerMayDeleteTheControl()
    {
        using Act = std::function<void(InputForm &)>;
        const std::pair<const char *, Act> acts[] = {
            {"Enter", [](auto &f) { f.press(Qt::Key_Return); }}, {"leaving", [](auto &f) { f.leave(); }},
            {"Down", [](auto &f) { f.press(Qt::Key_Down, Qt::ControlModifier); }},
            {"arrow", [](auto &f) { f.hold(InputForm::Upper); }},
            {"program", [](auto &f) { f.box->LetValue(8); }}, {"key", [](auto &f) { f.key(u'1'); }},
            {"click", [](auto &f) { QTest::mouseClick(&f.line(), Qt::LeftButton); }}};
        for (const auto &[name, act] : acts) {
            InputForm f;
            f.whole(5, 0, 10).steps(1).shown().type("7");
            QPointer<usInputBox> box(f.box);
            const auto drop = [box] { delete box.data(); };
            QObject::connect(f.box, &usInputBox::Change, &f.dialog, drop);
            if (*name == 'k') QObject::connect(f.box, &usInputBox::KeyPress, &f.dialog, drop);
            if (*name == 'c') QObject::connect(f.box, &usInputBox::MouseUp, &f.dialog, drop);
            act(f);
            f.sendPosted();
            QVERIFY2(!box, name);
        }
    }

    void boundsOfLetValueAreNotComparedWithEachOther()
    {
        InputForm f;
        QVERIFY(f.box->LetValue(7, 5, "10") && f.box->Min() == 5 && f.box->Max() == 10);
        QVERIFY(f.box->LetValue(8, "none", QVariant())); // neither is numeric
        ScriptedPrompts user({refusal("20 és 10 közé eső értéket kell megadni!"), refusal(kNotANumber),
                              refusal(kNotANumber)});
        QVERIFY(!f.box->LetValue(8, 20));
        QCOMPARE(f.box->Min(), 20.0);           // taken although it is above the maximum, on purpose
        QVERIFY(!f.box->LetValue("x"));
        f.box->setValue(std::nan(""));
        QCOMPARE(f.value(), 8.0);
        QCOMPARE(user.alerts(), 3);
        QCOMPARE(f.raised, QStringList({"Change 7", "Change 8"}));
    }

    void textsAreCutAtTheirLimit()
    {
        InputForm f;
        f.box->setInputType(4);
        f.box->setLenMax(5);
        f.shown();
        const char *const tooLong = "A megengedettnél (5) hosszabb szöveg!";
        ScriptedPrompts user({refusal(tooLong, ""), refusal(tooLong, "")});
        f.type("a-.ő\n");
        QCOMPARE(f.box->Value().toString(), "a-.ő");
        QVERIFY(!f.box->LetValue("abcde"));     // exactly the limit: told, and kept whole, on purpose
        QCOMPARE(f.box->Value().toString(), "abcde");
        f.type("abcdefg\n");
        QCOMPARE(f.text(), "abcde");
        QCOMPARE(f.box->txtCombo->toolTip(), "Maximum 5 karakter");
        QCOMPARE(user.alerts(), 0);
        QCOMPARE(f.raised, QStringList());
    }

    void theListOffersValues()
    {
        InputForm f(kComma);
        f.decimals(0, 10).shown().box->LetValue(1.5);
        f.box->LetValue(1);
        f.raised.clear();
        const int alone = f.line().width();
        QCOMPARE(alone, f.box->txtCombo->width()); // nothing to open, whatever was shown meanwhile
        f.box->ComboValue(2.5), f.box->ComboValue("7");
        QVERIFY(f.line().width() < alone);      // the arrow that opens the list needs its room
        QCOMPARE(f.text(), "1,00");
        QCOMPARE(f.box->txtCombo->itemText(0), "2,50");
        f.press(Qt::Key_Down);
        QCOMPARE(f.value(), 2.5);               // the number itself, not its text read back
        f.press(Qt::Key_Down);
        QCOMPARE(f.raised, QStringList({"Change 2.5", "Change 7"}));
    }

    /// Whatever is pressed or stepped: the value stays in its bounds and the box has a way back.
    void randomKeysNeverLeaveAValueOutsideTheBounds()
    {
        WillingPrompts mute;
        constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Up, Qt::Key_Down, Qt::Key_Backspace, Qt::Key_Delete,
                                 Qt::Key_Left, Qt::Key_Home, Qt::Key_End};
        const QString characters = "0123456789.,-+eE a";
        QRandomGenerator random(22);
        const auto below = [&](size_t n) { return random.bounded(quint32(n)); };
        for (int round = 0; round < 40; ++round) {
            InputForm f(round % 2 ? kDot : kComma);
            f.decimals(-50, 50, round % 3 ? "0.00" : "#,##0.0 \"mm\"").steps(7.3).shown();
            f.box->setReadsLocale(round % 4 == 0);
            for (int i = 0; i < 150; ++i) {
                const quint32 dice = below(100);
                if (dice < 70) f.key(characters[below(size_t(characters.size()))]);
                else if (dice < 80) f.press(kKeys[below(std::size(kKeys))], Qt::ShiftModifier);
                else if (dice < 95) f.press(kKeys[below(std::size(kKeys))]);
                else f.leave(), f.box->setFocus(Qt::TabFocusReason);
                QVERIFY2(f.value() >= -50 && f.value() <= 50, qPrintable(f.text()));
            }
            f.leave();
            f.sendPosted();
            QCOMPARE(f.text(), f.box->picValue->text());
        }
    }
};
QVDC_TEST(tst_usInputBox)
#include "tst_usInputBox.moc"
