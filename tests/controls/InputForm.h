#pragma once

#include "controls/DesignMode.h"
#include "controls/usInputBox.h"
#include "facade/services/Language.h"
#include "support/ScriptedPrompts.h"

#include "support/QtClasses.h"
#include <QDialogButtonBox>

namespace tests {

using namespace QV_DOC_CONTROLS;

inline const QLocale kDot(QLocale::English, QLocale::UnitedKingdom);
inline const QLocale kComma(QLocale::Hungarian, QLocale::Hungary);

inline ScriptedPrompts::Step refusal(const char *text, const char *title = "Érték hiba!")
{
    return {"tell", title, text, {}, Icon::Exclamation};
}
/// The one that is told, or none when the text is empty.
inline std::vector<ScriptedPrompts::Step> told(const char *text)
{
    return *text ? std::vector{refusal(text)} : std::vector<ScriptedPrompts::Step>();
}
inline const char *const kNotANumber = "Számot kell megadni!";
inline const char *const kZeroToTen = "0 és 10 közé eső értéket kell megadni!";

/// A host's dialog: a line, the input box, a line, OK and Cancel (tab indexes 0 to 4); and what the box
/// raised.
struct InputForm {
    QStringList raised;                         ///< outlives the dialog, which closes noisily
    QDialog dialog;
    QLineEdit *before = new QLineEdit(&dialog);
    usInputBox *box = new usInputBox(&dialog);
    QLineEdit *after = new QLineEdit(&dialog);
    QDialogButtonBox *buttons = new QDialogButtonBox(&dialog);
    QPushButton *ok = buttons->addButton("&Kész", QDialogButtonBox::AcceptRole);
    QPushButton *cancel = buttons->addButton("&Mégse", QDialogButtonBox::RejectRole);

    explicit InputForm(const QLocale &locale = kDot)
    {
        auto *const column = new QVBoxLayout(&dialog);
        for (QWidget *w : std::initializer_list<QWidget *>{before, box, after, buttons}) column->addWidget(w);
        box->setLocale(locale);
        QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
        QObject::connect(box, &usInputBox::Change, box, [this](double &value) {
            raised << "Change " + QString::number(value, 'g', 15);
        });
    }
    InputForm &decimals(double min, double max, const char *format = "0.00")
    {
        box->setInputType(3);
        box->setFormatString(format);
        return whole(min > 0 ? min : 0, min, max);
    }
    InputForm &whole(double value, double min, double max)
    {
        box->LetValue(value, min, max);
        raised.clear();
        return *this;
    }
    InputForm &steps(double by)
    {
        box->setUpDownVisible(true), box->setUpDownInc(by);
        return *this;
    }
    InputForm &shown()
    {
        dialog.show();
        dialog.activateWindow();
        QApplication::setActiveWindow(&dialog);
        box->setFocus(Qt::TabFocusReason);
        return *this;
    }
    /// Notes what else the box raises: keys with their codes, the mouse in twips.
    InputForm &noting()
    {
        using Box = usInputBox;
        const auto mouse = [this](const char *what) {
            return [this, what](qint16 button, qint16 shift, double x, double y) {
                raised << QString("%1 %2 %3 %4 %5").arg(what).arg(button).arg(shift).arg(x).arg(y);
            };
        };
        QObject::connect(box, &Box::KeyDown, box, [this](qint16 &code, qint16 shift) {
            raised << QString("KeyDown %1 %2").arg(code).arg(shift);
        });
        QObject::connect(box, &Box::KeyPress, box,
                         [this](qint16 &code) { raised << QString("KeyPress %1").arg(code); });
        QObject::connect(box, &Box::KeyUp, box,
                         [this](qint16 &code, qint16) { raised << QString("KeyUp %1").arg(code); });
        QObject::connect(box, &Box::MouseDown, box, mouse("down"));
        QObject::connect(box, &Box::MouseMove, box, mouse("move"));
        QObject::connect(box, &Box::MouseUp, box, mouse("up"));
        QObject::connect(box, &Box::Click, box, [this] { raised << "click"; });
        QObject::connect(box, &Box::DblClick, box, [this] { raised << "double"; });
        return *this;
    }
    QString told() { return std::exchange(raised, {}).join(" | "); } ///< what was raised since the last time
    QLineEdit &line() { return *box->txtCombo->lineEdit(); }
    QString text() const { return box->txtCombo->currentText(); }
    double value() const { return box->Value().toDouble(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(box->txtCombo, Qt::Key(key), modifiers);
    }
    void key(QChar c, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::sendKeyEvent(QTest::Click, box->txtCombo, Qt::Key(c.toUpper().unicode()), QString(c),
                            modifiers);
    }
    /// Key by key, over what is there; '\n' is Enter.
    void type(const QString &keys)
    {
        line().selectAll();
        press(Qt::Key_Delete);
        for (const QChar c : keys)
            if (c == u'\n') press(Qt::Key_Return);
            else key(c);
    }
    void leave() { after->setFocus(Qt::TabFocusReason); }
    void sendPosted() { QCoreApplication::sendPostedEvents(); }
    /// The timer's tick, without waiting for it.
    void tick()
    {
        QVERIFY(box->Timer1->isActive());
        QTimerEvent event(box->Timer1->timerId());
        QCoreApplication::sendEvent(box->Timer1, &event);
    }
    enum Half { Upper = 1, Lower = 3 };
    QPoint half(Half h) const { return {box->UpDown1->width() / 2, box->UpDown1->height() * h / 4}; }
    void hold(Half h) { QTest::mousePress(box->UpDown1, Qt::LeftButton, {}, half(h)); }
    void letGo() { QTest::mouseRelease(box->UpDown1, Qt::LeftButton, {}, half(Upper)); }
};

} // namespace tests
