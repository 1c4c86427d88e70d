#include "dialogs/viewtools/frmShowfields.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"
#include "support/Same.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using tests::PlainGrid;

namespace {

using F = frmShowfields;
using Act = std::function<void(F &)>;

QString dump(const F &d)
{
    QString out;
    for (const QListWidget *list : {d.lstAvail, d.lstVisible}) {
        if (list == d.lstVisible) out += u'|';
        for (int row = 0; row < list->count(); ++row)
            out += (list->item(row) == list->currentItem() ? u'*' : u' ') + list->item(row)->text();
    }
    return out;
}
Act current(QListWidget *const F::*list, int row)
{
    return [=](F &d) { (d.*list)->setCurrentRow(row); };
}
Act click(QPushButton *const F::*button)
{
    return [=](F &d) { (d.*button)->click(); };
}
Act doubleClick(QListWidget *const F::*list, int row)
{
    return [=](F &d) {
        const QPoint at = (d.*list)->visualItemRect((d.*list)->item(row)).center();
        QTest::mouseClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
    };
}
Act key(Qt::Key k)
{
    return [=](F &d) {
        d.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QTest::keyClick(&d, k, Qt::AltModifier);
    };
}

struct Deed {
    const char *name;
    std::vector<Act> acts;
    const char *shown, *written;                ///< of columns A B C D E, the grid shows D, A, C
};
const Deed kDeeds[] = {
    {"as it was", {}, "*B E|*D A C", "show 3 0 2"},
    {"add goes to the end", {click(&F::cmdAdd)}, "*E| D A C*B", "show 3 0 2 1"},
    {"add all", {click(&F::cmdAdd), click(&F::cmdAdd), click(&F::cmdAdd)}, "| D A C B*E", "show 3 0 2 1 4"},
    {"double click adds", {doubleClick(&F::lstAvail, 1)}, "*B| D A C*E", "show 3 0 2 4"},
    {"double click removes", {doubleClick(&F::lstVisible, 0)}, " B E*D|*A C", "show 0 2"},
    {"remove", {current(&F::lstVisible, 1), click(&F::cmdRemove)}, " B E*A| D*C", "show 3 2"},
    {"remove all", std::vector<Act>(4, click(&F::cmdRemove)), " B E D A*C|", "show "},
    {"up", {current(&F::lstVisible, 2), click(&F::cmdUp)}, "*B E| D*C A", "show 3 2 0"},
    {"up at the top", {click(&F::cmdUp)}, "*B E|*D A C", "show 3 0 2"},
    {"down to the bottom", std::vector<Act>(3, click(&F::cmdDown)), "*B E| A C*D", "show 0 2 3"},
    {"by keys", {key(Qt::Key_Down), key(Qt::Key_Down), key(Qt::Key_Up)}, "*B E| A*D C", "show 0 3 2"},
};

} // namespace

class tst_frmShowfields : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void listsAreFilledWorkedOnAndWritten()
    {
        for (const Deed &deed : kDeeds) {
            PlainGrid grid({"A", "B", "C", "D", "E"});
            grid.shown = {3, 0, 2};
            bool confirmed = false;
            const auto watch = tests::whileModal<F>([&](F &d) {
                for (const Act &act : deed.acts) act(d);
                tests::same(deed.name, dump(d), deed.shown);
                d.cmdOk->click();
            });
            F().ShowFields(grid, confirmed);
            QVERIFY(confirmed);
            tests::same(deed.name, grid.written, {deed.written});
        }
    }
    void cancelSaysSoAndLeavesTheGridAlone()
    {
        PlainGrid grid({"A", "B"});
        bool confirmed = true;
        const auto watch = tests::whileModal<F>([](F &d) {
            d.cmdRemove->click();
            QTest::keyClick(d.focusWidget(), Qt::Key_Escape);
        });
        F().ShowFields(grid, confirmed);
        QVERIFY(!confirmed);
        QCOMPARE(grid.written, QStringList());
    }
    void withoutColumnsNothingCanBeMoved()
    {
        PlainGrid grid{QStringList()};
        bool confirmed = false;
        const auto watch = tests::whileModal<F>([](F &d) {
            for (const QPushButton *b : {d.cmdAdd, d.cmdRemove, d.cmdUp, d.cmdDown}) QVERIFY(!b->isEnabled());
            d.cmdOk->click();
        });
        F().ShowFields(grid, confirmed);
        QVERIFY(confirmed);
    }
    void aLanguageChangeKeepsOrderAndShortcuts()
    {
        PlainGrid grid({"A", "B", "C"});
        bool confirmed = false;
        const auto watch = tests::whileModal<F>([&](F &d) {
            d.cmdDown->click();
            for (auto &c : grid.all) c.caption = c.caption.toLower();
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(dump(d), "| b*a c");
            key(Qt::Key_Down)(d);
            d.cmdOk->click();
        });
        F().ShowFields(grid, confirmed);
        QCOMPARE(grid.written, QStringList{"show 1 2 0"});
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_frmShowfields)
#include "tst_frmShowfields.moc"
