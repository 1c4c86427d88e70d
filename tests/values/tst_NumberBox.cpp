#include "dialogs/values/NumberBox.h"

#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Act = std::function<void(NumberBox &)>;
using Answer = QList<double>;              // none = cancelled
Q_DECLARE_METATYPE(Act)

namespace {

NumberQuestion renumbering()
{
    return {QStringLiteral("Átsorszámozás"),
            QStringLiteral("A kiválasztott rétegek átsorszámozása"),
            {{.label = QStringLiteral("Kezdő sorszám"), .preset = 101, .min = 1, .max = 32767},
             {.label = QStringLiteral("Növekmény"), .preset = 1, .min = -10, .max = 10}}};
}

NumberQuestion letterSize()
{
    NumberField size{.label = QStringLiteral("Nagyság="), .preset = 2.5, .min = 0.01, .max = 100};
    size.decimals = 2;
    size.unit = QStringLiteral("mm");
    size.presets = {1.8, 2.5, 3.5};
    return {QStringLiteral("Betűnagyság"), QStringLiteral("Mekkora?"), {size}};
}

Answer answered(const NumberQuestion &question)
{
    const auto numbers = prompts().numbers(question);
    return numbers ? Answer(numbers->begin(), numbers->end()) : Answer();
}

Act typed(const char *keys)
{
    return [=](NumberBox &box) { type(box, QString::fromUtf8(keys)); };
}

QLineEdit &line(NumberBox &box, int field)
{
    return *box.findChildren<QComboBox *>(QStringLiteral("txtCombo")).at(field)->lineEdit();
}

} // namespace

class tst_NumberBox : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }
    void twoNumbersAreConfirmedOrNone_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("as proposed") << typed("\r") << Answer({101, 1});
        QTest::newRow("typing replaces the proposal") << typed("7\t-3\r") << Answer({7, -3});
        QTest::newRow("escape") << typed("7\t3\x1b") << Answer();
        QTest::newRow("cancel") << Act([](NumberBox &box) { child<QPushButton>(box, "cmdCancel").click(); })
                                << Answer();
        QTest::newRow("OK") << Act([](NumberBox &box) {
            type(box, QStringLiteral("32 767"));
            child<QPushButton>(box, "cmdOk").click();
        }) << Answer({32767, 1});
        QTest::newRow("a refused number is typed again") << typed("0\r5\r") << Answer({5, 1});
        QTest::newRow("nothing is no number") << typed("\b\r5\r") << Answer({5, 1});
        QTest::newRow("Enter leads to the refused number behind") << typed("7\t99\r9\r") << Answer({7, 9});
        QTest::newRow("Enter leads back to the refused number") << typed("0\t5\r3\r") << Answer({3, 5});
        QTest::newRow("the label's key leads to its number") << Act([](NumberBox &box) {
            QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
            type(box, QStringLiteral("4\r"));
        }) << Answer({101, 4});
    }
    void twoNumbersAreConfirmedOrNone()
    {
        QFETCH(Act, act);
        const auto watch = whileModal<NumberBox>(act);
        QTEST(answered(renumbering()), "answer");
    }
    void aRefusalStandsBesideItsNumberAndLosesNothing()
    {
        const auto watch = whileModal<NumberBox>([](NumberBox &box) {
            type(box, QStringLiteral("70000\t2"));
            const auto hints = box.findChildren<QLabel *>(QStringLiteral("lblHint"));
            const QString refused = QStringLiteral("A szám túl nagy.\nMegengedett: 1\u00a0–\u00a032767");
            QCOMPARE(hints.at(0)->text(), refused);
            QCOMPARE(hints.at(1)->text(), QStringLiteral("Megengedett: -10\u00a0–\u00a010"));
            QCOMPARE(line(box, 0).accessibleDescription(), refused);
            QCOMPARE(line(box, 0).accessibleName(), QStringLiteral("Kezdő sorszám"));
            QVERIFY(line(box, 0).actions().first()->isVisible());
            QVERIFY(!line(box, 1).actions().first()->isVisible());
            child<QPushButton>(box, "cmdOk").click();
            QVERIFY(box.isVisible());
            QCOMPARE(box.focusWidget(), line(box, 0).parentWidget());
            QCOMPARE(line(box, 0).selectedText(), QStringLiteral("70000"));
            QCOMPARE(line(box, 1).text(), QStringLiteral("2"));
            type(box, QStringLiteral("7"));
            QCOMPARE(hints.at(0)->text(), QStringLiteral("Megengedett: 1\u00a0–\u00a032767"));
            box.reject();
        });
        QVERIFY(!prompts().numbers(renumbering()));
    }
    void presetsAreOfferedBesideTyping_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Answer>("answer");
        const auto press = [](Qt::Key key) {
            return Act([=](NumberBox &box) {
                QTest::keyClick(box.focusWidget(), key);
                type(box, QStringLiteral("\r"));
            });
        };
        QTest::newRow("as proposed") << typed("\r") << Answer({2.5});
        QTest::newRow("the next one") << press(Qt::Key_Down) << Answer({3.5});
        QTest::newRow("the one before") << press(Qt::Key_Up) << Answer({1.8});
        QTest::newRow("none of them") << typed("2,75\r") << Answer({2.75});
        QTest::newRow("with its unit") << typed("2.75 mm\r") << Answer({2.75});
        QTest::newRow("the beginning of one") << typed("3\r") << Answer({3});
        QTest::newRow("the wheel over it changes nothing") << Act([](NumberBox &box) {
            auto &list = child<QComboBox>(box, "txtCombo");
            child<QPushButton>(box, "cmdOk").setFocus();
            QWheelEvent wheel(QPointF(3, 3), list.mapToGlobal(QPointF(3, 3)), {}, {0, -120}, {}, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(&list, &wheel);
            type(box, QStringLiteral("\r"));
        }) << Answer({2.5});
    }
    void presetsAreOfferedBesideTyping()
    {
        QFETCH(Act, act);
        const auto watch = whileModal<NumberBox>(act);
        QTEST(answered(letterSize()), "answer");
    }
    void aProposalOutOfBoundsIsShownAndRefused()
    {
        const auto watch = whileModal<NumberBox>([](NumberBox &box) {
            QCOMPARE(line(box, 0).text(), QStringLiteral("32768"));
            type(box, QStringLiteral("\r"));
            QVERIFY(box.isVisible());
            type(box, QStringLiteral("32767\r"));
        });
        NumberQuestion question = renumbering();
        question.fields.front().preset = 32768;
        QCOMPARE(answered(question), Answer({32767, 1}));
    }
};
QVDC_TEST(tst_NumberBox)
#include "tst_NumberBox.moc"
