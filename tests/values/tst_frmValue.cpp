#include "dialogs/values/frmValue.h"
#include "rules/NumberWording.h"

#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

using namespace tests;

namespace {

using Act = std::function<void(frmValue &)>;
using Answer = QList<double>;              // none = cancelled

NumberQuestion renumbering()
{
    return {"Átsorszámozás", "A kiválasztott rétegek átsorszámozása",
            {{.label = "Kezdő sorszám", .preset = 101, .min = 1, .max = 32767},
             {.label = "Növekmény", .preset = 1, .min = -10, .max = 10}}};
}

NumberQuestion letterSize()
{
    NumberField size{.label = "Nagyság=", .preset = 2.5, .min = 0.01, .max = 100};
    size.decimals = 2;
    size.unit = "mm";
    size.presets = {1.8, 2.5, 3.5};
    return {"Betűnagyság", "Mekkora?", {size}};
}

Answer answered(const NumberQuestion &question)
{
    const auto numbers = prompts().numbers(question);
    return numbers ? Answer(numbers->begin(), numbers->end()) : Answer();
}

Act typed(const char *keys)
{
    return [=](frmValue &box) { type(box, keys); };
}

QLineEdit &line(frmValue &box, int field)
{
    return *box.findChildren<QComboBox *>("txtCombo").at(field)->lineEdit();
}

} // namespace

class tst_frmValue : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }
    void twoNumbersAreConfirmedOrNone()
    {
        const std::pair<Act, Answer> rows[] = {
            {typed("\r"), {101, 1}}, {typed("7\t-3\r"), {7, -3}}, {typed("7\t3\x1b"), {}},
            {typed("0\r5\r"), {5, 1}}, {typed("\b\r5\r"), {5, 1}}, // a refused number is typed again
            {typed("7\t99\r9\r"), {7, 9}}, {typed("0\t5\r3\r"), {3, 5}}, // Enter leads to it
            {[](frmValue &box) {
                 type(box, "32 767");
                 child<QPushButton>(box, "cmdOk").click();
             }, {32767, 1}},
            {[](frmValue &box) {
                 QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier); // the label's key
                 type(box, "4\r");
             }, {101, 4}}};
        for (const auto &[act, answer] : rows) {
            const auto watch = whileModal<frmValue>(act);
            QCOMPARE(answered(renumbering()), answer);
        }
    }
    void aRefusalStandsBesideItsNumberAndLosesNothing()
    {
        const auto watch = whileModal<frmValue>([](frmValue &box) {
            type(box, "70000\t2");
            const auto hints = box.findChildren<QLabel *>("lblHint");
            const QString refused = "A szám túl nagy.\nMegengedett: 1\u00a0–\u00a032767";
            QCOMPARE(hints.at(0)->text(), refused);
            QCOMPARE(hints.at(1)->text(), "Megengedett: -10\u00a0–\u00a010");
            QCOMPARE(line(box, 0).accessibleDescription(), refused);
            QCOMPARE(line(box, 0).accessibleName(), "Kezdő sorszám");
            QVERIFY(line(box, 0).actions().first()->isVisible());
            QVERIFY(!line(box, 1).actions().first()->isVisible());
            child<QPushButton>(box, "cmdOk").click();
            QVERIFY(box.isVisible());
            QCOMPARE(box.focusWidget(), line(box, 0).parentWidget());
            QCOMPARE(line(box, 0).selectedText(), "70000");
            QCOMPARE(line(box, 1).text(), "2");
            type(box, "7");
            QCOMPARE(hints.at(0)->text(), "Megengedett: 1\u00a0–\u00a032767");
            box.reject();
        });
        QVERIFY(!prompts().numbers(renumbering()));
    }
    void presetsAreOfferedBesideTyping()
    {
        const auto press = [](Qt::Key key) {
            return Act([=](frmValue &box) {
                QTest::keyClick(box.focusWidget(), key);
                type(box, "\r");
            });
        };
        const std::pair<Act, Answer> rows[] = {
            {typed("\r"), {2.5}}, {press(Qt::Key_Down), {3.5}}, {press(Qt::Key_Up), {1.8}},
            {typed("2,75\r"), {2.75}}, {typed("2.75 mm\r"), {2.75}}, {typed("3\r"), {3}}};
        for (const auto &[act, answer] : rows) {
            const auto watch = whileModal<frmValue>(act);
            QCOMPARE(answered(letterSize()), answer);
        }
    }
    void aRefusalSaysWhyAndNamesTheBounds()
    {
        const std::tuple<const char *, int, const char *> rows[] = { // decimals, and why; empty = taken
            {"-1,5", 2, ""}, {"100", 2, ""}, {"0,12", 2, ""}, {"0,1200", 2, ""}, {"1,0", 0, ""},
            {"-1,51", 2, "A szám túl kicsi."}, {"100,01", 2, "A szám túl nagy."},
            {"0,125", 2, "A tizedesjegyek száma legfeljebb 2."}, {"1,5", 0, "Egész számot írj be!"},
            {"x", 0, "Írj be egy számot!"}};
        for (const auto &[typed, decimals, why] : rows) {
            const NumberField field{.min = -1.5, .max = 100, .decimals = decimals, .unit = "mm"};
            QString refusal = refusalFor(QString(typed), field);
            refusal.replace(QChar(0xa0), u' ');
            const QString bounds = decimals ? "-1,5 – 100 mm" : "-2 – 100 mm";
            same(typed, refusal, *why ? QString(why) + "\nMegengedett: " + bounds : QString());
        }
    }
    void aProposalOutOfBoundsIsShownAndRefused()
    {
        const auto watch = whileModal<frmValue>([](frmValue &box) {
            QCOMPARE(line(box, 0).text(), "32768");
            type(box, "\r");
            QVERIFY(box.isVisible());
            type(box, "32767\r");
        });
        NumberQuestion question = renumbering();
        question.fields.front().preset = 32768;
        QCOMPARE(answered(question), Answer({32767, 1}));
    }
};
QVDC_TEST(tst_frmValue)
#include "tst_frmValue.moc"
