#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/MainWindow.h"

#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/services/Language.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/Grid.h"

#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace refhost;
using namespace QV_DOC_CONTROLS;
using tests::child;
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
