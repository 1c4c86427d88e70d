#include "facade/services/Language.h"
#include "rules/LayerGroupRules.h"
#include "support/Registry.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Members = std::vector<tLayMember>;

class tst_LayerGroupRules : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }

    void noLayerIsLeftWithoutAGroup()
    {
        const tLayMember members[] = {{1, 10}, {1, 11}, {2, 10}, {3, 12}};
        QVERIFY(!canDeleteGroup(1, members));
        QVERIFY(canDeleteGroup(2, members));
        QVERIFY(!canDeleteGroup(3, members));
        QVERIFY(canDeleteGroup(4, members));            // an empty group
    }

    void layersJoinOrMove()
    {
        const Members before = {{1, 10}, {1, 11}, {2, 10}};
        const qint16 layers[] = {10, 11, 12};
        QCOMPARE(joined(before, layers, 2), (Members{{1, 10}, {1, 11}, {2, 10}, {2, 11}, {2, 12}}));
        QCOMPARE(moved(before, layers, 2), (Members{{2, 10}, {2, 11}, {2, 12}}));
        QCOMPARE(moved(before, {}, 2), before);
        QCOMPARE(withMembers({{-1, -1}}, Members{{-1, 1}, {1, -1}, {-1, 1}}),
                 (Members{{-1, -1}, {-1, 1}, {1, -1}}));
    }

    void theSystemGroupIsKnownInEveryLanguage_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");
        QTest::newRow("hu") << "RENDSZER" << true;
        QTest::newRow("en") << "SYSTEM" << true;
        QTest::newRow("ro") << "SISTEM" << true;
        QTest::newRow("vi") << "HỆ THỐNG" << true;
        QTest::newRow("the user's") << "Rendszer" << false;
    }
    void theSystemGroupIsKnownInEveryLanguage()
    {
        QFETCH(QString, name);
        QFETCH(bool, known);
        setLanguage(English, {});
        const tGroup groups[] = {{4, QStringLiteral("Utak")}, {7, name}, {9, QStringLiteral("MIND")}};
        QCOMPARE(systemGroupIn(groups), known ? std::optional(qint16(7)) : std::nullopt);
    }

    void groupNamesAreUnique()
    {
        const tGroup groups[] = {{4, QStringLiteral("Utak")}, {7, QStringLiteral("Utak_2")}};
        QCOMPARE(freeGroupName(QStringLiteral("Utak"), groups), QStringLiteral("Utak_3"));
        QCOMPARE(freeGroupName(QStringLiteral("utak"), groups), QStringLiteral("utak"));
        QVERIFY(isGroupNameTaken(QStringLiteral("Utak"), 7, groups));
        QVERIFY(!isGroupNameTaken(QStringLiteral("Utak"), 4, groups));
        QVERIFY(isGroupNameTaken(QStringLiteral("MIND"), 4, groups)); // would look like the row of all layers
    }
};

QVDC_TEST(tst_LayerGroupRules)
#include "tst_LayerGroupRules.moc"
