#include "host_window/Program.h"
#include "window/DialogCalls.h"

#include "dialogs/editors/frmEditSid.h"
#include "dialogs/editors/frmSupSid.h"
#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/Grid.h"

#include "controls/usInputBox.h"
#include "support/MenuWay.h"
#include "support/Modal.h"
#include "support/Typing.h"

#include <QTreeView>

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

/// A new drawing with the symbols A and B; what its user does with them by mouse and keys.
struct Symbols : Program {
    qint16 first = 0, second = 0;
    QImage empty;
    Symbols()
    {
        ZolWDoc::tSid s = doc().symbols().readAll().front();
        s.Facename = "DejaVu Sans", s.Code = 'M', s.Size_mm = 5, s.Type = 0;
        s.ShortName = "A", first = s.SidId = doc().symbols().add(s);
        s.ShortName = "B", second = s.SidId = doc().symbols().add(s);
        page().refresh();
    }
    void choose(const char *entry) { QVERIFY(chooseInMenu(*window->menuBar(), entry)); }
    static void click(QAbstractItemView &list, qint16 number)
    {
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QModelIndex cell = list.model()->index(row, 0);
            if (cell.data().toInt() != number) continue;
            list.scrollTo(cell);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(cell).center());
        }
    }
    template <class Dialog> static QAbstractItemView &listOf(Dialog &d)
    {
        if constexpr (std::is_same_v<Dialog, frmSupSid>) return *d.lvSids->report();
        else return *tests::child<Grid>(d, "gridItems").table();
    }
    template <class Dialog> static void confirm(Dialog &d)
    {
        QTest::mouseClick(&tests::child<QPushButton>(d, "cmdOk"), Qt::LeftButton);
    }
    template <class Dialog> void pick(qint16 number)
    {
        const auto user = whileModal<Dialog>([&](Dialog &d) { click(listOf(d), number), confirm(d); });
        choose("bSelect_Sid");
    }
    /// In its editor, which Ctrl+E opens.
    template <class Dialog> void resize(qint16 number, const char *size)
    {
        const auto user = whileModal<Dialog>([&](Dialog &d) {
            click(listOf(d), number);
            const auto editor = whileModal<frmEditSid>([&](frmEditSid &e) {
                e.usNumSize->txtCombo->setFocus();
                QTest::keySequence(e.focusWidget(), QKeySequence::SelectAll);
                type(e, QString::fromUtf8(size));
                confirm(e);
            });
            QTest::keyClick(&listOf(d), Qt::Key_E, Qt::ControlModifier);
            confirm(d);
        });
        choose("bEdit_Sids");
    }
    int ink()                                   ///< pixels that differ from the empty drawing
    {
        const QImage now = view().grab().toImage();
        int n = 0;
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width(); ++x) n += now.pixel(x, y) != empty.pixel(x, y);
        return n;
    }
};

} // namespace

/// The library's dialogs at work in the program: what they do to the drawing is seen behind them.
class tst_DialogCalls : public QObject {
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
    void symbolsAreChosenAndEditedFromTheMenu_data()
    {
        QTest::addColumn<bool>("classic");
        QTest::newRow("selection and setup") << false;
        QTest::newRow("classic manager") << true;
    }
    void symbolsAreChosenAndEditedFromTheMenu()
    {
        QFETCH(bool, classic);
        Symbols s;
        if (classic) s.choose("oldStyle");
        s.empty = s.view().grab().toImage();
        if (classic) s.pick<frmSupSid>(s.second);
        else s.pick<frmSelect>(s.second);
        QVERIFY(s.child<QAction>("symbol").isChecked()); // ready to be placed
        QTest::mouseClick(&s.view(), Qt::LeftButton, {}, s.view().rect().center());
        QCOMPARE(s.doc().elements().size(), size_t(1));
        QCOMPARE(s.doc().elements()[0].sidId, s.second);
        QTRY_VERIFY(s.ink() > 0);
        const int before = s.ink();
        if (classic) s.resize<frmSupSid>(s.second, "12,5");
        else s.resize<frmSetup>(s.second, "12,5");
        QCOMPARE(s.doc().symbols().find(s.second)->Size_mm, 12.5f);
        QCOMPARE(s.doc().symbols().find(s.first)->Size_mm, 5.0f);
        QTRY_VERIFY(s.ink() > 2 * before);
        if (classic) s.choose("oldStyle"); // a setting, which is kept
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

QVDC_TEST(tst_DialogCalls)
#include "tst_DialogCalls.moc"
