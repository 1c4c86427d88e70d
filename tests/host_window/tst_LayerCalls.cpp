#include "host_window/Program.h"
#include "window/DialogCalls.h"

#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/Grid.h"

#include "support/Modal.h"

using namespace tests;

namespace {

struct Sample : Program {
    Sample() : Program(&FileCommands::openSample) {}
    ZolWDoc::tLay layer(qint16 number, int tab = 0)
    {
        return *page(tab).doc().layers().findByNumber(number);
    }
    ZolWDoc::tLay shown(qint16 number, int tab = 0)
    {
        return *page(tab).view().scene().resources().layers.find(layer(number, tab).LayId);
    }
    bool call(const char *name)
    {
        for (const DialogCall &c : dialogCalls())
            if (qstrcmp(c.name, name) == 0) return window->run(c);
        return false;
    }
    /// In the setup dialog: these rows, then that tool; the dialog stays open.
    static void use(frmSetup &d, const std::vector<int> &rows, const char *tool)
    {
        tests::child<Grid>(d, "gridItems").setCurrentRow(rows.front());
        tests::child<Grid>(d, "gridItems").selectRows(rows);
        tests::child<QAction>(d, tool).trigger();
    }
};

} // namespace

/// The library's layer dialogs at work in the program: what they do to the drawing is seen behind them.
class tst_LayerCalls : public QObject {
    Q_OBJECT
private slots:
    void whatIsDoneInTheDialogShowsBehindIt()
    {
        Sample s;
        QCOMPARE(s.status("layerStatus"), "Réteg: 101 Földrészlet határ");
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            Sample::use(d, {0, 1}, "cmdLays_SetVisibleOff");
            QTRY_VERIFY(!s.shown(101).Visible && !s.shown(102).Visible);
            QVERIFY(s.status("layerStatus").endsWith("(nem látható)"));
            Sample::use(d, {2}, "cmdLays_MakeCurrent");
            QTRY_COMPARE(s.status("layerStatus"), "Réteg: 103 Alrészlet határ");
            d.reject();
        });
        QVERIFY(!s.call("bEdit_Layers"));
        QVERIFY(!s.layer(101).Visible);             // edits stay, also after Cancel
        QVERIFY(s.window->windowTitle().contains(u'*')); // the sample is no longer what it was
    }
    void whatStandsOnTheChosenLayersIsSelected()
    {
        Sample s;
        const qint16 houses = s.layer(201).LayId;
        const auto &elements = s.view().scene().elements();
        const auto house = std::ranges::find(elements, houses, &Element::layId);
        s.view().select({int(house - elements.begin())});
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.jsLayer->selectedLayers(), ZolWDoc::tLayArr{s.layer(201)});
            tests::child<Grid>(d, "gridItems").selectRows(std::vector{0, 1});
            tests::child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(s.call("bSelect_LayArr"));
        const qint16 a = s.layer(101).LayId, b = s.layer(102).LayId;
        QCOMPARE(s.view().selection().size(), s.doc().elementsOf(a).size() + s.doc().elementsOf(b).size());
        for (int i : s.view().selection()) {
            const qint16 on = s.view().scene().elements()[size_t(i)].layId;
            QVERIFY(on == a || on == b);
        }
        QCOMPARE(s.status("layerStatus"), "Réteg: 101 Földrészlet határ"); // the current one stays
    }
    void anErrorOfTheDocumentClosesTheDialogAndIsTold()
    {
        Sample s;
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.txt");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("101 Telek\n7 Nincs") > 0);
        file.close();
        const QString why = "A(z) '" + path + "' fájl hibás, ezért semmi nem változott. Hibás sor: 2, nincs "
                                              "ilyen sorszámú réteg.";
        ScriptedPrompts user({{"openFile", "Rétegek átnevezése", "Rétegek (*.txt)|*.txt", path},
                              {"tell", "A művelet nem sikerült", why, {}, Icon::Exclamation}});
        const auto watch =
            whileModal<frmSetup>([](frmSetup &d) { Sample::use(d, {0}, "cmdLays_FileRename"); });
        QVERIFY(!s.call("bEdit_Layers"));
    }
    void whatGoesToAllDrawingsShowsInEach()
    {
        Sample s;
        QVERIFY(s.files().openSample());
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            Sample::use(d, {1}, "cmdLays_SetVisibleOff");
            d.cmdOkAllDocument->click();
        });
        QVERIFY(s.call("bSetup"));
        QVERIFY(!s.shown(102, 1).Visible && !s.shown(102).Visible && s.shown(101).Visible);
    }
};

QVDC_TEST(tst_LayerCalls)
#include "tst_LayerCalls.moc"
