#include "dialogs/select/frmSetup.h"
#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/forms/Twips.h"
#include "support/Documents.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/MemoryStore.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

Q_DECLARE_METATYPE(std::function<void(QV_DOC_CONTROLS::frmSetup &)>)
using Act = std::function<void(frmSetup &)>;

namespace {

struct Host final : HostServices {
    tests::MemoryStore kept;
    SettingsStore *store() override { return &kept; }
    Host() { setHostServices(this); }
    ~Host() override { setHostServices(nullptr); }
};

/// The frame of the setup dialog, and its page of layers.
Grid &items(frmSetup &d) { return child<Grid>(d, "gridItems"); }
QAction &tool(frmSetup &d, const char *name) { return child<QAction>(d, name); }

void goTo(frmSetup &d, const QString &name)
{
    const QAbstractItemModel &rows = *items(d).table()->model();
    for (int row = 0; row < rows.rowCount(); ++row)
        if (rows.index(row, 1).data().toString() == name) items(d).setCurrentRow(row);
}
QPoint cellOf(frmSetup &d, const QString &name, int column)
{
    QAbstractItemView &table = *items(d).table();
    for (int line = 0; line < table.model()->rowCount(); ++line)
        if (table.model()->index(line, 1).data().toString() == name)
            return table.visualRect(table.model()->index(line, column)).center();
    return {-1, -1};
}
void doubleClickAt(frmSetup &d, QPoint at)
{
    QWidget *const cells = items(d).table()->viewport();
    QTest::mouseClick(cells, Qt::LeftButton, {}, at);
    QTest::mouseDClick(cells, Qt::LeftButton, {}, at);
}
void doubleClick(frmSetup &d, const QString &name, int column = 1)
{
    doubleClickAt(d, cellOf(d, name, column));
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
        m_dialogs.setWarnInvisibleCurrentLayer(false);
        m_dialogs.setAutomaticItemSelection(true);
        m_dialogs.setoDocList(nullptr);
        m_doc = tests::layerDoc({{.gNr = 10, .Name = QStringLiteral("Telek")},
                                 {.gNr = 12, .Name = QStringLiteral("Út"), .Visible = false},
                                 {.gNr = 21, .Name = QStringLiteral("Épület")}});
        m_doc->layers().makeCurrent(layer(21));
    }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form or manager was not released"); }

    void aPageOpensByItsNumber_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("title");
        QTest::newRow("layers") << 0 << QStringLiteral("Rajzbeállítás – Rétegek");
        QTest::newRow("not there yet") << 5 << QStringLiteral("Rajzbeállítás");
        QTest::newRow("none above") << 6 << QStringLiteral("Rajzbeállítás");
        QTest::newRow("none below") << -1 << QStringLiteral("Rajzbeállítás");
    }
    void aPageOpensByItsNumber()
    {
        QFETCH(int, page);
        QFETCH(QString, title);
        inSetup(
            [&](frmSetup &d) {
                QCOMPARE(d.windowTitle(), title);
                QCOMPARE(d.jsLayer != nullptr, page == 0);
                QCOMPARE(tool(d, "miLayer").isChecked(), page == 0);
                tool(d, "miLayer").trigger();           // makes its page on first use
                clsJs_Layer *const made = d.jsLayer;
                QVERIFY(made && items(d).isVisible());
                tool(d, "miLayer").trigger();
                QCOMPARE(d.jsLayer, made);
                QCOMPARE(d.windowTitle(), QStringLiteral("Rajzbeállítás – Rétegek"));
            },
            qint16(page));
    }
    void theBorderOfTheGroupListStays()
    {
        inSetup([](frmSetup &d) {
            auto &splitter = child<QSplitter>(d, "imgSplitter");
            QCOMPARE(splitter.sizes()[0], pixelsOf(2400, d));
            QCOMPARE(splitter.handleWidth(), 0);
            QTest::mousePress(splitter.handle(1), Qt::LeftButton, {}, {1, 20});
            QTest::mouseMove(splitter.handle(1), {90, 20});
            QTest::mouseRelease(splitter.handle(1), Qt::LeftButton, {}, {90, 20});
            QCOMPARE(splitter.sizes()[0], pixelsOf(2400, d));
        });
    }

    void howItIsClosedDecidesAndLayoutsAreKeptAnyway_data()
    {
        QTest::addColumn<Act>("close");
        QTest::addColumn<bool>("confirmed");
        QTest::newRow("ok") << Act([](frmSetup &d) { child<QPushButton>(d, "cmdOk").click(); }) << true;
        QTest::newRow("cancel") << Act([](frmSetup &d) { child<QPushButton>(d, "cmdCancel").click(); })
                                << false;
        QTest::newRow("close box") << Act([](frmSetup &d) { d.close(); }) << false;
        QTest::newRow("escape") << Act([](frmSetup &d) { QTest::keyClick(&d, Qt::Key_Escape); }) << false;
    }
    void howItIsClosedDecidesAndLayoutsAreKeptAnyway()
    {
        QFETCH(Act, close);
        QFETCH(bool, confirmed);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            tool(d, "miView_Card").trigger();
            items(d).table()->model()->setData(items(d).table()->model()->index(0, 1),
                                               QStringLiteral("Kert"));
            close(d);
        });
        QCOMPARE(m_dialogs.bSetup(*m_doc, 0), confirmed);
        QCOMPARE(layer(10).Name, QStringLiteral("Kert"));       // written at once, and stays
        inSetup([](frmSetup &d) {
            QVERIFY(items(d).view() == GridView::Card && tool(d, "miView_Card").isChecked());
        });
    }
    void widthsAreKeptForEachUse()
    {
        Host host;
        const auto openAt = [&](bool edit, int width) {
            const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
                if (width > 0) d.resize(width, 480);
                else QCOMPARE(d.size(), QSize(-width, 480));
                d.reject();
            });
            if (edit) m_dialogs.bEdit_Layers(*m_doc);
            else m_dialogs.bSetup(*m_doc, 0);
        };
        openAt(true, 720);
        openAt(false, 780);
        const auto twips = [](int pixels) { return QString::number(twipsOf(pixels, QWidget())); };
        QCOMPARE(host.kept.dump(),
                 QStringList({"ZolWOp/Settings/ZolWOpfrmSetup-Height=" + twips(480),
                              "ZolWOp/Settings/ZolWOpfrmSetup-Width4Edit=" + twips(720),
                              "ZolWOp/Settings/ZolWOpfrmSetup-Width4Select=" + twips(780)}));
        openAt(true, -720);
        openAt(false, -780);
    }

    void aLayerBecomesCurrentByDoubleClickOrControlEnterOnly_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("current");
        QTest::newRow("double click")
            << Act([](frmSetup &d) { doubleClick(d, QStringLiteral("Telek")); }) << 10;
        QTest::newRow("beside the check mark") << Act([](frmSetup &d) {
            const QPoint mark = cellOf(d, QStringLiteral("Telek"), 2);
            const QAbstractItemView &table = *items(d).table();
            doubleClickAt(d, {table.visualRect(table.indexAt(mark)).left() + 3, mark.y()});
        }) << 10;
        QTest::newRow("on the check mark")
            << Act([](frmSetup &d) { doubleClick(d, QStringLiteral("Telek"), 2); }) << 21;
        QTest::newRow("Ctrl+Enter") << Act([](frmSetup &d) {
            goTo(d, QStringLiteral("Telek"));
            QTest::keyClick(items(d).table(), Qt::Key_Return, Qt::ControlModifier);
        }) << 10;
        QTest::newRow("the keypad's") << Act([](frmSetup &d) {
            goTo(d, QStringLiteral("Telek"));
            QTest::keyClick(items(d).table(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
        }) << 10;
        QTest::newRow("moving") << Act([](frmSetup &d) { goTo(d, QStringLiteral("Telek")); }) << 21;
        QTest::newRow("ok") << Act([](frmSetup &d) {
            goTo(d, QStringLiteral("Telek"));
            child<QPushButton>(d, "cmdOk").click();
        }) << 21;
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
            ScriptedPrompts user({{"yesNo", QStringLiteral("Érintett pontok törlése"),
                                   QStringLiteral("Kéred a keletkezett önálló pontok törlését is?"), true,
                                   Icon::Exclamation}});
            tool(d, "miRemove").trigger();
            const auto current = d.jsLayer->currentLayerAsRead();
            QVERIFY(current && current->gNr != 21);
            QVERIFY(currentLine(d).endsWith(current->Name));
        });
    }
    void noToAnInvisibleLayerGoesBack_data()
    {
        QTest::addColumn<bool>("confirmed");
        QTest::addColumn<bool>("automatic");
        QTest::newRow("yes") << true << true;
        QTest::newRow("no") << false << true;
        QTest::newRow("no, and the grid does not follow") << false << false;
    }
    void noToAnInvisibleLayerGoesBack()
    {
        QFETCH(bool, confirmed);
        QFETCH(bool, automatic);
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        m_dialogs.setAutomaticItemSelection(automatic);
        ScriptedPrompts user({{"yesNo", appTitle(),
                               QStringLiteral("Kikapcsolt réteget választott!\nMegerősíti?"), confirmed,
                               Icon::Question}});
        inSetup([&](frmSetup &d) {
            QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(automatic ? 21 : 10));
            doubleClick(d, QStringLiteral("Út"));
            QCOMPARE(user.asked(), 1);
            QCOMPARE(d.jsLayer->currentRecord()->gNr, qint16(confirmed ? 12 : 21));
        });
        QCOMPARE(m_doc->layers().currentId(), layer(confirmed ? 12 : 21).LayId);
    }

    void allDocumentsAreOfferedFromTwoOn_data()
    {
        QTest::addColumn<int>("documents");
        QTest::addColumn<bool>("offered");
        QTest::newRow("no list") << -1 << false;
        QTest::newRow("one") << 1 << false;
        QTest::newRow("two") << 2 << true;
    }
    void allDocumentsAreOfferedFromTwoOn()
    {
        QFETCH(int, documents);
        QFETCH(bool, offered);
        tests::Documents list({{m_doc.get(), QStringLiteral("a")}, {m_doc.get(), QStringLiteral("b")}});
        list.all.resize(size_t(std::abs(documents)));
        m_dialogs.setoDocList(documents < 0 ? nullptr : &list);
        inSetup([&](frmSetup &d) {
            QCOMPARE(d.cmdOkAllDocument->isVisible(), offered);
            QCOMPARE(child<QPushButton>(d, "cmdAllDocMode").isVisible(), offered);
        });
    }
    void okInAllDocumentsTakesTheMarkedPartsOver()
    {
        const auto other = tests::layerDoc({{.gNr = 12, .Name = QStringLiteral("Road")},
                                            {.gNr = 21, .Name = QStringLiteral("House"), .Visible = false},
                                            {.gNr = 99, .Name = QStringLiteral("Own"), .Visible = false}});
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
            seen << QStringLiteral("%1 %2 %3%4%5")
                        .arg(l.gNr).arg(l.Name).arg(l.Visible).arg(l.ElByLayer).arg(l.TxByLayer);
        seen.sort();
        QCOMPARE(seen, QStringList({"12 Road 000", "21 House 110", "99 Own 000"}));
        QVERIFY(theirs.log.calls.contains(QStringLiteral("redrawAll")));
        QVERIFY(!mine.log.calls.contains(QStringLiteral("redrawAll")) && mine.log.writes().isEmpty());
    }
    void aDocumentThatFailsIsNamed()
    {
        const auto second = tests::layerDoc({{.gNr = 12, .Name = QStringLiteral("Road")}});
        const auto third = tests::layerDoc({{.gNr = 12, .Name = QStringLiteral("Road")}});
        tests::FaultyDoc faulty(*second);
        tests::Documents list({{m_doc.get(), QStringLiteral("a.qvd")},
                               {&faulty, QStringLiteral("b.qvd")},
                               {third.get(), QStringLiteral("c.qvd")}});
        m_dialogs.setoDocList(&list);
        faulty.log.failNext = QStringLiteral("layers.update");
        ScriptedPrompts user(
            {{"tell",
              appTitle(),
              QStringLiteral("Nem sikerült átvinni a rétegek tulajdonságait ebbe a rajzba: b.qvd\n"
                             "layers.update\nA sorrendben utána következő rajzok nem változtak."),
              {},
              Icon::Exclamation}});
        const auto watch = whileModal<frmSetup>([](frmSetup &d) { d.cmdOkAllDocument->click(); });
        QVERIFY_THROWS_EXCEPTION(tests::HostError, m_dialogs.bSetup(*m_doc, 0));
        QVERIFY(third->layers().findByNumber(12)->Visible);
    }

    void whileItRefillsItRefusesEverythingElse()
    {
        tests::FaultyDoc doc(*m_doc);
        const QString wait = QStringLiteral("Frissítés van folyamatban, kérem várakozzék!");
        const ScriptedPrompts::Step refusal{"tell", appTitle(), wait, {}, Icon::Exclamation};
        ScriptedPrompts user({refusal, refusal, refusal, refusal});
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            doc.log.meanwhile = [&](const QString &call) {
                if (call != QLatin1String("layers.groups")) return;
                doc.log.meanwhile = {};
                for (const char *button : {"cmdOk", "cmdCancel"}) child<QPushButton>(d, button).click();
                tool(d, "miLayer").trigger();
                tool(d, "miAddNew").trigger();
            };
            goTo(d, QStringLiteral("Telek"));
            tool(d, "cmdLays_SetVisibleOff").trigger();
            QVERIFY(d.isVisible() && !doc.log.meanwhile);
            QCOMPARE(user.asked(), 4);
            d.reject();
        });
        QVERIFY(!m_dialogs.bSetup(doc, 0));
        QVERIFY(!layer(10).Visible);
    }

    void aLanguageChangeReachesTheOpenDialog()
    {
        inSetup([](frmSetup &d) {
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.windowTitle(), QStringLiteral("Drawing setup – Layers"));
            QCOMPARE(currentLine(d), QStringLiteral("Current layer: 21 Épület"));
            QCOMPARE(QString(tool(d, "cmdLays_Copy").text()).remove(u'&'), QStringLiteral("Copy..."));
            QCOMPARE(d.cmdOkAllDocument->text(), QStringLiteral("OK in all drawings"));
            QCOMPARE(items(d).table()->model()->headerData(1, Qt::Horizontal).toString(),
                     QStringLiteral("Layer name"));
            tool(d, "miView_Card").trigger();
        });
        QVERIFY(QFile::exists(settingsFolder() + QStringLiteral("/jsLayer-en.jgl")));
        QVERIFY(!QFile::exists(settingsFolder() + QStringLiteral("/jsLayer-hun.jgl")));
    }

    /// Each host call of the whole road fails once; the caller gets the host's own exception.
    void everyErrorOfTheHostReachesTheCaller()
    {
        int failed = 0;
        for (bool confirmed = false; !confirmed; ++failed) {
            tests::FaultyDoc faulty(*m_doc);
            faulty.log.failAt = failed;
            m_doc->layers().makeCurrent(layer(21));
            QTimer acts; // the dialog opens only once every call before it succeeds
            connect(&acts, &QTimer::timeout, &acts, [&] {
                auto *const d = qobject_cast<frmSetup *>(QApplication::activeModalWidget());
                if (!d) return;
                acts.stop();
                goTo(*d, QStringLiteral("Telek"));
                tool(*d, "cmdLays_MakeCurrent").trigger();
                if (d->isVisible()) tool(*d, "cmdLays_SetVisibleOff").trigger();
                if (d->isVisible()) child<QPushButton>(*d, "cmdOk").click();
            });
            acts.start(0);
            try {
                confirmed = m_dialogs.bEdit_Layers(faulty);
                QVERIFY(confirmed);
            } catch (const tests::HostError &e) {
                QCOMPARE(QString::fromUtf8(e.what()), faulty.log.calls[failed]);
            }
            QVERIFY(!QApplication::activeModalWidget());
            QVERIFY(traceObjects().entries().empty());
        }
        QVERIFY2(failed > 12, qPrintable(QString::number(failed)));
    }
};

QVDC_TEST(tst_frmSetup)
#include "tst_frmSetup.moc"
