#include "facade/services/Language.h"
#include "rules/LayerGroupRules.h"
#include "support/Registry.h"

using namespace tests;
using namespace ZolWDoc;
using Members = std::vector<tLayMember>;

class tst_LayerGroupRules : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setLanguage(Hungarian, {}); }

    void noLayerIsLeftWithoutAGroup()
    {
        const tLayMember members[] = {{1, 10}, {1, 11}, {2, 10}, {3, 12}};
        QVERIFY(!canDeleteGroup(1, members) && !canDeleteGroup(3, members));
        QVERIFY(canDeleteGroup(2, members) && canDeleteGroup(4, members)); // the last is empty
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

    void theSystemGroupIsKnownInEveryLanguage()
    {
        setLanguage(English, {});
        for (const auto &[name, id] : {std::pair("RENDSZER", 7), {"SYSTEM", 7}, {"SISTEM", 7},
                                       {"HỆ THỐNG", 7}, {"Rendszer", -1}}) { // the last is the user's
            const tGroup groups[] = {{4, "Utak"}, {7, name}, {9, "MIND"}};
            same(name, int(systemGroupIn(groups).value_or(-1)), id);
        }
    }

    void groupNamesAreUnique()
    {
        const tGroup groups[] = {{4, "Utak"}, {7, "Utak_2"}};
        QCOMPARE(freeGroupName("Utak", groups), "Utak_3");
        QCOMPARE(freeGroupName("utak", groups), "utak");
        QVERIFY(isGroupNameTaken("Utak", 7, groups) && !isGroupNameTaken("Utak", 4, groups));
        QVERIFY(isGroupNameTaken("MIND", 4, groups)); // would look like the row of all layers
    }
};

QVDC_TEST(tst_LayerGroupRules)
#include "tst_LayerGroupRules.moc"
