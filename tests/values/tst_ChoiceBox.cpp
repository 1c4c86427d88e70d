#include "dialogs/values/ChoiceBox.h"

#include "support/Modal.h"
#include "support/Registry.h"

using namespace tests;

namespace {

using Act = std::function<void(ChoiceBox &)>;
using Answer = std::optional<int>;

Choice among(QStringList items, int preset = 1)
{
    Choice choice{"Réteg azonosítás", "Mi alapján?"};
    choice.items = std::move(items);
    choice.preset = preset;
    return choice;
}

const QStringList kTwo{"sorszám alapján", "név alapján"};
const QStringList kFour{"Alappont", "Épület", "Patak", "Szintvonal"};

Act pressed(std::initializer_list<Qt::Key> keys)
{
    return [keys = std::vector(keys)](ChoiceBox &box) {
        for (const Qt::Key key : keys) QTest::keyClick(box.focusWidget(), key);
    };
}
Act clicked(const char *option)
{
    return [=](ChoiceBox &box) {
        child<QRadioButton>(box, option).click();
        child<QPushButton>(box, "cmdOk").click();
    };
}
void doubleClickThird(ChoiceBox &box)
{
    auto &list = child<QListWidget>(box, "lstItems");
    const QPoint at = list.visualItemRect(list.item(2)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}
/// For a box that may have nothing to confirm.
void confirm(ChoiceBox &box)
{
    child<QPushButton>(box, "cmdOk").click();
    if (box.isVisible()) box.reject();
}

} // namespace

class tst_ChoiceBox : public QObject {
    Q_OBJECT
private slots:
    void oneIsChosenByKeyOrMouse()
    {
        const std::tuple<QStringList, Act, Answer, int> rows[] = { // the last is what is proposed
            {kTwo, pressed({Qt::Key_Return}), 1, 1}, {kTwo, pressed({Qt::Key_Up, Qt::Key_Return}), 0, 1},
            {kTwo, clicked("optItem0"), 0, 1}, {kTwo, pressed({Qt::Key_Up, Qt::Key_Escape}), {}, 1},
            {kFour, pressed({Qt::Key_Return}), 1, 1},
            {kFour, pressed({Qt::Key_S, Qt::Key_Return}), 3, 1}, // by its first letter
            {kFour, doubleClickThird, 2, 1},
            {kTwo, confirm, 0, -1}, {kFour, confirm, 3, 9},      // the nearest to the proposal
            {{}, confirm, {}, 0}};
        for (const auto &[items, act, answer, preset] : rows) {
            const auto watch = whileModal<ChoiceBox>(act);
            QCOMPARE(prompts().choose(among(items, preset)), answer);
        }
    }
    void threeShortItemsAreOptionsMoreAreAList()
    {
        using Items = std::pair<QStringList, QStringList>; // and as captioned; none = a list
        for (const auto &[items, captions] :
             {Items{kTwo, {"&sorszám alapján", "&név alapján"}},
              {{"A & B", "A", "<b>C</b>"}, {"A && &B", "&A", "<b>&C</b>"}},
              {{"A", QString(71, u'x')}, {}}, {kFour, {}}}) {
            const auto watch = whileModal<ChoiceBox>([&, items = items, captions = captions](ChoiceBox &box) {
                QStringList options, spoken;
                for (const auto *option : box.findChildren<QRadioButton *>()) {
                    options << option->text();
                    spoken << option->accessibleName();
                }
                QCOMPARE(options, captions);
                if (!options.isEmpty()) QCOMPARE(spoken, items);
                else QCOMPARE(child<QListWidget>(box, "lstItems").count(), items.size());
                box.reject();
            });
            prompts().choose(among(items));
        }
    }
};
QVDC_TEST(tst_ChoiceBox)
#include "tst_ChoiceBox.moc"
