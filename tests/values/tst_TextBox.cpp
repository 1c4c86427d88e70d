#include "dialogs/values/TextBox.h"

#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

#include <QLineEdit>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Act = std::function<void(TextBox &)>;
Q_DECLARE_METATYPE(Act)

namespace {

Act typed(const char *keys)
{
    return [=](TextBox &box) { type(box, QString::fromUtf8(keys)); };
}

Act pressed(Qt::Key key)
{
    return [=](TextBox &box) {
        QTest::keyClick(box.focusWidget(), key);
        if (box.isVisible()) type(box, QStringLiteral("\r"));
    };
}

} // namespace

class tst_TextBox : public QObject {
    Q_OBJECT
private slots:
    void theAnswerIsWhatStandsInTheLine_data()
    {
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("answer");        // null = cancelled
        const QStringList plain, offered{"Gáz", "Épület", "Út"};
        const QString preset = QStringLiteral("Épület");
        for (const auto &[kind, items] : {std::pair("line", plain), {"drop-down", offered}}) {
            const auto row = [&](const char *name, const Act &act, const QString &answer) {
                QTest::addRow("%s: %s", kind, name) << items << act << answer;
            };
            row("the proposal at once", typed("\r"), preset);
            row("typing replaces the proposal", typed("őrház\r"), QStringLiteral("őrház"));
            row("the beginning of the proposal stays as typed", typed("é\r"), QStringLiteral("é"));
            row("nothing is an answer", pressed(Qt::Key_Delete), QStringLiteral(""));
            row("escape", typed("7\x1b"), QString());
            row("cancel", [](TextBox &box) { child<QPushButton>(box, "cmdCancel").click(); }, QString());
        }
        QTest::newRow("the next offered") << offered << pressed(Qt::Key_Down) << QStringLiteral("Út");
        QTest::newRow("the one before") << offered << pressed(Qt::Key_Up) << QStringLiteral("Gáz");
    }
    void theAnswerIsWhatStandsInTheLine()
    {
        QFETCH(QStringList, offered);
        QFETCH(Act, act);
        QFETCH(QString, answer);
        const QString asked = QStringLiteral("A keresett érték:");
        const auto watch = whileModal<TextBox>([&](TextBox &box) {
            QCOMPARE(child<QLineEdit>(box, "txtAnswer").accessibleName(), asked);
            act(box);
        });
        const auto given =
            prompts().text({QStringLiteral("Keresés"), asked, QStringLiteral("Épület"), offered});
        QCOMPARE(given.has_value(), !answer.isNull());
        QCOMPARE(given.value_or(QString()), answer);
    }
};
QVDC_TEST(tst_TextBox)
#include "tst_TextBox.moc"
