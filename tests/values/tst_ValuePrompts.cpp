#include "facade/services/Prompts.h"

#include "facade/services/Language.h"
#include "kit/forms/AccessKeys.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Ask = std::function<void(const QString &title, const QString &text, QObject *asker)>;
Q_DECLARE_METATYPE(Ask)

namespace {

NumberQuestion number(const QString &title, const QString &text)
{
    return {title, text, {{.label = QStringLiteral("Sorszám"), .preset = 1, .min = 1, .max = 9}}};
}

} // namespace

class tst_ValuePrompts : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }
    void everyBoxIsTitledAskedPlainlyAndOwned_data()
    {
        QTest::addColumn<Ask>("ask");
        const auto row = [](const char *name, Ask ask) { QTest::newRow(name) << std::move(ask); };
        row("tell", [](auto &t, auto &q, QObject *o) { prompts().tell({Icon::Information, t, q}, o); });
        row("show", [](auto &t, auto &q, QObject *o) { prompts().show({t, q, {}}, o); });
        row("yesNo", [](auto &t, auto &q, QObject *o) { prompts().yesNo({Icon::Question, t, q}, o); });
        row("allYesNo", [](auto &t, auto &q, QObject *o) { prompts().allYesNo({Icon::Question, t, q}, o); });
        row("yesNoCancel",
            [](auto &t, auto &q, QObject *o) { prompts().yesNoCancel({Icon::Question, t, q}, o); });
        row("choose, two", [](auto &t, auto &q, QObject *o) { prompts().choose({t, q, {"a", "b"}}, o); });
        row("choose, five",
            [](auto &t, auto &q, QObject *o) { prompts().choose({t, q, {"a", "b", "c", "d", "e"}}, o); });
        row("text", [](auto &t, auto &q, QObject *o) { prompts().text({t, q, {}, {}}, o); });
        row("text, offered", [](auto &t, auto &q, QObject *o) { prompts().text({t, q, {}, {"a"}}, o); });
        row("numbers", [](auto &t, auto &q, QObject *o) { prompts().numbers(number(t, q), o); });
        row("colorIndex", [](auto &t, auto &q, QObject *o) { prompts().colorIndex({t, q, 0, {0, 1}}, o); });
    }
    void everyBoxIsTitledAskedPlainlyAndOwned()
    {
        QFETCH(Ask, ask);
        const QString title = QStringLiteral("Cím"), text = QStringLiteral("<b>Kő & Fa</b>?");
        QWidget window;
        auto *const inside = new QWidget(&window);
        for (const int language : {Hungarian, Romanian, Vietnamese, English}) {
            setLanguage(language, {});
            const auto watch = whileModal<QDialog>([&](QDialog &box) {
                QCOMPARE(box.windowTitle(), title);
                QCOMPARE(box.parentWidget(), &window);
                int asked = 0;
                QString keys;
                for (const auto *label : box.findChildren<QLabel *>()) {
                    if (label->text() == text)
                        asked += label->textFormat() == Qt::PlainText && !label->buddy();
                    else keys += accessKeyOf(label->text());
                }
                QCOMPARE(asked, 1);
                for (const auto *button : box.findChildren<QAbstractButton *>())
                    keys += accessKeyOf(button->text());
                keys.remove(QChar());
                for (const QChar key : keys) QVERIFY2(keys.count(key) == 1, qPrintable(keys));
                box.reject();
            });
            ask(title, text, inside);
        }
    }
};
QVDC_TEST(tst_ValuePrompts)
#include "tst_ValuePrompts.moc"
