#include "dialogs/select/frmSetup.h"
#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/forms/Twips.h"
#include "support/Documents.h"
#include "support/EachCall.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/WillingPrompts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QLabel>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;
Q_DECLARE_METATYPE(std::function<void(QV_DOC_CONTROLS::frmSetup &)>)
using Act = std::function<void(frmSetup &)>;

namespace {

const QString kPlot = QStringLiteral("Telek"); // a layer

/// The frame of the setup dialog, and its page of layers.
Grid &items(frmSetup &d) { return child<Grid>(d, "gridItems"); }
QAction &tool(frmSetup &d, const char *name) { return child<QAction>(d, name); }

int rowOf(frmSetup &d, const QString &name)
{
    const QAbstractItemModel &rows = *items(d).table()->model();
    for (int row = 0; row < rows.rowCount(); ++row)
        if (rows.index(row, 1).data().toString() == name) return row;
    return -1;
}
void goTo(frmSetup &d, const QString &name) { items(d).setCurrentRow(rowOf(d, name)); }
QPoint cellOf(frmSetup &d, const QString &name, int column)
{
    const QAbstractItemView &table = *items(d).table();
    return table.visualRect(table.model()->index(rowOf(d, name), column)).center();
}
void doubleClickAt(frmSetup &d, QPoint at)
{
    QWidget *const cells = items(d).table()->viewport();
    QTest::mouseClick(cells, Qt::LeftButton, {}, at);
    QTest::mouseDClick(cells, Qt::LeftButton, {}, at);
}
QString currentLine(frmSetup &d) { return child<QLabel>(d, "lblCurrentLayer").text(); }

} // namespace

class tst_frmSetup : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    clsDocDlgs m_dialogs;

    tLay layer(int number) { return *m_doc->layers().findByNumber(qint16(number)); }
    /// Opens page 0 by bSetup(), runs `act` and closes the dialog by its close box.
    template <class Act> void inSetup(Act act, qint16 page = 0)
    {
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            act(d);
            d.close();
        });
        QVERIFY(!m_dialogs.bSetup(*m_doc, page));
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        QDir(settingsFolder()).removeRecursively();
        m_dialogs.setWarnInvisibleCurrentLayer(false), m_dialogs.setAutomaticItemSelection(true);
        m_dialogs.setoDocList(nullptr);
        m_doc = tests::layerDoc("10 Telek, -12 Út, 21 Épület");
        m_doc->layers().makeCurrent(layer(21));
    }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form or manager was not released"); }

    void aPageOpensByItsNumber()
    {
        const QString none = QStringLiteral("Rajzbeállítás"), layers = none + QStringLiteral(" – Rétegek");
        for (const qint16 page : {0, 5, 6, -1})        // layers; not there yet; none above; none below
            inSetup(
                [&](frmSetup &d) {
                    QCOMPARE(d.windowTitle(), page == 0 ? layers : none);
                    QCOMPARE(d.jsLayer != nullptr, page == 0);
                    QCOMPARE(tool(d, "miLayer").isChecked(), page == 0);
                    tool(d, "miLayer").trigger();       // makes its page on first use
                    clsJs_Layer *const made = d.jsLayer;
                    QVERIFY(made && items(d).isVisible());
                    tool(d, "miLayer").trigger();
                    QCOMPARE(d.jsLayer, made);
                    QCOMPARE(d.windowTitle(), layers);
                    auto &splitter = child<QSplitter>(d, "imgSplitter"); // the border of the group list stays
                    QTest::mousePress(splitter.handle(1), Qt::LeftButton, {}, {1, 20});
                    QTest::mouseMove(splitter.handle(1), {90, 20});
                    QTest::mouseRelease(splitter.handle(1), Qt::LeftButton, {}, {90, 20});
                    QCOMPARE(splitter.sizes()[0], pixelsOf(2400, d));
                },
                page);
    }

    void howItIsClosedDecidesAndLayoutsAreKeptAnyway()
    {
        const auto click = [](const char *name) -> Act {
            return [=](frmSetup &d) { child<QPushButton>(d, name).click(); };
        };
        struct Row {
            Act close;
            bool confirmed;
            const char *view;
        };
        const char *before = "miView_Table";
        for (const auto &[close, confirmed, view] :
             {Row{click("cmdOk"), true, "miView_Card"}, {click("cmdCancel"), false, "miView_CardMin"},
              {[](frmSetup &d) { d.close(); }, false, "miView_Table"},
              {[](frmSetup &d) { QTest::keyClick(&d, Qt::Key_Escape); }, false, "miView_Card"}}) {
            const auto watch = whileModal<frmSetup>([&, close = close, view = view](frmSetup &d) {
                QVERIFY(tool(d, before).isChecked()); // as it was left
                tool(d, view).trigger();
                items(d).table()->model()->setData(items(d).table()->model()->index(0, 1), QString(view));
                close(d);
            });
            QCOMPARE(m_dialogs.bSetup(*m_doc, 0), confirmed);
            QCOMPARE(layer(10).Name, QString(view)); // written at once, and stays
            before = view;
        }
        inSetup([&](frmSetup &d) { QVERIFY(tool(d, before).isChecked()); });
    }
    void widthsAreKeptForEachUse()
    {
        const tests::OwnStore host;
        const auto openAt = [&](bool edit, int width, bool again) {
            const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
                if (again) QCOMPARE(d.size(), QSize(width, 480));
                d.resize(width, 480);
                d.reject();
            });
            QVERIFY(!(edit ? m_dialogs.bEdit_Layers(*m_doc) : m_dialogs.bSetup(*m_doc, 0)));
        };
        for (const bool again : {false, true}) openAt(true, 720, again), openAt(false, 780, again);
        const auto line = [](const char *key, int pixels) {
            return QStringLiteral("ZolWOp/Settings/ZolWOpfrmSetup%1=%2")
                .arg(key)
                .arg(twipsOf(pixels, QWidget()));
        };
        QCOMPARE(host.kept.dump(),
                 QStringList({line("-Height", 480), line("-Width4Edit", 720), line("-Width4Select", 780)}));
    }

    void aLayerBecomesCurrentByDoubleClickOrControlEnterOnly_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("current");
        const auto row = [](const char *name, int current, Act act) {
            QTest::newRow(name) << act << current;
        };
        const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers held) -> Act {
            return [=](frmSetup &d) { goTo(d, kPlot), QTest::keyClick(items(d).table(), pressed, held); };
        };
        row("double click", 10, [](frmSetup &d) { doubleClickAt(d, cellOf(d, kPlot, 1)); });
        row("beside the check mark", 10, [](frmSetup &d) {
            const QPoint mark = cellOf(d, kPlot, 2);
            const QAbstractItemView &table = *items(d).table();
            doubleClickAt(d, {table.visualRect(table.indexAt(mark)).left() + 3, mark.y()});
        });
        row("on the check mark", 21, [](frmSetup &d) { doubleClickAt(d, cellOf(d, kPlot, 2)); });
        row("Ctrl+Enter", 10, key(Qt::Key_Return, Qt::ControlModifier));
        row("the keypad's", 10, key(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier));
        row("moving", 21, [](frmSetup &d) { goTo(d, kPlot); });
        row("ok", 21, [](frmSetup &d) { goTo(d, kPlot), child<QPushButton>(d, "cmdOk").click(); });
    }
    void aLayerBecomesCurrentByDoubleClickOrControlEnterOnly()
    {
        QFETCH(Act, act);
        QFETCH(int, current);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(21));  // where the grid stands at first
            QVERIFY(!tool(d, "cmdLays_MakeCurrent").isEnabled());
            act(d);
            const tLay now = layer(current);
            QCOMPARE(currentLine(d), QStringLiteral("Aktuális réteg: %1 %2").arg(now.gNr).arg(now.Name));
            QCOMPARE(d.jsLayer->currentLayer(), now.LayId);
            d.reject();
        });
        m_dialogs.bSetup(*m_doc, 0);
        QCOMPARE(m_doc->layers().currentId(), layer(current).LayId);
    }
    void theCurrentLayerIsShownAsItIsNow()
    {
        inSetup([](frmSetup &d) {
            QAbstractItemModel &rows = *items(d).table()->model();
            goTo(d, QStringLiteral("Épület"));
            rows.setData(items(d).table()->currentIndex().siblingAtColumn(1), QStringLiteral("Ház"));
            QCOMPARE(currentLine(d), QStringLiteral("Aktuális réteg: 21 Ház"));
            const tests::WillingPrompts user;
            tool(d, "miRemove").trigger();
            const auto current = d.jsLayer->currentLayerAsRead();
            QVERIFY(current && current->gNr != 21);
            QVERIFY(currentLine(d).endsWith(current->Name));
        });
    }
    void noToAnInvisibleLayerGoesBack()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        for (const auto &[confirmed, follows] : {std::pair(true, true), {false, true}, {false, false}}) {
            m_dialogs.setAutomaticItemSelection(follows); // whether the grid goes to the current layer
            m_doc->layers().makeCurrent(layer(21));
            ScriptedPrompts user({{"yesNo", appTitle(),
                                   QStringLiteral("Kikapcsolt réteget választott!\nMegerősíti?"), confirmed,
                                   Icon::Question}});
            const int now = confirmed ? 12 : 21;
            inSetup([&, before = follows ? 21 : 10](frmSetup &d) {
                QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(before));
                doubleClickAt(d, cellOf(d, QStringLiteral("Út"), 1));
                QCOMPARE(user.asked(), 1);
                QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(now));
            });
            QCOMPARE(m_doc->layers().currentId(), layer(now).LayId);
        }
    }

    void allDocumentsAreOfferedFromTwoOn()
    {
        for (const int documents : {0, 1, 2}) {        // 0 = no list
            tests::Documents list({{m_doc.get(), QStringLiteral("a")}, {m_doc.get(), QStringLiteral("b")}});
            list.all.resize(size_t(documents));
            m_dialogs.setoDocList(documents > 0 ? &list : nullptr);
            inSetup([&](frmSetup &d) {
                QCOMPARE(d.cmdOkAllDocument->isVisible(), documents == 2);
                QCOMPARE(child<QPushButton>(d, "cmdAllDocMode").isVisible(), documents == 2);
            });
        }
    }
    void okInAllDocumentsTakesTheMarkedPartsOver()
    {
        const auto other = tests::layerDoc("12 Road, -21 House, -99 Own");
        tLay lines = layer(21);
        lines.ElByLayer = lines.TxByLayer = true;
        m_doc->layers().update(lines);
        tests::FaultyDoc mine(*m_doc), theirs(*other);
        tests::Documents list({{&mine, QStringLiteral("a")}, {&theirs, QStringLiteral("b")}});
        m_dialogs.setoDocList(&list);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(tool(d, "miAllDocMode_LayVisible").isChecked());
            tool(d, "miAllDocMode_LayVisible").trigger();
            QVERIFY(!d.cmdOkAllDocument->isEnabled());          // nothing to take over
            tool(d, "miAllDocMode_LayVisible").trigger();
            tool(d, "miAllDocMode_ElByLayer").trigger();
            d.cmdOkAllDocument->click();
        });
        QVERIFY(m_dialogs.bSetup(mine, 0));
        QStringList seen;
        for (const tLay &l : other->layers().readAll())
            seen << l.Name + QStringLiteral(" %1%2%3").arg(l.Visible).arg(l.ElByLayer).arg(l.TxByLayer);
        QCOMPARE(seen, QStringList({"Road 000", "House 110", "Own 000"}));
        QVERIFY(theirs.log.calls.contains(QStringLiteral("redrawAll")));
        QVERIFY(!mine.log.calls.contains(QStringLiteral("redrawAll")) && mine.log.writes().isEmpty());
    }

    void whileItRefillsItRefusesEverythingElse()
    {
        tests::FaultyDoc doc(*m_doc);
        const auto refusal =
            tests::warned(appTitle(), QStringLiteral("Frissítés van folyamatban, kérem várakozzék!"));
        ScriptedPrompts user({refusal, refusal, refusal, refusal});
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            doc.log.meanwhile = [&](const QString &call) {
                if (call != QLatin1String("layers.groups")) return;
                doc.log.meanwhile = {};
                for (const char *button : {"cmdOk", "cmdCancel"}) child<QPushButton>(d, button).click();
                for (const char *name : {"miLayer", "miAddNew"}) tool(d, name).trigger();
            };
            goTo(d, kPlot);
            tool(d, "cmdLays_SetVisibleOff").trigger();
            QVERIFY(d.isVisible() && !doc.log.meanwhile);
            QCOMPARE(user.asked(), 4);
            d.reject();
        });
        QVERIFY(!m_dialogs.bSetup(doc, 0));
        QVERIFY(!layer(10).Visible);
    }

    void theHostMayTearItDownInAnyCall()
    {
        for (const char *name : {"cmdLays_MakeCurrent", "cmdLays_SetVisibleOff", "a cell"})
            for (int at = 0, calls = 1; at < calls; ++at) {
                m_doc->layers().makeCurrent(layer(21));
                tests::FaultyDoc doc(*m_doc);
                const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
                    goTo(d, kPlot);
                    doc.log.calls.clear();
                    doc.log.meanwhile = [&](const QString &) {
                        if (doc.log.calls.size() == at + 1) d.TearDown();
                    };
                    QAbstractItemModel &cells = *child<Grid>(d, "gridItems").table()->model();
                    if (QAction *const action = d.findChild<QAction *>(QLatin1String(name)))
                        action->trigger();
                    else cells.setData(cells.index(0, 1), QString::number(at));
                    calls = int(doc.log.calls.size());
                    QVERIFY(calls > at && !d.jsLayer && !tool(d, "miAddNew").isEnabled());
                    d.reject();
                });
                QVERIFY(!m_dialogs.bEdit_Layers(doc));
            }
    }

    void aLanguageChangeReachesTheOpenDialog()
    {
        inSetup([](frmSetup &d) {
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.windowTitle(), QStringLiteral("Drawing setup – Layers"));
            QCOMPARE(currentLine(d), QStringLiteral("Current layer: 21 Épület"));
            QCOMPARE(d.cmdOkAllDocument->text(), QStringLiteral("OK in all drawings"));
            tool(d, "miView_Card").trigger();
        });
        QVERIFY(QFile::exists(settingsFolder() + QStringLiteral("/jsLayer-en.jgl")));
        QVERIFY(!QFile::exists(settingsFolder() + QStringLiteral("/jsLayer-hun.jgl")));
    }

    void everyErrorOfTheHostReachesTheCaller()
    {
        const auto work = [](frmSetup &d) {
            goTo(d, kPlot);
            for (const char *name : {"cmdLays_MakeCurrent", "cmdLays_SetVisibleOff"})
                if (d.isVisible()) tool(d, name).trigger();
            if (d.isVisible()) child<QPushButton>(d, "cmdOk").click();
        };
        const auto edit = [&](ZOLW_Doc &doc) {
            m_doc->layers().makeCurrent(layer(21));
            return m_dialogs.bEdit_Layers(doc);
        };
        QVERIFY(tests::failEachCall<frmSetup>(*m_doc, edit, work,
                                              [] { QVERIFY(traceObjects().entries().empty()); }) > 12);
    }
};

QVDC_TEST(tst_frmSetup)
#include "tst_frmSetup.moc"
