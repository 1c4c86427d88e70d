#include "controls/InputForm.h"

#include "support/Looks.h"
#include "support/Registry.h"

using namespace tests;

class tst_usInputBoxLook : public QObject {
    Q_OBJECT
private slots:
    void cleanup()
    {
        setDesignedTest(nullptr);
        setLanguage(Hungarian, {});
    }

    void whatAFormSaysWrongIsPutRightWhenFirstShown()
    {
        ScriptedPrompts silent;
        InputForm f;
        f.box->setProperty("Value", "99");
        f.box->setProperty("Min", 20.0);
        f.box->setProperty("Max", 10.0);
        QCOMPARE(f.box->Min(), 20.0);           // raw until then
        f.shown();
        QCOMPARE(f.box->Min(), 10.0);
        QCOMPARE(f.box->Max(), 20.0);
        QCOMPARE(f.box->Value().toDouble(), 20.0);
        QCOMPARE(f.raised, QStringList());
    }

    void atRunTimeThePropertyPathChecksLikeTheSetter()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        ScriptedPrompts user({refusal("Hibás minimum!", "Hiba"), refusal("Hibás maximum!", "Hiba")});
        f.box->setProperty("Min", 6.0);
        f.box->setProperty("Max", 4.0);
        QCOMPARE(f.box->txtCombo->toolTip(), "0 és 10 közé eső érték!");
        f.box->setProperty("Min", 5.0);
        f.box->setProperty("Value", "7");
        QCOMPARE(f.box->txtCombo->toolTip(), "5 és 10 közé eső érték!");
        QCOMPARE(f.raised, QStringList{"Change 7"});
    }

    void whileDesignedItShowsAndStoresOnly()
    {
        ScriptedPrompts silent;
        setDesignedTest([](const QWidget &) { return true; });
        InputForm f;
        f.shown();
        f.box->setProperty("Min", 20.0);
        f.box->setProperty("Value", "7");
        f.box->setProperty("Enabled", false);
        QVERIFY(f.box->isEnabled());            // else it could not be clicked
        QVERIFY(!f.box->Enabled());
        QCOMPARE(f.box->property("Value").toString(), "7");
        QCOMPARE(f.text(), "7");
    }

    void sixteenBitAndSinglePropertiesAreCut()
    {
        usInputBox box;
        for (const char *name : {"WidthValue", "TimerInterval", "SetFocusNextTabIndex", "LenMax"})
            for (const auto &[set, kept] : {std::pair(100000, 32767), {-100000, -32768}}) {
                box.setProperty(name, set);
                QCOMPARE(box.property(name).toInt(), kept);
            }
        box.setWidthBeforeString(-1), box.setWidthAfterString(-1);
        QCOMPARE(box.sizeHint().width(), 0);    // negative widths count as none
        box.setProperty("UpDownInc", -0.1);
        QCOMPARE(box.UpDownInc(), 0.1);
    }

    void theChildrenStandInARow()
    {
        InputForm f;
        f.box->setUpDownVisible(true);
        f.shown();
        const auto &before = *f.box->findChild<QLabel *>("lblBefore");
        const auto &unit = *f.box->findChild<QLabel *>("lblAfter");
        const int inch = f.box->logicalDpiX();
        QCOMPARE(before.width(), 1200 * inch / 1440);
        QCOMPARE(f.box->txtCombo->x(), before.width());
        QCOMPARE(f.box->txtCombo->width(), 1200 * inch / 1440);
        QCOMPARE(f.box->UpDown1->x(), f.box->txtCombo->geometry().right() + 1);
        QCOMPARE(unit.x(), f.box->UpDown1->geometry().right() + 1);
        QVERIFY(unit.width() >= 300 * inch / 1440);
        QCOMPARE(f.line().rect(), f.box->txtCombo->rect()); // nothing to open
        f.box->setBeforeString("Mittelparallelabstand der Straßenachsen =");
        f.sendPosted();
        QCOMPARE(before.text(), f.box->BeforeString()); // not cut off while there is room
        f.box->setFixedWidth(200);
        QVERIFY(before.text().endsWith(u'…'));
        QCOMPARE(before.toolTip(), f.box->BeforeString());
        QVERIFY(f.box->txtCombo->width() > 60);
    }

    void infoModeShowsTheValueAsALabel()
    {
        InputForm f(kComma);
        f.decimals(0, 10).box->LetValue(2.5);
        f.box->setUpDownVisible(true);
        f.box->setInfoMode(true);
        f.shown();
        QVERIFY(f.box->picValue->isVisible());
        QVERIFY(!f.box->txtCombo->isVisible() && !f.box->UpDown1->isVisible());
        QCOMPARE(f.box->picValue->text(), "2,50");
        QVERIFY(f.box->LetValue(3));
        QCOMPARE(f.box->picValue->text(), "3,00");
        f.box->setLocale(kDot);
        QCOMPARE(f.box->picValue->text(), "3.00");
    }

    void screenReadersHearNameValueRangeAndError()
    {
        InputForm f;
        f.whole(5, 0, 10).shown();
        QAccessibleInterface &box = *QAccessible::queryAccessibleInterface(f.box->txtCombo);
        QCOMPARE(box.role(), QAccessible::SpinBox);
        QCOMPARE(box.text(QAccessible::Name), "Value, mm");
        QCOMPARE(box.text(QAccessible::Value), "5");
        QCOMPARE(box.text(QAccessible::Description), "0 és 10 közé eső érték!");
        QCOMPARE(box.valueInterface()->maximumValue(), QVariant(10.0));
        QCOMPARE(box.textInterface()->characterCount(), 1);
        box.valueInterface()->setCurrentValue(6);
        QCOMPARE(f.raised, QStringList{"Change 6"});
        f.type("11");           // already while typing
        QCOMPARE(box.text(QAccessible::Description), QString::fromUtf8(kZeroToTen));
        QVERIFY(!f.box->acceptableNumber());
        ScriptedPrompts user({refusal(kZeroToTen)});
        f.press(Qt::Key_Return);
        f.type("7\n");
        QCOMPARE(box.text(QAccessible::Description), "0 és 10 közé eső érték!");
        QCOMPARE(f.box->acceptableNumber(), std::optional(7.0));
    }

    void textsFollowTheLanguage()
    {
        const std::tuple<int, const char *, const char *, const char *> rows[] = {
            {Hungarian, "1,0 és 2,5 közé eső érték!", "Érték hiba!", "Számot kell megadni!"},
            {English, "1.0 and2.5 in range!", "Invalid value!", "Input number!"},
            {Romanian, "1,0 și 2,5 sunt limitele valorii!", "Eroare de valoare!", "Introduceți un număr!"},
            {Vietnamese, "1,0 đến 2,5 là khoảng giá trị cho phép!", "Lỗi giá trị!", "Phải nhập một số!"}};
        for (const auto &[language, hint, title, refused] : rows) {
            InputForm f(language == English ? kDot : kComma);
            f.decimals(1, 2.5, "0.0").shown().type("2");
            setLanguage(language, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(f.box->txtCombo->toolTip(), hint);
            QCOMPARE(f.box->AfterString(), "mm");
            QCOMPARE(f.text(), "2"); // what is being typed stays
            ScriptedPrompts user({refusal(refused, title)});
            f.type("\n");
        }
    }

    void colorsAreTheFormsOrTheDesktops()
    {
        const QPalette light = QApplication::palette();
        InputForm f;
        f.whole(5, 0, 10).shown();
        QApplication::setPalette(darkPalette());
        f.sendPosted();
        QCOMPARE(f.line().palette().color(QPalette::Base), QColor(0x1e, 0x20, 0x23));
        f.box->setBackcolor(QColor(0xff, 0xff, 0xd0));
        QCOMPARE(f.line().palette().color(QPalette::Base), QColor(0xff, 0xff, 0xd0));
        QCOMPARE(f.line().palette().color(QPalette::Text), QColor(Qt::black)); // legible on it
        f.box->setForeColor(QColor(0x80, 0, 0));
        QCOMPARE(f.line().palette().color(QPalette::Text), QColor(0x80, 0, 0));
        f.box->resetBackcolor(), f.box->resetForeColor();
        QCOMPARE(f.line().palette().color(QPalette::Base), QColor(0x1e, 0x20, 0x23));
        f.box->setUpDownVisible(true), f.box->setBorderStyle(1);
        f.box->ComboValue(3);
        f.sendPosted();
        f.type("7");
        const QImage fine = f.dialog.grab().toImage();
        f.type("11");
        QVERIFY(f.dialog.grab().toImage() != fine); // marked
        f.type("7\n");
        QApplication::setPalette(light);
    }
};
QVDC_TEST(tst_usInputBoxLook)
#include "tst_usInputBoxLook.moc"
