#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/layer/LayerCommands.h"
#include "kit/forms/AccessKeys.h"
#include "kit/tools/Icons.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QContextMenuEvent>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <QToolBar>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

namespace {

std::vector<Tool> rowsOf(std::initializer_list<std::span<const Tool>> tables)
{
    std::vector<Tool> all;
    for (const auto &table : tables) all.insert(all.end(), table.begin(), table.end());
    return all;
}

/// The pop-up that is open, closed by this.
QString openPopUp()
{
    QWidget *const menu = QApplication::activePopupWidget();
    const QString name = menu ? menu->objectName() : QString();
    if (menu) menu->close();
    return name;
}
void askForMenu(QWidget &over, QPoint at, QContextMenuEvent::Reason reason)
{
    if (reason == QContextMenuEvent::Mouse) QTest::mouseClick(&over, Qt::RightButton, {}, at);
    QContextMenuEvent event(reason, at, over.mapToGlobal(at));
    QApplication::sendEvent(&over, &event);
}

} // namespace

/// The tools of the layer table, in the two dialogs that show it.
class tst_LayerTools : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;

    template <class Act> void inSetup(Act act)
    {
        frmSetup dialog;
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            act(d, child<Grid>(d, "gridItems"), child<ToolSet>(d, "ab1"));
            d.reject();
        });
        QVERIFY(!dialog.bDoShow(*m_doc, 0));
    }
    template <class Act> void inSelect(Act act)
    {
        frmSelect dialog;
        tLay lay = m_doc->layers().readAll().front();
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            act(d, child<Grid>(d, "gridItems"), child<ToolSet>(d, "ab1"));
            d.reject();
        });
        QVERIFY(!dialog.bDoSelect_Lay(*m_doc, lay, nullptr));
    }
    /// Tools of the rows that are missing or not shown.
    static QStringList hidden(const ToolSet &tools, const std::vector<Tool> &rows)
    {
        QStringList names;
        for (const Tool &row : rows) {
            const QAction *const tool = tools.tool(row.name);
            if (row.caption.id && (!tool || !tool->isVisible())) names << QLatin1String(row.name);
        }
        return names;
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        QDir(settingsFolder()).removeRecursively();
        m_doc = tests::layerDoc("10 Telek, -12 Út, 21 Épület");
        m_doc->layers().makeCurrent(m_doc->layers().readAll().back());
    }

    void everyToolDoesSomething()
    {
        inSetup([](frmSetup &d, Grid &, ToolSet &tools) {
            QCOMPARE(hidden(tools, rowsOf({kViewTools, kLayerTools, kLayerSetupTools})), QStringList());
            QCOMPARE(hidden(child<ToolSet>(d, "tools"), rowsOf({kAllDocumentsTools})), QStringList());
            for (const auto &c : kLayerCommands) QVERIFY2(tools.tool(c.tool), c.tool);
        });
        inSelect([](frmSelect &, Grid &, ToolSet &tools) {
            QCOMPARE(hidden(tools, rowsOf({kViewTools, kLayerTools, kLayerSelectTools})), QStringList());
        });
    }
    void oneIdeaHasOneIconAndOneCaptionAndNoKeysClash()
    {
        QHash<QString, int> captionOf;
        QHash<int, QString> iconOf;
        QHash<QString, QString> toolOf;
        for (const Tool &row : rowsOf({kViewTools, kLayerTools, kLayerSetupTools, kLayerSelectTools})) {
            const QString icon = QLatin1String(row.icon), name = QLatin1String(row.name);
            if (!row.caption.id || *row.opens) continue;
            QVERIFY2(!toolIcon(row.icon).isNull(), row.name);
            QVERIFY2(captionOf.value(icon, row.caption.id) == row.caption.id, row.icon);
            QVERIFY2(iconOf.value(row.caption.id, icon) == icon, row.name);
            captionOf[icon] = row.caption.id, iconOf[row.caption.id] = icon;
            if (!*row.keys) continue;
            for (const QKeySequence &keys : QKeySequence::listFromString(QLatin1String(row.keys))) {
                QVERIFY2(!keys.isEmpty() && !toolOf.contains(keys.toString()), row.name);
                toolOf[keys.toString()] = name;
            }
        }
    }
    void accessKeysAreUniqueInEveryMenu()
    {
        for (const int language : {Romanian, Vietnamese, English, Hungarian}) {
            setLanguage(language, {});
            inSetup([](frmSetup &d, Grid &, ToolSet &tools) {
                std::vector<QWidget *> bands{&child<QMenuBar>(d, "mnuMain")};
                for (const char *band : {"bndPopUp_LaysSelected", "bndPopUp_Table", "bndPopUp_View", "bndGroups",
                                         "bndGroups2", "mnuLayByLayer", "mnuLayGroups"})
                    bands.push_back(tools.popUp(band));
                for (const QWidget *band : bands) {
                    QString keys;
                    for (const QAction *a : band->actions()) {
                        const QChar key = accessKeyOf(a->text());
                        if (a->isSeparator()) continue;
                        QVERIFY2(!key.isNull() && !keys.contains(key), qPrintable(a->text()));
                        keys += key;
                    }
                }
            });
        }
    }

    void toolsCanBeUsedExactlyWhenTheyCanWork()
    {
        inSetup([&](frmSetup &d, Grid &grid, ToolSet &tools) {
            const auto usable = [&](std::initializer_list<const char *> names) {
                QString out;
                for (const char *name : names) out += tools.tool(name)->isEnabled() ? u'1' : u'0';
                return out;
            };
            const auto selected = {"cmdLays_Copy", "cmdLays_Delete", "cmdLays_SetVisibleOn",
                                   "cmdLay_GroupMove"};
            QCOMPARE(usable(selected), QStringLiteral("1111"));
            grid.selectRows({});
            QCOMPARE(usable(selected), QStringLiteral("0000"));
            grid.selectAll();
            QCOMPARE(usable(selected), QStringLiteral("1111"));

            const auto group = {"cmdLay_GroupName", "miGroupRemove", "cmdLay_GroupAllLay"};
            QCOMPARE(usable(group), QStringLiteral("000"));
            child<Grid>(d, "gridGroups").setCurrentRow(2);
            QCOMPARE(usable(group), QStringLiteral("111"));
            tools.tool("cmdLay_GroupAllLay")->trigger();
            QCOMPARE(usable(group), QStringLiteral("000"));

            const auto band = {"miGroupCollapse", "miCollapseAll", "cmdLay_ShowGroups", "cmdLay_HideGroups"};
            QCOMPARE(usable(band), QStringLiteral("0001"));
            const SortKey byVisible[] = {{2, SortOrder::Ascending}};
            grid.setGroupLevels(byVisible);
            tools.tool("cmdLay_HideGroups")->trigger();
            QCOMPARE(usable(band), QStringLiteral("1110"));
            QVERIFY(!child<Grid>(d, "gridGroups").isVisible());
        });
    }
    void aToolThatIsOnShowsIt()
    {
        inSetup([](frmSetup &d, Grid &grid, ToolSet &tools) {
            tools.tool("cmdLay_ShowVisible")->trigger();
            QVERIFY(tools.tool("cmdLay_ShowVisible")->isChecked());
            QCOMPARE(grid.table()->model()->rowCount(), 2);
            d.jsLayer->setbShowVisibleItems(false);
            tools.refresh();
            QVERIFY(!tools.tool("cmdLay_ShowVisible")->isChecked());
        });
    }
    void keysRunTools()
    {
        inSetup([&](frmSetup &, Grid &grid, ToolSet &) {
            grid.selectAll();
            QTest::keyClick(grid.activeView(), Qt::Key_H, Qt::ControlModifier);
            for (const tLay &l : m_doc->layers().readAll()) QVERIFY(!l.Visible);
            QTest::keyClick(grid.activeView(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
            for (const tLay &l : m_doc->layers().readAll()) QVERIFY(l.Visible);
        });
    }
    void layersAreEditedWhileOneIsPicked()
    {
        inSelect([&](frmSelect &d, Grid &grid, ToolSet &tools) {
            QTest::keyClick(grid.activeView(), Qt::Key_F2);
            QVERIFY(grid.activeView()
                        ->findChild<QWidget *>(QStringLiteral("qt_scrollarea_viewport"))
                        ->isVisible());
            QVERIFY(grid.activeView()->indexWidget(grid.activeView()->currentIndex()));
            QTest::keyClick(grid.activeView()->indexWidget(grid.activeView()->currentIndex()),
                            Qt::Key_Escape);
            QVERIFY(d.isVisible());
            tools.tool("cmdLays_SetVisibleOff")->trigger();
            QVERIFY(!m_doc->layers().findByNumber(10)->Visible);
        });
    }

    void whatIsClickedDecidesWhichMenuComes()
    {
        const auto walk = [](QDialog &d, Grid &grid, ToolSet &) {
            QAbstractItemView &table = *grid.table();
            QWidget &cells = *table.viewport();
            const QPoint row = table.visualRect(table.model()->index(1, 1)).center();
            askForMenu(cells, row, QContextMenuEvent::Mouse);
            QCOMPARE(openPopUp(), QStringLiteral("bndPopUp_LaysSelected"));
            QCOMPARE(grid.selectedRows(), std::vector<int>{1});             // a right click goes there first
            askForMenu(table, {}, QContextMenuEvent::Keyboard);
            QCOMPARE(openPopUp(), QStringLiteral("bndPopUp_LaysSelected"));
            QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
            QCOMPARE(openPopUp(), QStringLiteral("bndPopUp_LaysSelected"));
            askForMenu(cells, {row.x(), cells.height() - 2}, QContextMenuEvent::Mouse);
            QCOMPARE(openPopUp(), QStringLiteral("bndPopUp_Table"));
            QWidget &header = *grid.findChild<QHeaderView *>()->viewport();
            askForMenu(header, {5, 5}, QContextMenuEvent::Mouse);
            QCOMPARE(openPopUp(), QStringLiteral("bndPopUp_View"));
            QAbstractItemView &groups = *child<Grid>(d, "gridGroups").table();
            askForMenu(*groups.viewport(), groups.visualRect(groups.model()->index(2, 0)).center(),
                       QContextMenuEvent::Mouse);
            QCOMPARE(openPopUp(), QStringLiteral("bndGroups"));
            QCOMPARE(child<Grid>(d, "gridGroups").currentRow(), 2);
        };
        inSetup(walk);
        inSelect(walk);
    }
    void barsHaveNames()
    {
        inSetup([](frmSetup &d, Grid &, ToolSet &) {
            QCOMPARE(child<QToolBar>(d, "mnuBar").accessibleName(), QStringLiteral("Eszköztár"));
            QCOMPARE(child<QToolBar>(d, "mnuPages").accessibleName(), QStringLiteral("Táblák"));
            QCOMPARE(child<QMenuBar>(d, "mnuMain").accessibleName(), QStringLiteral("Menüsor"));
        });
    }
};

QVDC_TEST(tst_LayerTools)
#include "tst_LayerTools.moc"
