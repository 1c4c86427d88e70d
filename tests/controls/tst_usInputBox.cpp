#include "controls/InputForm.h"

#include "support/MutePrompts.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRandomGenerator>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

using Step = ScriptedPrompts::Step;
Step refusal(const char *text)
{
    return {"tell", QStringLiteral("Érték hiba!"), QString::fromUtf8(text), {}, Icon::Exclamation};
}
const char *const kNotANumber = "Számot kell megadni!";
const char *const kZeroToTen = "0 és 10 közé eső értéket kell megadni!";

} // namespace

class tst_usInputBox : public QObject {
    Q_OBJECT
private slots:
    void typedValuesAreCheckedOnEnter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("refused");
        QTest::newRow("upper bound") << "10" << 10.0 << "";
        QTest::newRow("lower bound") << "0" << 0.0 << "";
        QTest::newRow("above") << "10.5" << 3.0 << kZeroToTen;
        QTest::newRow("nothing") << "" << 3.0 << kNotANumber;
        QTest::newRow("point alone") << "." << 3.0 << kNotANumber;
        QTest::newRow("comma types a point") << "2,5" << 2.5 << "";
        QTest::newRow("second point is dropped") << "1.2.5" << 1.25 << "";
    }
    void typedValuesAreCheckedOnEnter()
    {
        QFETCH(QString, typed);
        QFETCH(double, value);
        QFETCH(QString, refused);
        InputForm f;
        f.decimals(0, 10, "0.##").box->LetValue(3);
        f.raised.clear();
        f.shown().type(typed);
        {
            ScriptedPrompts user(refused.isEmpty() ? std::vector<Step>()
                                                   : std::vector{refusal(refused.toUtf8())});
            f.press(Qt::Key_Return);
            QCOMPARE(user.alerts(), refused.isEmpty() ? 0 : 1);
        }
        QCOMPARE(f.box->Value().toDouble(), value);
        QCOMPARE(f.text(), QString::number(value));
        QCOMPARE(f.raised, value == 3 ? QStringList() : QStringList{"Change " + QString::number(value)});
        QVERIFY(f.line().hasFocus() || f.box->txtCombo->hasFocus()); // -1 moves no focus
        QVERIFY(f.dialog.isVisible());                               // and the dialog never saw the key
        f.press(Qt::Key_Enter, Qt::KeypadModifier); // the same again: nothing new
        QCOMPARE(f.raised.size(), value == 3 ? 0 : 1);
    }

    void aCommaIsReadAsFarAsItGoesUnlessTheLocaleIsRead()
    {
        InputForm f(kComma);
        f.decimals(0, 10).shown();
        f.type(QStringLiteral("1,5\n"));
        QCOMPARE(f.box->Value().toDouble(), 1.0); // on purpose
        QCOMPARE(f.text(), QStringLiteral("1,00"));
        f.box->setReadsLocale(true);
        f.type(QStringLiteral("1.5\n"));        // the point types the comma
        QCOMPARE(f.box->Value().toDouble(), 1.5);
        QCOMPARE(f.text(), QStringLiteral("1,50"));
    }

    void aTextThatIsNotTouchedIsNeverReadBack()
    {
        InputForm f(kComma);
        f.decimals(0, 10).box->LetValue(3.5);
        f.raised.clear();
        f.shown();
        QCOMPARE(f.text(), QStringLiteral("3,50"));
        f.press(Qt::Key_Return);
        f.leave();
        QCOMPARE(f.box->Value().toDouble(), 3.5);
        f.box->LetValue(3.14159);
        f.box->setFocus();
        f.leave();
        QCOMPARE(f.box->Value().toDouble(), 3.14159);
        QCOMPARE(f.raised, QStringList{"Change 3.14159"});
    }

    void keysAreFiltered()
    {
        ScriptedPrompts user;
        InputForm f;
        f.whole(5, -10, 10).shown();
        f.type(QStringLiteral("-1a.,+2-"));
        QCOMPARE(f.text(), QStringLiteral("-12"));
        QCOMPARE(user.alerts(), 5);
        f.press(Qt::Key_Backspace);
        QCOMPARE(f.text(), QStringLiteral("-1"));
        f.line().setSelection(0, 2);
        QTest::sendKeyEvent(QTest::Click, f.box->txtCombo, Qt::Key_Minus, QStringLiteral("-"), {});
        QCOMPARE(f.text(), QStringLiteral("-")); // it overwrites all, so it stands at the start
        f.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.text(), QStringLiteral("-1")); // shortcuts are no characters
        f.line().clear();
    }

    void theKeypadsDecimalKeyTypesTheSeparatorWhateverItsCharacter()
    {
        InputForm f(kComma);
        f.decimals(0, 10).shown();
        f.type(QStringLiteral("1"));
        QTest::sendKeyEvent(QTest::Click, f.box->txtCombo, Qt::Key_Period, QStringLiteral("'"),
                            Qt::KeypadModifier);
        QCOMPARE(f.text(), QStringLiteral("1,"));
        QTest::sendKeyEvent(QTest::Click, f.box->txtCombo, Qt::Key_2, QStringLiteral("2"),
                            Qt::KeypadModifier);
        QCOMPARE(f.text(), QStringLiteral("1,2"));
    }

    void pasteDropAndInputMethodsPassTheSameFilter()
    {
        ScriptedPrompts user;
        InputForm f(kComma);
        f.decimals(0, 1000, "0.0 \"mm\"").shown();
        f.type({});
        QApplication::clipboard()->setText(QStringLiteral("a1.2x.3"));
        f.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.text(), QStringLiteral("1,23"));
        QCOMPARE(user.alerts(), 1);
        QInputMethodEvent typed;
        typed.setCommitString(QStringLiteral("４5."));
        QApplication::sendEvent(f.box->txtCombo, &typed);
        QCOMPARE(f.text(), QStringLiteral("1,235"));
        QMimeData data;
        data.setText(QStringLiteral("-7.b8"));
        QDragEnterEvent over({1, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&f.line(), &over);
        QDropEvent drop(QPointF(1, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&f.line(), &drop);
        QCOMPARE(f.text(), QStringLiteral("781,235"));
        f.line().selectAll();
        QApplication::clipboard()->setText(QStringLiteral("xyz"));
        f.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.text(), QString());
        f.type(QStringLiteral("12"));
        f.line().setCursorPosition(1);
        QApplication::clipboard()->setText(QStringLiteral("1"));
        f.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.text(), QStringLiteral("112"));
        QCOMPARE(f.line().cursorPosition(), 2);
        f.press(Qt::Key_Return);
        QCOMPARE(f.text(), QStringLiteral("112,0 mm")); // the pattern's own text is not filtered
    }

    void theHostSeesKeysFirstAndMayChangeThem()
    {
        ScriptedPrompts user;
        InputForm f;
        f.whole(5, 0, 100).shown();
        QObject::connect(f.box, &usInputBox::KeyDown, f.box, [&](qint16 &code, qint16 shift) {
            f.raised << QStringLiteral("KeyDown %1 %2").arg(code).arg(shift);
            if (code == 113) code = 40;         // F2 goes down
            if (code == 46) code = 0;
        });
        QObject::connect(f.box, &usInputBox::KeyPress, f.box, [&](qint16 &key) {
            f.raised << QStringLiteral("KeyPress %1").arg(key);
            if (key == u'x') key = u'7';
            if (key == u'8') key = 0;
            if (key == u'b') key = 8;
        });
        QObject::connect(f.box, &usInputBox::KeyUp, f.box,
                         [&](qint16 &code, qint16) { f.raised << QStringLiteral("KeyUp %1").arg(code); });
        f.line().selectAll();
        f.press(Qt::Key_Delete);                // taken away
        QCOMPARE(f.text(), QStringLiteral("5"));
        f.raised.clear();
        const auto key = [&](char c) {
            QTest::sendKeyEvent(QTest::Click, f.box->txtCombo,
                                Qt::Key(QChar::fromLatin1(c).toUpper().unicode()), QString(QLatin1Char(c)),
                                {});
        };
        key('x');
        QCOMPARE(f.text(), QStringLiteral("7"));
        QCOMPARE(f.raised, QStringList({"KeyDown 88 0", "KeyPress 120", "KeyUp 88"}));
        key('8'), key('9'), key('b');
        QCOMPARE(f.text(), QStringLiteral("7"));
        QCOMPARE(user.alerts(), 0);
        f.raised.clear();
        f.press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(f.raised,
                 QStringList({"KeyDown 16 1", "KeyDown 37 1", "KeyUp 37", "KeyUp 16"})); // no character
        f.box->setSetFocusNextTabIndex(2);
        f.press(Qt::Key_F2);
        QVERIFY(f.after->hasFocus());
    }

    void enterRaisesThenChecksThenMoves()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        f.box->setSetFocusNextTabIndex(2);
        QObject::connect(f.box, &usInputBox::KeyDown, f.box, [&](qint16 &code, qint16) {
            f.raised << QStringLiteral("KeyDown %1 %2").arg(code).arg(f.box->Value().toInt());
        });
        QObject::connect(f.box, &usInputBox::KeyPress, f.box, [&](qint16 &key) {
            f.raised << QStringLiteral("KeyPress %1").arg(key);
        });
        QObject::connect(qApp, &QApplication::focusChanged, f.box,
                         [&] { f.raised << QStringLiteral("focus"); });
        f.type(QStringLiteral("7"));
        f.raised.clear();
        f.press(Qt::Key_Return);
        QCOMPARE(f.raised, QStringList({"KeyDown 13 5", "KeyPress 13", "Change 7", "focus"}));
        QVERIFY(f.after->hasFocus());
        f.box->setFocus();
        f.type(QStringLiteral("11"));
        ScriptedPrompts user({refusal(kZeroToTen)});
        f.press(Qt::Key_Return);
        QVERIFY(f.after->hasFocus()); // whatever the check said; and it is told once
        f.sendPosted();
        QCOMPARE(f.text(), QStringLiteral("7"));
    }

    void aHandlerMayPutAnotherValueIn()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        QObject::connect(f.box, &usInputBox::Change, f.box,
                         [](double &value) { value = value == 6 ? 8 : 99; });
        f.type(QStringLiteral("6\n"));
        QCOMPARE(f.text(), QStringLiteral("8"));
        f.type(QStringLiteral("7\n"));          // 99 is out of bounds
        QCOMPARE(f.box->Value().toDouble(), 7.0);
        QCOMPARE(f.raised, QStringList({"Change 6", "Change 7"}));
    }

    void boundsOfLetValueAreNotComparedWithEachOther()
    {
        InputForm f;
        QVERIFY(f.box->LetValue(7, 5, QStringLiteral("10")));
        QCOMPARE(f.box->Min(), 5.0);
        QCOMPARE(f.box->Max(), 10.0);
        QVERIFY(f.box->LetValue(8, QStringLiteral("none"), QVariant())); // neither is numeric
        ScriptedPrompts user({refusal("20 és 10 közé eső értéket kell megadni!"), refusal(kNotANumber),
                              refusal(kNotANumber)});
        QVERIFY(!f.box->LetValue(8, 20));
        QCOMPARE(f.box->Min(), 20.0);           // taken although it is above the maximum, on purpose
        QVERIFY(!f.box->LetValue(QStringLiteral("x")));
        f.box->setValue(QVariant());
        QCOMPARE(f.box->Value().toDouble(), 8.0);
        QCOMPARE(user.alerts(), 3);
        QCOMPARE(f.raised, QStringList({"Change 7", "Change 8"}));
    }

    void boundSettersRefuseWhatDoesNotFit()
    {
        const auto bad = [](const char *text) {
            return Step{"tell", QStringLiteral("Hiba"), QString::fromUtf8(text), {}, Icon::Exclamation};
        };
        InputForm f;
        f.whole(5, 0, 10);
        ScriptedPrompts user({bad("Hibás minimum!"), bad("Hibás minimum!"), bad("Hibás maximum!"),
                              bad("Hibás maximum!")});
        f.box->setMin(11), f.box->setMin(6), f.box->setMax(-1), f.box->setMax(4);
        QCOMPARE(f.box->Min(), 0.0);
        QCOMPARE(f.box->Max(), 10.0);
        f.box->setMin(5), f.box->setMax(5);
        QCOMPARE(f.box->txtCombo->toolTip(), QStringLiteral("5 és 5 közé eső érték!"));
    }

    void textsAreCutAtTheirLimit()
    {
        InputForm f;
        f.box->setInputType(4);
        f.box->setLenMax(5);
        f.shown();
        ScriptedPrompts user(
            {{"tell", {}, QStringLiteral("A megengedettnél (5) hosszabb szöveg!"), {}, Icon::Exclamation},
             {"tell", {}, QStringLiteral("A megengedettnél (5) hosszabb szöveg!"), {}, Icon::Exclamation}});
        f.type(QStringLiteral("a-.ő\n"));
        QCOMPARE(f.box->Value().toString(), QStringLiteral("a-.ő"));
        QVERIFY(
            !f.box->LetValue(QStringLiteral("abcde"))); // exactly the limit: told, and kept whole, on purpose
        QCOMPARE(f.box->Value().toString(), QStringLiteral("abcde"));
        f.type(QStringLiteral("abcdefg\n"));
        QCOMPARE(f.text(), QStringLiteral("abcde"));
        QCOMPARE(f.box->txtCombo->toolTip(), QStringLiteral("Maximum 5 karakter"));
        QCOMPARE(user.alerts(), 0);
        QCOMPARE(f.raised, QStringList());
    }

    void theListOffersValues()
    {
        InputForm f(kComma);
        f.decimals(0, 10).box->LetValue(1);
        f.raised.clear();
        f.shown();
        const int alone = f.line().width();
        f.box->ComboValue(2.5), f.box->ComboValue(QStringLiteral("7"));
        QVERIFY(f.line().width() < alone);      // the arrow that opens the list needs its room
        QCOMPARE(f.text(), QStringLiteral("1,00"));
        QCOMPARE(f.box->txtCombo->itemText(0), QStringLiteral("2,50"));
        f.press(Qt::Key_Down);
        QCOMPARE(f.box->Value().toDouble(), 2.5); // the number itself, not its text read back
        f.press(Qt::Key_Down);
        QCOMPARE(f.text(), QStringLiteral("7,00"));
        QCOMPARE(f.raised, QStringList({"Change 2.5", "Change 7"}));
    }

    /// Whatever is pressed, pasted or stepped: the value stays in its bounds and the box has a way back.
    void randomKeysNeverLeaveAValueOutsideTheBounds()
    {
        MutePrompts mute;
        constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Up, Qt::Key_Down, Qt::Key_Backspace, Qt::Key_Delete,
                                 Qt::Key_Left, Qt::Key_Home, Qt::Key_End};
        const QString characters = QStringLiteral("0123456789.,-+eE a");
        QRandomGenerator random(22);
        for (int round = 0; round < 40; ++round) {
            InputForm f(round % 2 ? kDot : kComma);
            f.decimals(-50, 50, round % 3 ? "0.00" : "#,##0.0 \"mm\"").shown();
            f.box->setReadsLocale(round % 4 == 0);
            f.box->setUpDownVisible(true), f.box->setUpDownInc(7.3);
            for (int i = 0; i < 150; ++i) {
                const quint32 dice = random.bounded(100u);
                if (dice < 70) {
                    const QChar c = characters[qsizetype(random.bounded(quint32(characters.size())))];
                    QTest::sendKeyEvent(QTest::Click, f.box->txtCombo, Qt::Key(c.toUpper().unicode()),
                                        QString(c), {});
                } else if (dice < 95) {
                    f.press(kKeys[random.bounded(quint32(std::size(kKeys)))],
                            dice % 5 ? Qt::NoModifier : Qt::ShiftModifier);
                } else {
                    f.leave();
                    f.box->setFocus(Qt::TabFocusReason);
                }
                const double value = f.box->Value().toDouble();
                QVERIFY2(value >= -50 && value <= 50, qPrintable(f.text()));
            }
            f.leave();
            f.sendPosted();
            QCOMPARE(f.text(), f.box->picValue->text());
        }
    }
};
QVDC_TEST(tst_usInputBox)
#include "tst_usInputBox.moc"
