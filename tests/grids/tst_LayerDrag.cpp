#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/RealDrag.h"
#include "support/Registry.h"
#include "support/ShownForm.h"

#include <QMimeData>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

using Shown = tests::ShownForm<tests::LayerForm>;
constexpr int kAll = 0, kRoads = 2, kEmpty = 3; // lines of the group list

} // namespace

class tst_LayerDrag : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;

private slots:
    void init()
    {
        const bool byPointer = std::strcmp(QTest::currentTestFunction(), "thePointerDragsBothWays") == 0;
        if (!byPointer && tests::RealDrag::isPossible()) QSKIP("a drag would wait for the pointer");
        setLanguage(Hungarian, {});
        m_doc = tests::fourLayers();
    }

    void layersJoinTheGroupTheyAreDroppedOn()
    {
        tests::FaultyDoc counted(*m_doc);
        Shown form(counted);
        form.select({1, 2, 3});
        const auto mime = form.dragged(form.grid);
        QCOMPARE(mime->formats(), QStringList{"FromZol3GridLayer"});
        counted.log.calls.clear();
        QVERIFY(Shown::drop(*mime, form.groups, kRoads));
        QCOMPARE(tests::dumpGroups(*m_doc), QStringLiteral("RENDSZER: 1 2 3 4 | Utak: 1 2 3 4 | Üres:"));
        QCOMPARE(counted.log.calls.count(QStringLiteral("scopes.begin")), 1);
        QCOMPARE(form.selection(), QStringLiteral("1* 2 3"));
        QCOMPARE(form.chosenGroup(), QStringLiteral("MIND"));
        QVERIFY(Shown::drop(*mime, form.groups, kRoads)); // they are members already
        QCOMPARE(counted.log.calls.count(QStringLiteral("scopes.begin")), 1);
    }

    void aGroupGivesItsLayersToAnother()
    {
        Shown form(*m_doc);
        form.groups.setCurrentRow(kRoads);
        const auto mime = form.dragged(form.groups);
        QCOMPARE(mime->formats(), QStringList{"FromZol3GroupLayer"});
        QVERIFY(Shown::drop(*mime, form.groups, kEmpty));
        QCOMPARE(tests::dumpGroups(*m_doc), QStringLiteral("RENDSZER: 1 2 3 4 | Utak: 2 4 | Üres: 2 4"));
        QCOMPARE(form.chosenGroup(), QStringLiteral("Utak"));
    }

    void aGroupOnTheLayersShowsWhatIsInIt()
    {
        Shown form(*m_doc);
        form.groups.setCurrentRow(kRoads);
        const auto mime = form.dragged(form.groups);
        form.groups.setCurrentRow(kAll);
        for (const int line : {0, -1}) {                // on a row and below all rows
            form.grid.selectRows({});
            QVERIFY(Shown::drop(*mime, form.grid, line));
            QCOMPARE(form.chosenGroup(), QStringLiteral("Utak"));
            QCOMPARE(form.listed(), QStringLiteral("2 4"));
            QCOMPARE(form.js.selectedLayers().size(), size_t(2));
        }
        QCOMPARE(tests::dumpGroups(*m_doc), QString::fromUtf8(tests::kFourLayers));
    }

    void whatMeansNothingIsRefused()
    {
        Shown form(*m_doc), other(*m_doc);
        form.select({1}), other.select({1});
        QVERIFY(!form.drop(form.grid, form.groups, kAll));  // all layers are no group
        QVERIFY(!form.drop(form.grid, form.groups, -1));
        QVERIFY(!form.drop(form.grid, form.grid, 0));
        QVERIFY(!form.dragged(form.groups));                // "MIND" is chosen
        form.groups.setCurrentRow(kRoads);
        QVERIFY(!form.drop(form.groups, form.groups, kRoads));
        QVERIFY(!form.drop(form.groups, form.groups, kAll));

        const auto foreign = other.dragged(other.grid);     // of another form, maybe another document
        QVERIFY(!Shown::drop(*foreign, form.groups, kEmpty));
        other.groups.setCurrentRow(kRoads);
        const auto foreignGroup = other.dragged(other.groups);
        QVERIFY(!Shown::drop(*foreignGroup, form.groups, kEmpty) &&
                !Shown::drop(*foreignGroup, form.grid, 0));
        QMimeData junk;
        for (const QByteArray &bytes : {QByteArray(), QByteArray("junk"), QByteArray(40, '\xff')}) {
            for (const char *format : {"FromZol3GridLayer", "FromZol3GroupLayer", "text/plain"})
                junk.setData(format, bytes);
            QVERIFY(!Shown::drop(junk, form.groups, kEmpty) && !Shown::drop(junk, form.grid, 0));
        }

        form.groups.setCurrentRow(kAll);
        form.select({1});
        const auto mime = form.dragged(form.grid);
        form.js.setAllowEdit(false);
        QVERIFY(!Shown::drop(*mime, form.groups, kEmpty));
        QVERIFY(!form.grid.activeView()->dragEnabled() && !form.groups.activeView()->dragEnabled());
        form.js.setAllowEdit(true);
        QVERIFY(form.grid.activeView()->dragEnabled() && form.groups.activeView()->dragEnabled());
        QCOMPARE(tests::dumpGroups(*m_doc), QString::fromUtf8(tests::kFourLayers));
    }

    void thePointerDragsBothWays()
    {
        if (const char *const why = tests::RealDrag::hindrance()) QSKIP(why);
        Shown form(*m_doc);
        form.window.move(50, 50);
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        form.select({1, 2, 3});
        tests::RealDrag toGroup(form.grid, 0, form.groups, kEmpty);
        QTRY_COMPARE_WITH_TIMEOUT(tests::dumpGroups(*m_doc), QString::fromUtf8(tests::kFourLayers) + " 1 2 3",
                                  15000);
        QVERIFY(toGroup.ended());
        tests::RealDrag toLayers(form.groups, kRoads, form.grid, 0);
        QTRY_COMPARE_WITH_TIMEOUT(form.listed(), QStringLiteral("2 4"), 15000);
        QTRY_COMPARE_WITH_TIMEOUT(form.js.selectedLayers().size(), size_t(2), 15000);
        QVERIFY(toLayers.ended());
    }

    void anErrorOfTheHostReachesTheForm()
    {
        for (const char *call : {"layers.members", "scopes.begin", "layers.writeMembers", "scopes.end"}) {
            tests::FaultyDoc faulty(*m_doc);
            Shown form(faulty);
            form.select({1});
            const auto mime = form.dragged(form.grid);
            faulty.log.failNext = QLatin1String(call);
            Shown::drop(*mime, form.groups, kEmpty);
            QVERIFY2(form.error, call);
            const bool written = std::strcmp(call, "scopes.end") == 0;
            QCOMPARE(tests::dumpGroups(*m_doc),
                     QString::fromUtf8(tests::kFourLayers) + (written ? " 1" : ""));
            form.groups.setCurrentRow(kEmpty);
            QCOMPARE(form.listed(), written ? QStringLiteral("1") : QString());
        }
    }
};

QVDC_TEST(tst_LayerDrag)
#include "tst_LayerDrag.moc"
