#include "dialogs/viewtools/frmShowfields.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::PlainGrid;
using tests::whileModal;

using Act = std::function<void(frmShowfields &)>;
Q_DECLARE_METATYPE(Act)

class tst_frmShowfields : public QObject {
    Q_OBJECT
private:
    static QString dump(const frmShowfields &d)
    {
        QStringList out;
        for (const QListWidget *list : {d.lstAvail, d.lstVisible}) {
            if (list == d.lstVisible) out << QStringLiteral("|");
            for (int row = 0; row < list->count(); ++row)
                out << (list->item(row) == list->currentItem() ? u'*' : u' ') + list->item(row)->text();
        }
        return out.join(QString());
    }
    static Act current(QListWidget *const frmShowfields::*list, int row)
    {
        return [=](frmShowfields &d) { (d.*list)->setCurrentRow(row); };
    }
    static Act click(QPushButton *const frmShowfields::*button)
    {
        return [=](frmShowfields &d) { (d.*button)->click(); };
    }
    static Act doubleClick(QListWidget *const frmShowfields::*list, int row)
    {
        return [=](frmShowfields &d) {
            const QPoint at = (d.*list)->visualItemRect((d.*list)->item(row)).center();
            QTest::mouseClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
        };
    }
    static Act key(Qt::Key k, Qt::KeyboardModifiers with = Qt::AltModifier)
    {
        return [=](frmShowfields &d) {
            d.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&d));
            QTest::keyClick(&d, k, with);
        };
    }

private slots:
    void init() { setLanguage(Hungarian, {}); }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void listsAreFilledWorkedOnAndWritten_data()
    {
        using F = frmShowfields;
        QTest::addColumn<QList<Act>>("acts");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("written");
        // of columns A B C D E, the grid shows D, A, C
        QTest::newRow("as it was") << QList<Act>{} << "*B E|*D A C" << "show 3 0 2";
        QTest::newRow("add goes to the end") << QList<Act>{click(&F::cmdAdd)} << "*E| D A C*B"
                                             << "show 3 0 2 1";
        QTest::newRow("add all") << QList<Act>{click(&F::cmdAdd), click(&F::cmdAdd), click(&F::cmdAdd)}
                                 << "| D A C B*E" << "show 3 0 2 1 4";
        QTest::newRow("double click adds") << QList<Act>{doubleClick(&F::lstAvail, 1)} << "*B| D A C*E"
                                           << "show 3 0 2 4";
        QTest::newRow("remove") << QList<Act>{current(&F::lstVisible, 1), click(&F::cmdRemove)}
                                << " B E*A| D*C" << "show 3 2";
        QTest::newRow("double click removes") << QList<Act>{doubleClick(&F::lstVisible, 0)} << " B E*D|*A C"
                                              << "show 0 2";
        QTest::newRow("remove all") << QList<Act>{click(&F::cmdRemove), click(&F::cmdRemove),
                                                  click(&F::cmdRemove)}
                                    << " B E D A*C|"
                                    << "show ";
        QTest::newRow("up") << QList<Act>{current(&F::lstVisible, 2), click(&F::cmdUp)} << "*B E| D*C A"
                            << "show 3 2 0";
        QTest::newRow("up at the top") << QList<Act>{click(&F::cmdUp)} << "*B E|*D A C" << "show 3 0 2";
        QTest::newRow("down twice") << QList<Act>{click(&F::cmdDown), click(&F::cmdDown)} << "*B E| A C*D"
                                    << "show 0 2 3";
        QTest::newRow("down at the bottom") << QList<Act>{current(&F::lstVisible, 2), click(&F::cmdDown)}
                                            << "*B E| D A*C" << "show 3 0 2";
        QTest::newRow("by keys") << QList<Act>{key(Qt::Key_Down), key(Qt::Key_Down), key(Qt::Key_Up)}
                                 << "*B E| A*D C" << "show 0 3 2";
    }
    void listsAreFilledWorkedOnAndWritten()
    {
        QFETCH(QList<Act>, acts);
        QFETCH(QString, shown);
        QFETCH(QString, written);
        PlainGrid grid({"A", "B", "C", "D", "E"});
        grid.shown = {3, 0, 2};
        bool confirmed = false;
        const auto watch = whileModal<frmShowfields>([&](frmShowfields &d) {
            for (const Act &act : acts) act(d);
            QCOMPARE(dump(d), shown);
            d.cmdOk->click();
        });
        frmShowfields().ShowFields(grid, confirmed);
        QVERIFY(confirmed);
        QCOMPARE(grid.written, QStringList{written});
    }

    void cancelSaysSoAndLeavesTheGridAlone()
    {
        PlainGrid grid({"A", "B"});
        bool confirmed = true;
        const auto watch = whileModal<frmShowfields>([](frmShowfields &d) {
            d.cmdRemove->click();
            QTest::keyClick(d.focusWidget(), Qt::Key_Escape);
        });
        frmShowfields().ShowFields(grid, confirmed);
        QVERIFY(!confirmed);
        QCOMPARE(grid.written, QStringList());
    }

    void withoutColumnsListsAreEmpty()
    {
        PlainGrid grid{QStringList()};
        bool confirmed = false;
        const auto watch = whileModal<frmShowfields>([](frmShowfields &d) {
            for (const QPushButton *b : {d.cmdAdd, d.cmdRemove, d.cmdUp, d.cmdDown}) QVERIFY(!b->isEnabled());
            d.cmdOk->click();
        });
        frmShowfields().ShowFields(grid, confirmed);
        QVERIFY(confirmed);
    }

    void aLanguageChangeKeepsOrderAndShortcuts()
    {
        PlainGrid grid({"A", "B", "C"});
        bool confirmed = false;
        const auto watch = whileModal<frmShowfields>([&](frmShowfields &d) {
            d.cmdDown->click();
            for (auto &c : grid.all) c.caption = c.caption.toLower();
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(dump(d), QStringLiteral("| b*a c"));
            QCOMPARE(d.windowTitle(), QStringLiteral("Display columns"));
            key(Qt::Key_Down)(d);
            QCOMPARE(dump(d), QStringLiteral("| b c*a"));
            d.cmdOk->click();
        });
        frmShowfields().ShowFields(grid, confirmed);
        QCOMPARE(grid.written, QStringList{QStringLiteral("show 1 2 0")});
    }
};
QVDC_TEST(tst_frmShowfields)
#include "tst_frmShowfields.moc"
