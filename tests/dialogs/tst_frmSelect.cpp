#include "dialogs/select/frmSelect.h"
#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QPushButton>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QAbstractItemView>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

Q_DECLARE_METATYPE(std::function<void(QV_DOC_CONTROLS::frmSelect &)>)
using Act = std::function<void(frmSelect &)>;

class tst_frmSelect : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    clsDocDlgs m_dialogs;

    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }
    static Act pick(qint16 number, const char *button)
    {
        return [=](frmSelect &d) {
            const auto row = d.jsLayer->selectedLayers();
            for (int r = 0; r < 9; ++r) {
                child<Grid>(d, "gridItems").setCurrentRow(r);
                if (d.jsLayer->selectedLayers().front().gNr == number) break;
            }
            child<QPushButton>(d, button).click();
        };
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_dialogs.setWarnInvisibleCurrentLayer(false);
        m_doc = tests::layerDoc({{.gNr = 10, .Name = QStringLiteral("Telekhatár")},
                                 {.gNr = 12, .Name = QStringLiteral("Út"), .Visible = false},
                                 {.gNr = 21, .Name = QStringLiteral("Épület")}});
        m_doc->layers().makeCurrent(layer(10));
    }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form or manager was not released"); }

    void okHandsOverTheChosenLayerAndMakesItCurrent()
    {
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>(pick(21, "cmdOk"));
        QVERIFY(m_dialogs.bSelect_Lay(*m_doc, lay));
        QCOMPARE(lay, layer(21));
        QCOMPARE(m_doc->layers().currentId(), layer(21).LayId);
    }

    void whateverIsNoOkLeavesRecordAndDocument_data()
    {
        QTest::addColumn<Act>("act");
        QTest::newRow("cancel") << pick(21, "cmdCancel");
        QTest::newRow("escape") << Act([](frmSelect &d) { QTest::keyClick(&d, Qt::Key_Escape); });
        QTest::newRow("close box") << Act([](frmSelect &d) { d.close(); });
        QTest::newRow("ok without a selected row") << Act([](frmSelect &d) {
            child<Grid>(d, "gridItems").selectRows({});
            child<QPushButton>(d, "cmdOk").click();
        });
    }
    void whateverIsNoOkLeavesRecordAndDocument()
    {
        QFETCH(Act, act);
        const tLay before = layer(12);
        tLay lay = before;
        const auto watch = whileModal<frmSelect>(act);
        QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
        QCOMPARE(lay, before);
        QCOMPARE(m_doc->layers().currentId(), layer(10).LayId);
    }

    void theCallersLayerIsCurrentAtFirst()
    {
        tLay lay = layer(12);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.jsLayer->selectedLayers(), tLayArr{layer(12)});
            QCOMPARE(d.jsLayer->currentLayer(), layer(12).LayId);
            d.reject();
        });
        QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
    }

    void severalLayersAreHandedOverAndTheCurrentOneStays()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);   // not for several
        ScriptedPrompts nobody;
        tLayArr chosen{layer(21), layer(12)};
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.jsLayer->selectedLayers(), (tLayArr{layer(12), layer(21)}));
            QCOMPARE(d.jsLayer->currentRecord(), layer(21));
            child<Grid>(d, "gridItems").selectRows(std::vector<int>{0, 1});
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(m_dialogs.bSelect_LayArr(*m_doc, chosen));
        QCOMPARE(chosen, (tLayArr{layer(10), layer(12)}));
        QCOMPARE(m_doc->layers().currentId(), layer(10).LayId);
    }
    /// What is chosen in one group stays chosen while another one is looked at, and is said to be hidden.
    void layersOfTwoGroupsAreSelected()
    {
        tLayArr chosen{layer(21)};
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            QVERIFY(QTest::qWaitForWindowActive(&d));
            Grid &items = child<Grid>(d, "gridItems");
            child<Grid>(d, "gridGroups").setCurrentRow(2);
            QCOMPARE(items.selectedCount(), 0);
            QAbstractItemView &table = *items.table();
            QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                              table.visualRect(table.model()->index(0, 1)).center());
            child<Grid>(d, "gridGroups").setCurrentRow(0);
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(m_dialogs.bSelect_LayArr(*m_doc, chosen));
        QCOMPARE(chosen, (tLayArr{layer(10), layer(21)}));
    }

    void severalLayersAreLeftAlone_data()
    {
        QTest::addColumn<Act>("act");
        QTest::newRow("cancel") << Act([](frmSelect &d) { child<QPushButton>(d, "cmdCancel").click(); });
        QTest::newRow("ok without a selected row") << Act([](frmSelect &d) {
            child<Grid>(d, "gridItems").selectRows({});
            child<QPushButton>(d, "cmdOk").click();
        });
    }
    void severalLayersAreLeftAlone()
    {
        QFETCH(Act, act);
        const tLayArr before{layer(21), layer(12)};
        tLayArr chosen = before;
        const auto watch = whileModal<frmSelect>(act);
        QVERIFY(!m_dialogs.bSelect_LayArr(*m_doc, chosen));
        QCOMPARE(chosen, before);
    }

    void anInvisibleLayerIsTakenWithoutAQuestionUnlessWanted()
    {
        ScriptedPrompts nobody;
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>(pick(12, "cmdOk"));
        QVERIFY(m_dialogs.bSelect_Lay(*m_doc, lay));
        QCOMPARE(lay, layer(12));
    }
    void noToTheInvisibleLayerKeepsTheDialogOpen()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        const QString question = QStringLiteral("12 Kikapcsolt réteget választott!\nMegerősíti?");
        ScriptedPrompts user({{"yesNo", QStringLiteral("ZOLDocDlgs"), question, false, Icon::Question},
                              {"yesNo", QStringLiteral("ZOLDocDlgs"), question, true, Icon::Question}});
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            pick(12, "cmdOk")(d);
            QVERIFY(d.isVisible());
            QCOMPARE(user.asked(), 1);
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(m_dialogs.bSelect_Lay(*m_doc, lay));
        QCOMPARE(lay, layer(12));
    }
    void noThenCancelIsACancel()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        ScriptedPrompts user(
            {{"yesNo", QStringLiteral("ZOLDocDlgs"),
              QStringLiteral("12 Kikapcsolt réteget választott!\nMegerősíti?"), false, Icon::Question}});
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            pick(12, "cmdOk")(d);
            child<QPushButton>(d, "cmdCancel").click();
        });
        QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
        QCOMPARE(lay, layer(10));
    }

    /// Each host call of the whole road fails once; the caller gets the host's own exception and nothing has
    /// changed.
    void everyErrorOfTheHostReachesTheCaller()
    {
        int failed = 0;
        for (bool confirmed = false; !confirmed; ++failed) {
            tests::FaultyDoc faulty(*m_doc);
            faulty.log.failAt = failed;
            tLay lay = layer(10);
            QTimer ok; // the dialog opens only once every call before it succeeds
            connect(&ok, &QTimer::timeout, &ok, [&] {
                auto *const d = qobject_cast<frmSelect *>(QApplication::activeModalWidget());
                if (d) ok.stop(), pick(21, "cmdOk")(*d);
            });
            ok.start(0);
            try {
                confirmed = m_dialogs.bSelect_Lay(faulty, lay);
            } catch (const tests::HostError &e) {
                QCOMPARE(QString::fromUtf8(e.what()), faulty.log.calls.last());
                QCOMPARE(lay, layer(10));
                QCOMPARE(m_doc->layers().currentId(), layer(10).LayId);
            }
            QVERIFY(!QApplication::activeModalWidget());
            QVERIFY(traceObjects().entries().empty());
        }
        QVERIFY2(failed > 7, qPrintable(QString::number(failed)));
    }
    /// A command of the dialog fails while a message box stands above it: both close, and nothing is asked
    /// again.
    void anErrorBehindAQuestionClosesEverything()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        tests::FaultyDoc faulty(*m_doc);
        frmSelect *open = nullptr;
        ScriptedPrompts user(
            {{"yesNo", QStringLiteral("ZOLDocDlgs"),
              QStringLiteral("12 Kikapcsolt réteget választott!\nMegerősíti?"), true, Icon::Question, [&] {
                  faulty.log.failNext = QStringLiteral("layers.update");
                  open->jsLayer->setAllowEdit(true);
                  QAbstractItemView &table = *child<Grid>(*open, "gridItems").table();
                  table.model()->setData(table.model()->index(1, 1), QStringLiteral("Más"));
              }}});
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            open = &d;
            pick(12, "cmdOk")(d);
        });
        QVERIFY_THROWS_EXCEPTION(tests::HostError, m_dialogs.bSelect_Lay(faulty, lay));
        QCOMPARE(lay, layer(10));
        QVERIFY(!faulty.log.calls.contains(QStringLiteral("layers.makeCurrent")));
    }

    void aLanguageChangeReachesTheOpenDialog_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("title");
        QTest::newRow("english") << int(English) << QStringLiteral("Layer selector");
        QTest::newRow("unknown is hungarian") << 1031 << QStringLiteral("Rétegválasztó");
    }
    void aLanguageChangeReachesTheOpenDialog()
    {
        QFETCH(int, language);
        QFETCH(QString, title);
        setLanguage(language == English ? Hungarian : English, {});
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            const QString before = d.windowTitle();
            setLanguage(language, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.windowTitle(), title);
            QVERIFY(d.windowTitle() != before);
            const QAbstractItemView &table = *child<Grid>(d, "gridItems").table();
            QCOMPARE(table.model()->headerData(1, Qt::Horizontal).toString(), txt(Text{3299, u"Rétegnév"}));
            d.reject();
        });
        QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
    }

    void theSplitterKeepsFromBothEdges()
    {
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            auto &splitter = child<QSplitter>(d, "imgSplitter");
            const int edge = int(std::lround(500 * d.logicalDpiX() / 1440.0));
            QCOMPARE(splitter.sizes()[0], int(std::lround(2400 * d.logicalDpiX() / 1440.0)));
            splitter.setSizes({1, 100000});
            QVERIFY(splitter.sizes()[0] >= edge);
            splitter.setSizes({100000, 1});
            QVERIFY(splitter.sizes()[1] >= edge);
            d.reject();
        });
        QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
    }

    void noOtherModeExists()
    {
        for (int mode : {-1, 6, 32767}) QVERIFY_THROWS_EXCEPTION(std::out_of_range, resourceKind(mode));
        QCOMPARE(txt(resourceKind(5).selectCaption), QStringLiteral("Vonaltípus jelkulcsozások"));
    }
};

QVDC_TEST(tst_frmSelect)
#include "tst_frmSelect.moc"
