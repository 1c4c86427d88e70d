#include "facade/services/Prompts.h"

#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QMessageBox>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Act = std::function<void(QMessageBox &)>;
Q_DECLARE_METATYPE(Act)

namespace {

Message asking(Icon icon) { return {icon, QStringLiteral("Réteg törlés"), QStringLiteral("Törlöd?")}; }

QString answered(const QByteArray &kind, Icon icon)
{
    const auto said = [](bool yes) { return yes ? QStringLiteral("yes") : QStringLiteral("no"); };
    if (kind == "yesNo") return said(prompts().yesNo(asking(icon)));
    if (kind == "yesNoCancel") {
        const auto answer = prompts().yesNoCancel(asking(icon));
        return answer ? said(*answer) : QStringLiteral("cancelled");
    }
    const AllYesNo answer = prompts().allYesNo(asking(icon));
    return answer == AllYesNo::All ? QStringLiteral("all") : said(answer == AllYesNo::Yes);
}

Act press(Qt::Key key)
{
    return [=](QMessageBox &box) { QTest::keyClick(box.focusWidget(), key); };
}
Act click(const char *name)
{
    return [=](QMessageBox &box) { child<QPushButton>(box, name).click(); };
}

} // namespace

class tst_BoxPrompts : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }
    void aQuestionIsAnswered_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<int>("icon");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("answer");
        const auto row = [](const char *kind, const char *how, const Act &act, const char *answer,
                            Icon icon = Icon::Question) {
            QTest::addRow("%s: %s", kind, how)
                << QByteArray(kind) << int(icon) << act << QString::fromLatin1(answer);
        };
        const Act closed = [](QMessageBox &box) { box.close(); };
        const Act enter = press(Qt::Key_Return), escape = press(Qt::Key_Escape);
        row("yesNo", "Enter", enter, "yes");
        row("yesNo", "Enter, at a warning", enter, "no", Icon::Exclamation);
        row("yesNo", "Escape", escape, "no");
        row("yesNo", "closed", closed, "no");
        row("yesNo", "Igen", click("cmdYes"), "yes");
        row("yesNo", "Nem", click("cmdNo"), "no");
        row("allYesNo", "Enter", enter, "no");
        row("allYesNo", "Escape", escape, "no");
        row("allYesNo", "closed", closed, "no");
        row("allYesNo", "Mind", click("cmdAll"), "all");
        row("allYesNo", "Igen", click("cmdYes"), "yes");
        row("yesNoCancel", "Enter", enter, "yes");
        row("yesNoCancel", "Enter, at a warning", enter, "cancelled", Icon::Exclamation);
        row("yesNoCancel", "Escape", escape, "cancelled");
        row("yesNoCancel", "closed", closed, "cancelled");
        row("yesNoCancel", "Nem", click("cmdNo"), "no");
        row("yesNoCancel", "Mégse", click("cmdCancel"), "cancelled");
    }
    void aQuestionIsAnswered()
    {
        QFETCH(QByteArray, kind);
        QFETCH(int, icon);
        QFETCH(Act, act);
        const auto watch = whileModal<QMessageBox>(act);
        QTEST(answered(kind, Icon(icon)), "answer");
    }
    void theAnswersAreInTheUsersLanguage_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("hu") << int(Hungarian) << QStringList{"&Mind", "&Igen", "&Nem"};
        QTest::newRow("ro") << int(Romanian) << QStringList{"&Toate", "&Da", "&Nu"};
        QTest::newRow("vi") << int(Vietnamese) << QStringList{"&Tất cả", "&Có", "&Không"};
        QTest::newRow("en") << int(English) << QStringList{"&All", "&Yes", "&No"};
    }
    void theAnswersAreInTheUsersLanguage()
    {
        QFETCH(int, language);
        setLanguage(language, {});
        const auto watch = whileModal<QMessageBox>([](QMessageBox &box) {
            QStringList captions;
            for (const char *name : {"cmdAll", "cmdYes", "cmdNo"})
                captions << child<QPushButton>(box, name).text();
            QTEST(captions, "captions");
            box.close();
        });
        prompts().allYesNo(asking(Icon::Question));
    }
};
QVDC_TEST(tst_BoxPrompts)
#include "tst_BoxPrompts.moc"
