#include "dialogs/values/ChoiceBox.h"

#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Act = std::function<void(ChoiceBox &)>;
using Answer = std::optional<int>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Answer)

namespace {

Choice among(QStringList items, int preset = 1)
{
    Choice choice{QStringLiteral("Réteg azonosítás"), QStringLiteral("Mi alapján?")};
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

} // namespace

class tst_ChoiceBox : public QObject {
    Q_OBJECT
private slots:
    void oneIsChosenByKeyOrMouse_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<Act>("act");
        QTest::addColumn<Answer>("answer");
        const auto row = [](const char *name, const QStringList &items, const Act &act, Answer answer) {
            QTest::newRow(name) << items << act << answer;
        };
        row("two: as proposed", kTwo, pressed({Qt::Key_Return}), 1);
        row("two: the other", kTwo, pressed({Qt::Key_Up, Qt::Key_Return}), 0);
        row("two: by mouse", kTwo,
            [](ChoiceBox &box) {
                child<QRadioButton>(box, "optItem0").click();
                child<QPushButton>(box, "cmdOk").click();
            },
            0);
        row("two: escape", kTwo, pressed({Qt::Key_Up, Qt::Key_Escape}), {});
        row("four: as proposed", kFour, pressed({Qt::Key_Return}), 1);
        row("four: the last", kFour, pressed({Qt::Key_End, Qt::Key_Return}), 3);
        row("four: by its first letter", kFour, pressed({Qt::Key_S, Qt::Key_Return}), 3);
        row("four: by double click", kFour,
            [](ChoiceBox &box) {
                auto &list = child<QListWidget>(box, "lstItems");
                const QPoint at = list.visualItemRect(list.item(2)).center();
                QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
                QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
            },
            2);
        row("four: cancel", kFour,
            [](ChoiceBox &box) { child<QPushButton>(box, "cmdCancel").click(); }, {});
    }
    void oneIsChosenByKeyOrMouse()
    {
        QFETCH(QStringList, items);
        QFETCH(Act, act);
        const auto watch = whileModal<ChoiceBox>(act);
        QTEST(prompts().choose(among(items)), "answer");
    }
    void threeShortItemsAreOptionsMoreAreAList_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QStringList>("options");   // as captioned; none = a list
        QTest::newRow("two") << kTwo << QStringList{"&sorszám alapján", "&név alapján"};
        QTest::newRow("three, names with signs") << QStringList{"A & B", "A", "<b>C</b>"}
                                                 << QStringList{"A && &B", "&A", "<b>&C</b>"};
        QTest::newRow("two, one too long for a button")
            << QStringList{"A", QString(71, u'x')} << QStringList();
        QTest::newRow("four") << kFour << QStringList();
    }
    void threeShortItemsAreOptionsMoreAreAList()
    {
        QFETCH(QStringList, items);
        const auto watch = whileModal<ChoiceBox>([&](ChoiceBox &box) {
            QStringList options, spoken;
            for (const auto *option : box.findChildren<QRadioButton *>()) {
                options << option->text();
                spoken << option->accessibleName();
            }
            QTEST(options, "options");
            if (!options.isEmpty()) QCOMPARE(spoken, items);
            else QCOMPARE(child<QListWidget>(box, "lstItems").count(), items.size());
            box.reject();
        });
        prompts().choose(among(items));
    }
    void aProposalThatIsNoItemIsTheNearestOne_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<int>("preset");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("two, below") << kTwo << -1 << Answer(0);
        QTest::newRow("four, above") << kFour << 9 << Answer(3);
        QTest::newRow("nothing to choose") << QStringList() << 0 << Answer();
    }
    void aProposalThatIsNoItemIsTheNearestOne()
    {
        QFETCH(QStringList, items);
        QFETCH(int, preset);
        const auto watch = whileModal<ChoiceBox>([](ChoiceBox &box) {
            child<QPushButton>(box, "cmdOk").click();
            if (box.isVisible()) box.reject();
        });
        QTEST(prompts().choose(among(items, preset)), "answer");
    }
};
QVDC_TEST(tst_ChoiceBox)
#include "tst_ChoiceBox.moc"
