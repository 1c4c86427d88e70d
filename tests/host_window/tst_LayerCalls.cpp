#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/MainWindow.h"

#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/Grid.h"

#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace refhost;
using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

/// The library's layer dialogs at work in the program: what they do to the drawing is seen behind them.
class tst_LayerCalls : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<MainWindow> m_window;

    DrawingPage &page(int tab) { return *m_window->tabs().page(tab); }
    static ZolWDoc::tLay layer(DrawingPage &page, qint16 number)
    {
        return *page.doc().layers().findByNumber(number);
    }
    static ZolWDoc::tLay shown(DrawingPage &page, qint16 number)
    {
        return *page.view().scene().resources().layers.find(layer(page, number).LayId);
    }
    QString status() { return m_window->findChild<QLabel *>(QStringLiteral("layerStatus"))->text(); }
    bool call(const char *name)
    {
        for (const DialogCall &c : dialogCalls())
            if (qstrcmp(c.name, name) == 0) return m_window->run(c);
        return false;
    }
    static void chooseRows(QDialog &dialog, const std::vector<int> &rows)
    {
        child<Grid>(dialog, "gridItems").setCurrentRow(rows.front());
        child<Grid>(dialog, "gridItems").selectRows(rows);
    }
    static void use(QDialog &dialog, const char *tool) { child<QAction>(dialog, tool).trigger(); }

private slots:
    void init()
    {
        m_services = std::make_unique<HostServices>();
        m_services->language()->setForThisRun(Hungarian);
        m_window = std::make_unique<MainWindow>(*m_services);
        QVERIFY(m_window->files().openSample());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_services.reset();
    }

    void everyCallHasAButton()
    {
        for (const DialogCall &c : dialogCalls()) {
            const auto *const action = m_window->findChild<QAction *>(QLatin1String(c.name));
            QVERIFY(action && !action->associatedObjects().isEmpty());
            bool onToolBar = false;
            for (const QObject *o : action->associatedObjects())
                onToolBar = onToolBar || o->inherits("QToolBar");
            QVERIFY2(onToolBar, c.name);
        }
    }

    void whatIsSwitchedInTheDialogShowsBehindIt()
    {
        QCOMPARE(status(), QStringLiteral("Réteg: 101 Földrészlet határ"));
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            chooseRows(d, {0, 1});
            use(d, "cmdLays_SetVisibleOff");
            QTRY_VERIFY(!shown(page(0), 101).Visible && !shown(page(0), 102).Visible);
            QVERIFY(status().endsWith(QStringLiteral("(nem látható)")));
            d.reject();
        });
        QVERIFY(!call("bEdit_Layers"));
        QVERIFY(!layer(page(0), 101).Visible);      // edits stay, also after Cancel
    }

    void theStatusBarFollowsTheCurrentLayer()
    {
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            chooseRows(d, {2});
            use(d, "cmdLays_MakeCurrent");
            QTRY_COMPARE(status(), QStringLiteral("Réteg: 103 Alrészlet határ"));
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(call("bSetup"));
    }

    void anInvisibleLayerIsAskedForUnlessTheUserDoesNotWantIt()
    {
        ZolWDoc::tLay hidden = layer(page(0), 103);
        hidden.Visible = false;
        page(0).doc().layers().update(hidden);
        ScriptedPrompts user({{"yesNo", appTitle(),
                               QStringLiteral("Kikapcsolt réteget választott!\nMegerősíti?"), false,
                               Icon::Question}});
        const auto makeCurrent = [&](qint16 expected) {
            const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
                chooseRows(d, {2});
                use(d, "cmdLays_MakeCurrent");
                d.reject();
            });
            call("bSetup");
            QCOMPARE(page(0).doc().layers().currentId(), layer(page(0), expected).LayId);
        };
        makeCurrent(101);
        m_window->findChild<QAction *>(QStringLiteral("warn"))->trigger();
        makeCurrent(103);
    }

    void whatStandsOnTheChosenLayersIsSelected()
    {
        DrawingPage &sample = page(0);
        const qint16 houses = layer(sample, 201).LayId;
        const auto &elements = sample.view().scene().elements();
        const auto house = std::ranges::find(elements, houses, &Element::layId);
        sample.view().select({int(house - elements.begin())});
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.jsLayer->selectedLayers(), ZolWDoc::tLayArr{layer(sample, 201)});
            chooseRows(d, {0, 1});
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(call("bSelect_LayArr"));
        const qint16 a = layer(sample, 101).LayId, b = layer(sample, 102).LayId;
        QVERIFY(!sample.view().selection().empty());
        QCOMPARE(sample.view().selection().size(),
                 sample.doc().elementsOf(a).size() + sample.doc().elementsOf(b).size());
        for (int i : sample.view().selection()) {
            const qint16 on = sample.view().scene().elements()[size_t(i)].layId;
            QVERIFY(on == a || on == b);
        }
        QCOMPARE(status(), QStringLiteral("Réteg: 101 Földrészlet határ")); // the current one stays
    }

    void elementsOfLayersAreDeletedWhileTheLayersStay()
    {
        const auto there = page(0).doc().elementsOf(layer(page(0), 201).LayId).size();
        QVERIFY(there > 0);
        ScriptedPrompts user(
            {{"yesNo", QStringLiteral("Rétegek elemeinek törlése"),
              QStringLiteral("Kijelölt rétegek száma: 1\nRajzelemek rajtuk: %1\nBiztosan törlöd "
                             "ezeket a rajzelemeket? A rétegek megmaradnak.")
                  .arg(there),
              true, Icon::Exclamation}});
        const size_t before = page(0).view().scene().elements().size();
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            chooseRows(d, {6});
            use(d, "cmdLays_DeleteObjs");
            QTRY_COMPARE(page(0).view().scene().elements().size(), before - there);
            d.reject();
        });
        call("bEdit_Layers");
        QCOMPARE(layer(page(0), 201).Name, QStringLiteral("Lakóépület"));
        QVERIFY(m_window->windowTitle().contains(u'*')); // the sample is no longer what it was
    }

    void aTextFileIsAppliedOrItsMistakeTold_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("told");
        QTest::newRow("applied") << QByteArray("101 Telekhat\xE1r") << QStringLiteral("Telekhatár")
                                 << QString();
        QTest::newRow("wrong") << QByteArray("101 Telek\n7 Nincs") << QStringLiteral("Földrészlet határ")
                               << QStringLiteral(
                                      "' fájl hibás, ezért semmi nem változott. Hibás sor: 2, nincs "
                                      "ilyen sorszámú réteg.");
    }
    void aTextFileIsAppliedOrItsMistakeTold()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, told);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.txt"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        std::vector<ScriptedPrompts::Step> steps{{"openFile",
                                                  QStringLiteral("Rétegek átnevezése"),
                                                  QStringLiteral("Rétegek (*.txt)|*.txt"),
                                                  path}};
        if (!told.isEmpty()) // the mistake closes the dialog; the program tells it
            steps.push_back({"tell",
                             QStringLiteral("A művelet nem sikerült"),
                             QStringLiteral("A(z) '") + path + told,
                             QVariant(),
                             Icon::Exclamation});
        ScriptedPrompts user(steps);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            use(d, "cmdLays_FileRename");
            if (told.isEmpty()) d.reject();
        });
        QVERIFY(!call("bEdit_Layers"));
        QTEST(layer(page(0), 101).Name, "name");
        QTEST(shown(page(0), 101).Name, "name");
    }

    void whatGoesToAllDrawingsShowsInEach()
    {
        QVERIFY(m_window->files().openSample());
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(d.cmdOkAllDocument->isVisible());
            chooseRows(d, {1});
            use(d, "cmdLays_SetVisibleOff");
            d.cmdOkAllDocument->click();
        });
        QVERIFY(call("bSetup"));
        QVERIFY(!shown(page(1), 102).Visible && !shown(page(0), 102).Visible);
        QVERIFY(shown(page(0), 101).Visible);
    }
};

QVDC_TEST(tst_LayerCalls)
#include "tst_LayerCalls.moc"
