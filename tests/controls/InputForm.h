#pragma once

#include "controls/DesignMode.h"
#include "controls/usInputBox.h"
#include "facade/services/Language.h"
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace tests {

using namespace QV_DOC_CONTROLS;

inline const QLocale kDot(QLocale::English, QLocale::UnitedKingdom);
inline const QLocale kComma(QLocale::Hungarian, QLocale::Hungary);

inline ScriptedPrompts::Step refusal(const char *text, const char *title = "Érték hiba!")
{
    return {"tell", QString::fromUtf8(title), QString::fromUtf8(text), {}, Icon::Exclamation};
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
    QPushButton *ok = buttons->addButton(QStringLiteral("&Kész"), QDialogButtonBox::AcceptRole);
    QPushButton *cancel = buttons->addButton(QStringLiteral("&Mégse"), QDialogButtonBox::RejectRole);

    explicit InputForm(const QLocale &locale = kDot)
    {
        auto *const column = new QVBoxLayout(&dialog);
        for (QWidget *w : std::initializer_list<QWidget *>{before, box, after, buttons}) column->addWidget(w);
        box->setLocale(locale);
        QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
        QObject::connect(box, &usInputBox::Change, box, [this](double &value) {
            raised << QStringLiteral("Change ") + QString::number(value, 'g', 15);
        });
    }
    InputForm &decimals(double min, double max, const char *format = "0.00")
    {
        box->setInputType(3);
        box->setFormatString(QString::fromUtf8(format));
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
