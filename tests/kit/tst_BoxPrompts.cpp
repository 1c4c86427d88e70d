#include "facade/services/Prompts.h"

#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QMessageBox>

using namespace tests;

namespace {

using Act = std::function<void(QMessageBox &)>;
enum Kind { YesNo, All, Cancel };

QString answered(Kind kind, Icon icon)
{
    const Message question{icon, "Réteg törlés", "Törlöd?"};
    const auto said = [](bool yes) { return yes ? "yes" : "no"; };
    if (kind == YesNo) return said(prompts().yesNo(question));
    if (kind == Cancel) {
        const auto answer = prompts().yesNoCancel(question);
        return answer ? said(*answer) : "cancelled";
    }
    const AllYesNo answer = prompts().allYesNo(question);
    return answer == AllYesNo::All ? "all" : said(answer == AllYesNo::Yes);
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
    void aQuestionIsAnswered()
    {
        const Act closed = [](QMessageBox &box) { box.close(); };
        const Act enter = press(Qt::Key_Return), escape = press(Qt::Key_Escape);
        const std::tuple<const char *, Kind, Act, const char *, Icon> rows[] = {
            {"Enter", YesNo, enter, "yes", Icon::Question},
            {"Enter at a warning", YesNo, enter, "no", Icon::Exclamation},
            {"Escape", YesNo, escape, "no", Icon::Question},
            {"closed", YesNo, closed, "no", Icon::Question},
            {"Yes", YesNo, click("cmdYes"), "yes", Icon::Exclamation},
            {"No", YesNo, click("cmdNo"), "no", Icon::Question},
            {"all: Enter", All, enter, "no", Icon::Question},
            {"all: Escape", All, escape, "no", Icon::Question},
            {"all: closed", All, closed, "no", Icon::Question},
            {"all: All", All, click("cmdAll"), "all", Icon::Question},
            {"all: Yes", All, click("cmdYes"), "yes", Icon::Question},
            {"cancel: Enter", Cancel, enter, "yes", Icon::Question},
            {"cancel: Enter at a warning", Cancel, enter, "cancelled", Icon::Exclamation},
            {"cancel: Escape", Cancel, escape, "cancelled", Icon::Question},
            {"cancel: closed", Cancel, closed, "cancelled", Icon::Question},
            {"cancel: No", Cancel, click("cmdNo"), "no", Icon::Question},
            {"cancel: Cancel", Cancel, click("cmdCancel"), "cancelled", Icon::Question}};
        for (const auto &[name, kind, act, answer, icon] : rows) {
            const auto watch = whileModal<QMessageBox>(act);
            same(name, answered(kind, icon), answer);
        }
    }
    void theAnswersAreInTheUsersLanguage()
    {
        setLanguage(Vietnamese, {});
        const auto watch = whileModal<QMessageBox>([](QMessageBox &box) {
            QStringList captions;
            for (const char *name : {"cmdAll", "cmdYes", "cmdNo"})
                captions << child<QPushButton>(box, name).text();
            QCOMPARE(captions, QStringList({"&Tất cả", "&Có", "&Không"}));
            box.close();
        });
        answered(All, Icon::Question);
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_BoxPrompts)
#include "tst_BoxPrompts.moc"
