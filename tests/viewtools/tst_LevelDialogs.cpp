#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "kit/grid/Grid.h"
#include "kit/grid/SampleRows.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QStandardItemModel>

using namespace tests;

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
    const char *name, *before;                  ///< keys: "+0 -1" = by Szám, then by Név, descending
    std::vector<Act> acts;
    const char *shown, *after;
};
const Deed kDeeds[] = {
    {"nothing set", "", {}, "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]", ""},
    {"as it was", "-1 +0 +3 -2", {}, "Név- Sorszám+ Vonaltípus+ Látható-", "-1 +0 +3 -2"},
    {"ascending by default", "", {choose(0, "Név")}, "Név+ (Nincs) [(Nincs)] [(Nincs)]", "+1"},
    {"a level more", "+1", {choose(1, "Szín"), descending(1)}, "Név+ Szín- (Nincs) [(Nincs)]", "+1 -4"},
    {"another column keeps the order", "-1", {choose(0, "Szín")}, "Szín- (Nincs) [(Nincs)] [(Nincs)]", "-4"},
    {"a level without column takes those below along", "-1 -0 -4", {choose(1, "(Nincs)")},
     "Név- (Nincs) [(Nincs)] [(Nincs)]", "-1"},
    {"a column chosen again starts ascending", "-1 -0",
     {choose(0, "(Nincs)"), choose(0, "Név"), choose(1, "Szín")}, "Név+ Szín+ (Nincs) [(Nincs)]", "+1 +4"},
    {"cleared", "-1 +0 +3 -2", {kClear}, "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]", ""},
};

std::vector<SortKey> keys(const QString &text)
{
    std::vector<SortKey> out;
    for (const QString &k : text.split(u' ', Qt::SkipEmptyParts))
        out.push_back({k.mid(1).toInt(), k[0] == u'+' ? SortOrder::Ascending : SortOrder::Descending});
    return out;
}

/// A grid of six rows with the same keys for order and groups, and what the dialogs make of it.
struct Sorted {
    tests::SampleRows rows{{"a", "b", "c", "d", "e", "f"}};
    Grid grid;
    explicit Sorted(const char *text = "")
    {
        grid.setSource(&rows);
        grid.setSortKeys(keys(text));
        grid.setGroupLevels(keys(text));
    }
    int lines() const { return grid.table()->model()->rowCount(); }
    /// Works on the dialog that the call opens.
    template <class Dialog, class Rows, class Work> bool work(bool (Dialog::*call)(Rows &), const Work &act)
    {
        const auto open = whileModal<Dialog>(act);
        return (Dialog().*call)(grid);
    }
    template <class Work> bool sort(const Work &act) { return work(&frmSort::SortGrid, act); }
    template <class Work> bool group(const Work &act) { return work(&frmGroupBy::GroupGrid, act); }
    template <class Work> bool group2(const Work &act) { return work(&frmGroupBy::GroupGrid2, act); }
};

} // namespace

class tst_LevelDialogs : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void theGridsKeysAreShownAndTheChosenOnesWritten()
    {
        for (const Deed &deed : kDeeds) {
            Sorted s(deed.before);
            const auto work = [&](LevelDialog &d) {
                for (const Act &act : deed.acts) act(d);
                same(deed.name, dump(d), deed.shown);
                d.cmdOk->click();
            };
            QVERIFY(s.sort(work) && s.group(work));
            QVERIFY2(s.grid.sortKeys() == keys(deed.after), deed.name);
            QVERIFY2(s.grid.groupLevels() == keys(deed.after), deed.name);
        }
    }
    void theStateOfGroupsIsChosenToo()
    {
        for (const int state : {0, 1}) {                // expanded, collapsed
            Sorted s("+1");
            s.grid.setAllExpanded(state);
            QVERIFY(s.group([=](frmGroupBy &d) { d.cboState->setCurrentIndex(state), d.cmdOk->click(); }));
            QCOMPARE(s.lines(), state ? 6 : 12);
            QVERIFY(s.group2([](frmGroupBy &d) {
                QVERIFY(d.cboState->isHidden() && d.lblState->isHidden());
                d.cmdOk->click();
            }));
            QCOMPARE(s.lines(), state ? 6 : 12);        // left as it was
        }
        Sorted none;
        none.grid.setSource(nullptr);
        const auto ok = [](LevelDialog &d) {
            QCOMPARE(d.cboGroups[0]->count(), 1);       // nothing to choose
            d.cmdOk->click();
        };
        QVERIFY(none.sort(ok) && none.group(ok) && none.group2(ok));
    }
    void whateverIsNoOkLeavesTheGridAlone()
    {
        const Act leaves[] = {[](LevelDialog &d) { d.cmdCancel->click(); },
                              [](LevelDialog &d) { QTest::keyClick(d.focusWidget(), Qt::Key_Escape); },
                              [](LevelDialog &d) { d.close(); }};
        for (const Act &leave : leaves) {
            Sorted s("-1");
            const auto work = [&](LevelDialog &d) { kClear(d), leave(d); };
            QVERIFY(!s.sort(work) && !s.group(work) && !s.group2(work));
            QVERIFY(s.grid.sortKeys() == keys("-1") && s.grid.groupLevels() == keys("-1"));
        }
    }
    void keysServeFromTheFirstField()
    {
        Sorted s("+0 +1");
        QVERIFY(s.sort([](frmSort &d) {
            QCOMPARE(d.focusWidget(), d.cboGroups[0]);
            QTest::keyClick(&d, Qt::Key_2, Qt::AltModifier);
            QCOMPARE(d.focusWidget(), d.cboGroups[1]);
            QTest::keyClick(d.focusWidget(), Qt::Key_Down);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        }));
        QCOMPARE(s.grid.sortKeys(), keys("+0 +2"));
    }
    /// Arrow keys on a closed list pass over what another level has.
    void aColumnServesOneLevel()
    {
        Sorted s("+0 +1");
        s.rows.cols[2].longCaption = "Látható réteg";
        QVERIFY(s.sort([](frmSort &d) {
            QTest::keyClick(d.cboGroups[0], Qt::Key_Down);
            QCOMPARE(d.cboGroups[0]->currentText(), "Látható réteg");
            const auto *entries = qobject_cast<QStandardItemModel *>(d.cboGroups[1]->model());
            QVERIFY(!entries->item(3)->isEnabled() && !entries->item(3)->toolTip().isEmpty());
            QVERIFY(entries->item(1)->isEnabled()); // free again
            QCOMPARE(d.cboGroups[0]->itemData(2).toInt(), 2); // columns count from one
            d.cmdOk->click();
        }));
        QCOMPARE(s.grid.sortKeys(), keys("+2 +1"));
    }
    void aLanguageChangeKeepsWhatIsChosen()
    {
        Sorted s("-1");
        QVERIFY(s.sort([&](frmSort &d) {
            s.rows.cols[1].caption = "Name";
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(dump(d), "Name- (None) [(None)] [(None)]");
            QCOMPARE(d.cboGroups[0]->accessibleName(), "1. sort consideration");
            QCOMPARE(d.optOrder[1]->accessibleName(), "1. sort consideration: descendant");
            d.cmdOk->click();
        }));
        QCOMPARE(s.grid.sortKeys(), keys("-1"));
    }
};
QVDC_TEST(tst_LevelDialogs)
#include "tst_LevelDialogs.moc"
