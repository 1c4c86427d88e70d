#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::PlainGrid;
using tests::whileModal;

using Act = std::function<void(LevelDialog &)>;
Q_DECLARE_METATYPE(Act)

class tst_LevelDialogs : public QObject {
    Q_OBJECT
private:
    static PlainGrid grid() { return PlainGrid({"Szám", "Név", "Szín", "Vastagság", "Látható"}); }

    /// What the dialog shows: per level the list's text and order, in brackets when it is closed.
    static QString dump(const LevelDialog &d)
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
    static Act choose(int level, const char *text)
    {
        return [=](LevelDialog &d) { d.cboGroups[level]->setCurrentText(QString::fromUtf8(text)); };
    }
    static Act descending(int level) { return [=](LevelDialog &d) { d.optOrder[2 * level + 1]->click(); }; }
    static Act clearAll() { return [](LevelDialog &d) { d.cmdClearAll->click(); }; }

private slots:
    void init() { setLanguage(Hungarian, {}); }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void theGridsKeysAreShownAndTheChosenOnesWritten_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QList<Act>>("acts");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("after");
        QTest::newRow("nothing set") << "" << QList<Act>{} << "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]" << "";
        QTest::newRow("as it was") << "-1 +0" << QList<Act>{} << "Név- Szám+ (Nincs) [(Nincs)]" << "-1 +0";
        QTest::newRow("all four") << "-1 +0 +4 -2" << QList<Act>{} << "Név- Szám+ Látható+ Szín-"
                                  << "-1 +0 +4 -2";
        QTest::newRow("ascending by default") << "" << QList<Act>{choose(0, "Név")}
                                              << "Név+ (Nincs) [(Nincs)] [(Nincs)]" << "+1";
        QTest::newRow("one key, the second level open, the third closed")
            << "" << QList<Act>{choose(0, "Név"), descending(0)} << "Név- (Nincs) [(Nincs)] [(Nincs)]"
            << "-1";
        QTest::newRow("a level more") << "+1" << QList<Act>{choose(1, "Szín"), descending(1)}
                                      << "Név+ Szín- (Nincs) [(Nincs)]" << "+1 -2";
        QTest::newRow("another column keeps the order") << "-1 +0" << QList<Act>{choose(0, "Szín")}
                                                        << "Szín- Szám+ (Nincs) [(Nincs)]" << "-2 +0";
        QTest::newRow("a level without column takes those below along")
            << "-1 -0 -4" << QList<Act>{choose(1, "(Nincs)")} << "Név- (Nincs) [(Nincs)] [(Nincs)]" << "-1";
        QTest::newRow("a column chosen again starts ascending")
            << "-1 -0" << QList<Act>{choose(0, "(Nincs)"), choose(0, "Név"), choose(1, "Szám")}
            << "Név+ Szám+ (Nincs) [(Nincs)]" << "+1 +0";
        QTest::newRow("cleared") << "-1 +0 +4 -2" << QList<Act>{clearAll()}
                                 << "(Nincs) [(Nincs)] [(Nincs)] [(Nincs)]" << "";
    }
    void theGridsKeysAreShownAndTheChosenOnesWritten()
    {
        QFETCH(QString, before);
        QFETCH(QList<Act>, acts);
        QFETCH(QString, shown);
        QFETCH(QString, after);
        const auto work = [&](LevelDialog &d) {
            for (const Act &act : acts) act(d);
            QCOMPARE(dump(d), shown);
            d.cmdOk->click();
        };
        PlainGrid sorted = grid(), grouped = grid(), grouped2 = grid();
        sorted.sort = grouped.groups = grouped2.groups = PlainGrid::keys(before);
        const auto onSort = whileModal<frmSort>(work);
        QVERIFY(frmSort().SortGrid(sorted));
        QCOMPARE(sorted.written, QStringList{QStringLiteral("sort ") + after});
        const auto onGroup = whileModal<frmGroupBy>(work);
        QVERIFY(frmGroupBy().GroupGrid(grouped));
        QCOMPARE(grouped.written, QStringList({QStringLiteral("group ") + after, QStringLiteral("expand")}));
        const auto onGroup2 = whileModal<frmGroupBy>(work);
        QVERIFY(frmGroupBy().GroupGrid2(grouped2));
        QCOMPARE(grouped2.written, QStringList{QStringLiteral("group ") + after});
    }

    void whateverIsNoOkLeavesTheGridAlone_data()
    {
        QTest::addColumn<Act>("leave");
        QTest::newRow("cancel") << Act([](LevelDialog &d) { d.cmdCancel->click(); });
        QTest::newRow("escape") << Act(
            [](LevelDialog &d) { QTest::keyClick(d.focusWidget(), Qt::Key_Escape); });
        QTest::newRow("close box") << Act([](LevelDialog &d) { d.close(); });
    }
    void whateverIsNoOkLeavesTheGridAlone()
    {
        QFETCH(Act, leave);
        PlainGrid plain = grid();
        plain.sort = plain.groups = PlainGrid::keys(QStringLiteral("-1"));
        const auto work = [&](LevelDialog &d) {
            d.cmdClearAll->click();
            leave(d);
        };
        const auto onSort = whileModal<frmSort>(work);
        QVERIFY(!frmSort().SortGrid(plain));
        const auto onGroup = whileModal<frmGroupBy>(work);
        QVERIFY(!frmGroupBy().GroupGrid(plain));
        QCOMPARE(plain.written, QStringList());
    }

    void enterIsOkFromTheFirstField()
    {
        PlainGrid plain = grid();
        const auto onSort = whileModal<frmSort>([](frmSort &d) {
            QCOMPARE(d.focusWidget(), d.cboGroups[0]);
            QTest::keyClick(d.focusWidget(), Qt::Key_Down);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        });
        QVERIFY(frmSort().SortGrid(plain));
        QCOMPARE(plain.written, QStringList{QStringLiteral("sort +0")});
    }

    void withoutColumnsOkClears()
    {
        PlainGrid none{QStringList()};
        none.sort = none.groups = PlainGrid::keys(QStringLiteral("+0"));
        const auto ok = [](LevelDialog &d) {
            QCOMPARE(d.cboGroups[0]->count(), 1);
            d.cmdOk->click();
        };
        const auto onSort = whileModal<frmSort>(ok);
        QVERIFY(frmSort().SortGrid(none));
        const auto onGroup = whileModal<frmGroupBy>(ok);
        QVERIFY(frmGroupBy().GroupGrid(none));
        QCOMPARE(none.written, QStringList({"sort ", "group ", "expand"}));
    }

    void theStateOfGroupsFollowsTheLevels()
    {
        PlainGrid plain = grid();
        const auto onGroup = whileModal<frmGroupBy>([](frmGroupBy &d) {
            d.cboGroups[0]->setCurrentIndex(1);
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

    /// Arrow keys on a closed list pass over what another level has.
    void aColumnServesOneLevel()
    {
        PlainGrid plain = grid();
        plain.sort = PlainGrid::keys(QStringLiteral("+0 +1"));
        const auto onSort = whileModal<frmSort>([](frmSort &d) {
            QTest::keyClick(d.cboGroups[0], Qt::Key_Down);
            QCOMPARE(d.cboGroups[0]->currentText(), QStringLiteral("Szín"));
            const auto *entries = qobject_cast<QStandardItemModel *>(d.cboGroups[1]->model());
            QVERIFY(!entries->item(3)->isEnabled());
            QVERIFY(!entries->item(3)->toolTip().isEmpty());
            QVERIFY(entries->item(1)->isEnabled()); // free again
            d.cmdOk->click();
        });
        QVERIFY(frmSort().SortGrid(plain));
        QCOMPARE(plain.written, QStringList{QStringLiteral("sort +2 +1")});
    }

    void listsKeepColumnNumbersFromOneAndPreferLongCaptions()
    {
        PlainGrid plain = grid();
        plain.all[1].longCaption = QStringLiteral("A réteg neve");
        const auto onSort = whileModal<frmSort>([](frmSort &d) {
            QCOMPARE(d.cboGroups[0]->itemData(0).toInt(), 0);
            QCOMPARE(d.cboGroups[0]->itemData(2).toInt(), 2);
            QCOMPARE(d.cboGroups[0]->itemText(2), QStringLiteral("A réteg neve"));
            d.reject();
        });
        QVERIFY(!frmSort().SortGrid(plain));
    }

    void aLanguageChangeKeepsWhatIsChosen()
    {
        PlainGrid plain = grid();
        plain.sort = PlainGrid::keys(QStringLiteral("-1"));
        const auto onSort = whileModal<frmSort>([&](frmSort &d) {
            plain.all[1].caption = QStringLiteral("Name");
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.windowTitle(), QStringLiteral("Sort"));
            QCOMPARE(d.cmdCancel->text(), QStringLiteral("Cancel"));
            QCOMPARE(dump(d), QStringLiteral("Name- (None) [(None)] [(None)]"));
            QCOMPARE(d.cboGroups[0]->accessibleName(), QStringLiteral("1. sort consideration"));
            QCOMPARE(d.optOrder[1]->accessibleName(), QStringLiteral("1. sort consideration: descendant"));
            d.cmdOk->click();
        });
        QVERIFY(frmSort().SortGrid(plain));
        QCOMPARE(plain.written, QStringList{QStringLiteral("sort -1")});
    }

    void anAccessKeyLeadsToTheListOfItsLevel()
    {
        PlainGrid plain = grid();
        plain.sort = PlainGrid::keys(QStringLiteral("+0 +1"));
        const auto onSort = whileModal<frmSort>([](frmSort &d) {
            d.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&d));
            QTest::keyClick(&d, Qt::Key_2, Qt::AltModifier);
            QCOMPARE(d.focusWidget(), d.cboGroups[1]);
            d.reject();
        });
        QVERIFY(!frmSort().SortGrid(plain));
    }
};
QVDC_TEST(tst_LevelDialogs)
#include "tst_LevelDialogs.moc"
