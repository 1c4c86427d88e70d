#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"
#include "support/Same.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>

using namespace QV_DOC_CONTROLS;
using tests::PlainGrid;
using tests::same;
using tests::whileModal;

namespace {

using Act = std::function<void(LevelDialog &)>;

/// What the dialog shows: per level the list's text and order, in brackets when it is closed.
QString dump(const LevelDialog &d)
{
    QStringList out;
    for (int level = 0; level < kMaxLevels; ++level) {
        const bool order = d.optOrder[2 * level]->isEnabled();
        const QString shown = d.cboGroups[level]->currentText()
                              + (!order ? QString() : d.optOrder[2 * level]->isChecked() ? "+" : "-");
        out << (d.cboGroups[level]->isEnabled() ? shown : u'[' + shown + u']');
    }
    return out.join(u' ');
}
Act choose(int level, const char *text)
{
    return [=](LevelDialog &d) { d.cboGroups[level]->setCurrentText(text); };
}
Act descending(int level)
{
    return [=](LevelDialog &d) { d.optOrder[2 * level + 1]->click(); };
}
const Act kClear = [](LevelDialog &d) { d.cmdClearAll->click(); };

struct Deed {
    const char *name, *before;
    std::vector<Act> acts;
    const char *shown, *after;
};
const Deed kDeeds[] = {
    {"nothing set", "", {}, "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]", ""},
    {"as it was", "-1 +0 +4 -2", {}, "Név- Szám+ Látható+ Szín-", "-1 +0 +4 -2"},
    {"ascending by default", "", {choose(0, "Név")}, "Név+ (Nincs) [(Nincs)] [(Nincs)]", "+1"},
    {"a level more", "+1", {choose(1, "Szín"), descending(1)}, "Név+ Szín- (Nincs) [(Nincs)]", "+1 -2"},
    {"another column keeps the order",
     "-1 +0",
     {choose(0, "Szín")},
     "Szín- Szám+ (Nincs) [(Nincs)]",
     "-2 +0"},
    {"a level without column takes those below along",
     "-1 -0 -4",
     {choose(1, "(Nincs)")},
     "Név- (Nincs) [(Nincs)] [(Nincs)]",
     "-1"},
    {"a column chosen again starts ascending",
     "-1 -0",
     {choose(0, "(Nincs)"), choose(0, "Név"), choose(1, "Szám")},
     "Név+ Szám+ (Nincs) [(Nincs)]",
     "+1 +0"},
    {"cleared", "-1 +0 +4 -2", {kClear}, "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]", ""},
};

/// What a grid has been told after that work in the three ways that the two dialogs are opened.
template <class Work> QStringList writtenBy(PlainGrid grid, const Work &work)
{
    const auto onSort = whileModal<frmSort>(work);
    frmSort().SortGrid(grid);
    const auto onGroup = whileModal<frmGroupBy>(work);
    frmGroupBy().GroupGrid(grid);
    const auto onGroup2 = whileModal<frmGroupBy>(work);
    frmGroupBy().GroupGrid2(grid);
    return grid.written;
}

} // namespace

class tst_LevelDialogs : public QObject {
    Q_OBJECT
private:
    static PlainGrid grid(const char *keys)
    {
        PlainGrid plain({"Szám", "Név", "Szín", "Vastagság", "Látható"});
        plain.sort = plain.groups = PlainGrid::keys(keys);
        return plain;
    }
    /// What the sort dialog has made of the keys after that work and OK.
    template <class Work> static QStringList sorted(PlainGrid &plain, const Work &work)
    {
        const auto onSort = whileModal<frmSort>([&](frmSort &d) {
            work(d);
            d.cmdOk->click();
        });
        frmSort().SortGrid(plain);
        return plain.written;
    }

private slots:
    void init() { setLanguage(Hungarian, {}); }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void theGridsKeysAreShownAndTheChosenOnesWritten()
    {
        for (const Deed &deed : kDeeds) {
            PlainGrid plain = grid(deed.before);
            const QStringList written = sorted(plain, [&](LevelDialog &d) {
                for (const Act &act : deed.acts) act(d);
                same(deed.name, dump(d), deed.shown);
            });
            same(deed.name, written, {QString("sort ") + deed.after});
        }
    }
    void groupsAreWrittenWithTheirState()
    {
        const QStringList all = writtenBy(grid(""), [](LevelDialog &d) {
            choose(0, "Szám")(d);
            d.cmdOk->click();
        });
        QCOMPARE(all, QStringList({"sort +0", "group +0", "expand", "group +0"}));
        const QStringList cleared = writtenBy(PlainGrid{QStringList()}, [](LevelDialog &d) {
            QCOMPARE(d.cboGroups[0]->count(), 1);
            d.cmdOk->click();
        });
        QCOMPARE(cleared, QStringList({"sort ", "group ", "expand", "group "}));
        PlainGrid plain = grid("+0");
        const auto onGroup = whileModal<frmGroupBy>([](frmGroupBy &d) {
            d.cboState->setCurrentIndex(1);
            d.cmdOk->click();
        });
        QVERIFY(frmGroupBy().GroupGrid(plain));
        QCOMPARE(plain.written, QStringList({"group +0", "collapse"}));
        const auto onGroup2 = whileModal<frmGroupBy>([](frmGroupBy &d) {
            QVERIFY(d.cboState->isHidden() && d.lblState->isHidden());
            d.reject();
        });
        QVERIFY(!frmGroupBy().GroupGrid2(plain));
    }
    void whateverIsNoOkLeavesTheGridAlone()
    {
        const Act leaves[] = {[](LevelDialog &d) { d.cmdCancel->click(); },
                              [](LevelDialog &d) { QTest::keyClick(d.focusWidget(), Qt::Key_Escape); },
                              [](LevelDialog &d) { d.close(); }};
        for (const Act &leave : leaves)
            QCOMPARE(writtenBy(grid("-1"), [&](LevelDialog &d) { kClear(d), leave(d); }), QStringList());
    }
    void keysServeFromTheFirstField()
    {
        PlainGrid plain = grid("+0 +1");
        const auto onSort = whileModal<frmSort>([](frmSort &d) {
            QCOMPARE(d.focusWidget(), d.cboGroups[0]);
            QTest::keyClick(&d, Qt::Key_2, Qt::AltModifier);
            QCOMPARE(d.focusWidget(), d.cboGroups[1]);
            QTest::keyClick(d.focusWidget(), Qt::Key_Down);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        });
        QVERIFY(frmSort().SortGrid(plain));
        QCOMPARE(plain.written, QStringList{"sort +0 +2"});
    }
    /// Arrow keys on a closed list pass over what another level has.
    void aColumnServesOneLevel()
    {
        PlainGrid plain = grid("+0 +1");
        plain.all[2].longCaption = "A réteg színe";
        const QStringList written = sorted(plain, [](frmSort &d) {
            QTest::keyClick(d.cboGroups[0], Qt::Key_Down);
            QCOMPARE(d.cboGroups[0]->currentText(), "A réteg színe");
            const auto *entries = qobject_cast<QStandardItemModel *>(d.cboGroups[1]->model());
            QVERIFY(!entries->item(3)->isEnabled() && !entries->item(3)->toolTip().isEmpty());
            QVERIFY(entries->item(1)->isEnabled()); // free again
            QCOMPARE(d.cboGroups[0]->itemData(2).toInt(), 2); // columns count from one
        });
        QCOMPARE(written, QStringList{"sort +2 +1"});
    }
    void aLanguageChangeKeepsWhatIsChosen()
    {
        PlainGrid plain = grid("-1");
        const QStringList written = sorted(plain, [&](frmSort &d) {
            plain.all[1].caption = "Name";
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(dump(d), "Name- (None) [(None)] [(None)]");
            QCOMPARE(d.cboGroups[0]->accessibleName(), "1. sort consideration");
            QCOMPARE(d.optOrder[1]->accessibleName(), "1. sort consideration: descendant");
        });
        QCOMPARE(written, QStringList{"sort -1"});
    }
};
QVDC_TEST(tst_LevelDialogs)
#include "tst_LevelDialogs.moc"
