#include "dialogs/select/frmSelect.h"
#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "support/EachCall.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QPushButton>
#include <QSplitter>
#include <QTest>
#include <QAbstractItemView>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

Q_DECLARE_METATYPE(std::function<void(QV_DOC_CONTROLS::frmSelect &)>)
using Act = std::function<void(frmSelect &)>;

namespace {

ScriptedPrompts::Step hiddenAsked(bool answer, std::function<void()> meanwhile = {})
{
    return {"yesNo", QStringLiteral("ZOLDocDlgs"),
            QStringLiteral("12 Kikapcsolt réteget választott!\nMegerősíti?"), answer, Icon::Question,
            std::move(meanwhile)};
}

} // namespace

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
        m_doc = tests::layerDoc("10 Telekhatár, -12 Út, 21 Épület");
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
        tLay lay = layer(12);
        tLayArr several{layer(21), layer(12)};
        for (const bool one : {true, false}) {
            const auto watch = whileModal<frmSelect>(act);
            QVERIFY(!(one ? m_dialogs.bSelect_Lay(*m_doc, lay) : m_dialogs.bSelect_LayArr(*m_doc, several)));
        }
        QCOMPARE(lay, layer(12));
        QCOMPARE(several, (tLayArr{layer(21), layer(12)}));
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
        for (const bool givenUp : {true, false}) {
            std::vector<ScriptedPrompts::Step> asked{hiddenAsked(false)};
            if (!givenUp) asked.push_back(hiddenAsked(true));
            ScriptedPrompts user(asked);
            tLay lay = layer(10);
            const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
                pick(12, "cmdOk")(d);
                QVERIFY(d.isVisible());
                QCOMPARE(user.asked(), 1);
                child<QPushButton>(d, givenUp ? "cmdCancel" : "cmdOk").click();
            });
            QCOMPARE(m_dialogs.bSelect_Lay(*m_doc, lay), !givenUp);
            QCOMPARE(lay, layer(givenUp ? 10 : 12));
        }
    }

    void everyErrorOfTheHostReachesTheCaller()
    {
        const tLay before = layer(10);
        tLay lay = before;
        const auto unchanged = [&] {
            QCOMPARE(lay, before);
            QCOMPARE(m_doc->layers().currentId(), before.LayId);
            QVERIFY(traceObjects().entries().empty());
        };
        const auto select = [&](ZOLW_Doc &doc) { return m_dialogs.bSelect_Lay(doc, lay); };
        QVERIFY(tests::failEachCall<frmSelect>(*m_doc, select, pick(21, "cmdOk"), unchanged) > 7);
    }
    /// A command of the dialog fails while a message box stands above it: both close, and nothing is asked
    /// again.
    void anErrorBehindAQuestionClosesEverything()
    {
        m_dialogs.setWarnInvisibleCurrentLayer(true);
        tests::FaultyDoc faulty(*m_doc);
        frmSelect *open = nullptr;
        ScriptedPrompts user({hiddenAsked(true, [&] {
            faulty.log.failNext = QStringLiteral("layers.update");
            open->jsLayer->setAllowEdit(true);
            QAbstractItemView &table = *child<Grid>(*open, "gridItems").table();
            table.model()->setData(table.model()->index(1, 1), QStringLiteral("Más"));
        })});
        tLay lay = layer(10);
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            open = &d;
            pick(12, "cmdOk")(d);
        });
        QVERIFY_THROWS_EXCEPTION(tests::HostError, m_dialogs.bSelect_Lay(faulty, lay));
        QCOMPARE(lay, layer(10));
        QVERIFY(!faulty.log.calls.contains(QStringLiteral("layers.makeCurrent")));
    }

    void aLanguageChangeReachesTheOpenDialog()
    {
        const std::pair<int, const char *> rows[] = {{English, "Layer selector"},
                                                     {1031, "Rétegválasztó"}}; // unknown is Hungarian
        for (const auto &[language, title] : rows) {
            setLanguage(language == English ? Hungarian : English, {});
            tLay lay = layer(10);
            const auto watch = whileModal<frmSelect>([&, language = language, title = title](frmSelect &d) {
                setLanguage(language, {});
                emit LanguageHub::instance().LanguageChanged();
                QCOMPARE(d.windowTitle(), QString::fromUtf8(title));
                const QAbstractItemView &table = *child<Grid>(d, "gridItems").table();
                QCOMPARE(table.model()->headerData(1, Qt::Horizontal).toString(),
                         txt(Text{3299, u"Rétegnév"}));
                d.reject();
            });
            QVERIFY(!m_dialogs.bSelect_Lay(*m_doc, lay));
        }
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
