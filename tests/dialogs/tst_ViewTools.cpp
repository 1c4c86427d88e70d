#include "dialogs/select/frmSelect.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmPreview.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "grids/frame/GridLayouts.h"
#include "kit/grid/GroupBox.h"
#include "kit/paper/SheetPreview.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

/// The tools of the selection dialog, by their names, on the layer table.
class tst_ViewTools : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;

    /// Opens the selection dialog, runs `act` in it and cancels it.
    template <class Act> void inDialog(Act act)
    {
        ZolWDoc::tLay lay = m_doc->layers().readAll().front();
        frmSelect dialog;
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            act(d, child<Grid>(d, "gridItems"), child<ToolSet>(d, "ab1"));
            d.reject();
        });
        QVERIFY(!dialog.bDoSelect_Lay(*m_doc, lay, nullptr));
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        setAppTitle(QStringLiteral("ZOLDocDlgs"));
        QDir(settingsFolder()).removeRecursively();
        m_doc = tests::layerDoc("10 Telek, -9 Út, 21 Épület");
    }

    void viewsAreSwitchedAndShown()
    {
        inDialog([](frmSelect &d, Grid &grid, ToolSet &tools) {
            QVERIFY(tools.tool("miView_Table")->isChecked());
            std::vector<qint16> seen;
            const auto heard =
                connect(d.jsLayer, &clsJs_Layer::GridView, [&](qint16 &v) { seen.push_back(v); });
            tools.tool("miView_Card")->trigger();
            tools.tool("miView_CardMin")->trigger();
            QObject::disconnect(heard);
            QCOMPARE(seen, (std::vector<qint16>{1, 2}));
            QVERIFY(grid.view() == GridView::CardMin && tools.tool("miView_CardMin")->isChecked());
        });
    }
    void theGroupCommandRaisesGroupChangedTooAndALayoutDoesNot()
    {
        inDialog([](frmSelect &d, Grid &, ToolSet &tools) {
            std::vector<bool> seen;
            const auto heard =
                connect(d.jsLayer, &clsJs_Layer::GroupChanged, [&](bool &g) { seen.push_back(g); });
            const auto watch = whileModal<frmGroupBy>([](frmGroupBy &g) {
                g.cboGroups[0]->setCurrentIndex(3);
                g.cmdOk->click();
            });
            tools.popUp("bndPopUp_View")->actions(); // where the command stands for the user
            tools.tool("miGroupBy")->trigger();
            QCOMPARE(seen, std::vector{true});
            d.jsLayer->saveLayout();
            d.jsLayer->ml_RuntimeSupport_LanguageChanged(); // loads it again
            QCOMPARE(seen, std::vector{true});
            QObject::disconnect(heard);
        });
    }
    void aLoadedLayoutRaisesGridViewOnce()
    {
        Grid grid;
        for (const bool saved : {false, true}) {
            clsJs_Layer js;
            std::vector<qint16> views;
            connect(&js, &clsJs_Layer::GridView, [&](qint16 &view) { views.push_back(view); });
            connect(&js, &clsJs_Layer::GroupChanged, [](bool &) { QFAIL("nobody grouped"); });
            js.init(*m_doc, grid, nullptr, true);
            QCOMPARE(views, saved ? std::vector<qint16>{0} : std::vector<qint16>());
            const SortKey byVisible[] = {{2}};
            QObject::disconnect(&js, &clsJs_Layer::GroupChanged, nullptr, nullptr);
            grid.setGroupLevels(byVisible);
            js.saveLayout();
        }
    }
    void groupingEnablesItsTools()
    {
        inDialog([](frmSelect &d, Grid &grid, ToolSet &tools) {
            QVERIFY(!tools.tool("miCollapseAll")->isEnabled());
            std::vector<bool> seen;
            const auto heard =
                connect(d.jsLayer, &clsJs_Layer::GroupChanged, [&](bool &g) { seen.push_back(g); });
            const SortKey byVisible[] = {{2, SortOrder::Ascending}};
            grid.setGroupLevels(byVisible);
            QVERIFY(tools.tool("miCollapseAll")->isEnabled() && tools.tool("miExpandAll")->isEnabled());
            grid.setGroupLevels({});
            QObject::disconnect(heard);
            QCOMPARE(seen, (std::vector<bool>{true, false}));
            QVERIFY(!tools.tool("miExpandAll")->isEnabled());
        });
    }
    void sortAndColumnsGoThroughTheirDialogs()
    {
        inDialog([](frmSelect &, Grid &grid, ToolSet &tools) {
            {
                const auto watch = whileModal<frmSort>([](frmSort &s) {
                    child<QComboBox>(s, "cboGroups0").setCurrentIndex(1);
                    child<QPushButton>(s, "cmdOk").click();
                });
                tools.tool("miSort")->trigger();
            }
            QCOMPARE(grid.sortKeys(), (std::vector<SortKey>{{0, SortOrder::Ascending}}));
            const auto watch = whileModal<frmShowfields>([](frmShowfields &f) { f.reject(); });
            const auto before = grid.shownColumns();
            tools.tool("miShowFields")->trigger();
            QCOMPARE(grid.shownColumns(), before);
        });
    }
    void findSaysWhatIsNotThere()
    {
        ScriptedPrompts user(
            {{"text", QStringLiteral("Keresés"), QStringLiteral("A keresett érték:|10"),
              QStringLiteral("21")},
             {"text", QStringLiteral("Keresés"), QStringLiteral("A keresett érték:|21"),
              QStringLiteral("77")},
             {"tell", QStringLiteral("ZOL"), QStringLiteral("Nincs 77 érték!"), {}, Icon::Information},
             {"text", QStringLiteral("Keresés"), QStringLiteral("A keresett érték:|21"), QString()}});
        inDialog([](frmSelect &d, Grid &, ToolSet &tools) {
            for (int i = 0; i < 3; ++i) tools.tool("miFind")->trigger();
            QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(21));
        });
    }
    void theGroupListComesAndGoes()
    {
        inDialog([](frmSelect &d, Grid &, ToolSet &tools) {
            Grid &groups = child<Grid>(d, "gridGroups");
            QVERIFY(groups.isVisible() && !tools.tool("miShowGroups")->isEnabled());
            tools.tool("miHideGroups")->trigger();
            QVERIFY(!groups.isVisible() && tools.tool("miShowGroups")->isEnabled());
            tools.tool("miShowGroups")->trigger();
            QVERIFY(groups.isVisible());
        });
    }
    /// Whatever is open speaks the new language, what it stands on too.
    void aLanguageChangeReachesEveryOpenDialog_data()
    {
        QTest::addColumn<QByteArray>("tool");
        QTest::addColumn<QString>("title");
        QTest::newRow("sort") << QByteArray("miSort") << QStringLiteral("Sort");
        QTest::newRow("group") << QByteArray("miGroupBy") << QStringLiteral("Grouping");
        QTest::newRow("columns") << QByteArray("miShowFields") << QStringLiteral("Display columns");
        QTest::newRow("preview") << QByteArray("miPrintPreview") << QStringLiteral("Print preview");
    }
    void aLanguageChangeReachesEveryOpenDialog()
    {
        QFETCH(QByteArray, tool);
        QFETCH(QString, title);
        inDialog([&](frmSelect &d, Grid &grid, ToolSet &tools) {
            const auto watch = whileModal<QDialog>([&](QDialog &open) {
                setLanguage(English, {});
                emit LanguageHub::instance().LanguageChanged();
                QCOMPARE(open.windowTitle(), title);
                for (const QListWidget *list : open.findChildren<QListWidget *>())
                    if (list->count()) QVERIFY(list->item(0)->text() != QStringLiteral("Sorszám"));
                if (auto *const first = open.findChild<QComboBox *>(QStringLiteral("cboGroups0")))
                    QCOMPARE(first->itemText(2), QStringLiteral("Layer name"));
                open.reject();
            });
            tools.tool(tool.constData())->trigger();
            QCOMPARE(d.windowTitle(), QStringLiteral("Layer selector"));
            QCOMPARE(grid.columns()[1].caption, QStringLiteral("Layer name"));
            QCOMPARE(grid.findChild<GroupBox *>()->accessibleName(),
                     QStringLiteral("Drag here the column header to sort the list by the column values"));
            QCOMPARE(tools.tool("miSort")->toolTip().section(u' ', 0, 0), QStringLiteral("Sort"));
            QVERIFY(tools.tool("miGroupBy")->text().remove(u'&').startsWith(QStringLiteral("Group by")));
        });
    }
    void paperBearsTheTablesOwnCaptions()
    {
        inDialog([](frmSelect &, Grid &, ToolSet &tools) {
            const auto watch = whileModal<frmPreview>([](frmPreview &p) {
                QCOMPARE(p.windowTitle(), QStringLiteral("Nyomtatási kép"));
                QVERIFY(p.grPrev->isVisible());
                p.reject();
            });
            tools.tool("miPrintPreview")->trigger();
        });
        const Paper paper = LayerTable::paper();
        QCOMPARE(paper.captions, QStringList({"Ssz", "Rétegnév", "Ki/Be", "Vonaltípus", "", "", "Színtoll",
                                              "Felirattípus", "", ""}));
        QCOMPARE(paper.titles.header + paper.titles.footerAfter, QStringLiteral("Rétegek oldal"));
        QVERIFY(!paper.titles.withPageCount);
    }
    void rowsGoToTheClipboard()
    {
        inDialog([](frmSelect &d, Grid &grid, ToolSet &) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            QTest::keyClick(grid.activeView(), Qt::Key_C, Qt::ControlModifier);
            const QStringList rows = QApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
            QCOMPARE(rows.size(), 4);
            QVERIFY(rows[0].startsWith(QStringLiteral("Ssz:\tRétegnév\t")));
            QVERIFY(rows[1].startsWith(QStringLiteral("10\tTelek\t")));
            QVERIFY(QApplication::clipboard()->mimeData()->hasHtml());
        });
    }
    void layoutsBelongToTheirLanguageAndAreNeverSavedHere()
    {
        inDialog([](frmSelect &d, Grid &grid, ToolSet &) {
            grid.setView(GridView::Card);
            d.jsLayer->saveLayout();
        });
        QVERIFY(QFile::exists(settingsFolder() + QStringLiteral("/jsLayer-hun.jgl")));
        inDialog([](frmSelect &, Grid &grid, ToolSet &tools) {
            QVERIFY(grid.view() == GridView::Card);
            QVERIFY(tools.tool("miView_Card")->isChecked());
            grid.setView(GridView::CardMin);            // not kept: the dialog saves no layout
        });
        inDialog([](frmSelect &, Grid &grid, ToolSet &) { QVERIFY(grid.view() == GridView::Card); });
        setLanguage(English, {});
        inDialog([](frmSelect &, Grid &grid, ToolSet &) {
            QVERIFY(grid.view() == GridView::Table);
            setLanguage(Hungarian, {});
            emit LanguageHub::instance().LanguageChanged();
            QVERIFY(grid.view() == GridView::Card);     // the new language's layout
        });
    }
    void aDamagedLayoutIsPassedOver()
    {
        QDir().mkpath(settingsFolder());
        QFile file(settingsFolder() + QStringLiteral("/jsLayer-hun.jgl"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{\"table\":\"jsSid\"") > 0);
        file.close();
        ScriptedPrompts nobody;
        inDialog([](frmSelect &, Grid &grid, ToolSet &) { QVERIFY(grid.view() == GridView::Table); });
    }
};

QVDC_TEST(tst_ViewTools)
#include "tst_ViewTools.moc"
