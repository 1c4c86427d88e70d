#include "rules/FreeNumbers.h"
#include "rules/SymbolRules.h"
#include "facade/services/Language.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Numbers = std::vector<qint16>;

class tst_SymbolRules : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void numbersGoOnBehindTheHighestAndThenFillTheGaps()
    {
        QCOMPARE(freeNumbers({}, 2), (Numbers{1, 2}));
        QCOMPARE(freeNumbers({7, 2}, 2), (Numbers{8, 9}));
        QCOMPARE(freeNumbers({1, 3, 32766}, 3), (Numbers{32767, 2, 4}));
        Numbers all;
        for (int n = 1; n <= 32767; ++n) all.push_back(qint16(n));
        QVERIFY(freeNumbers(all, 1).empty());
        std::erase(all, 5);
        QCOMPARE(freeNumbers(all, 2), Numbers{5});
    }

    void aNewSymbolHasTheseDefaults()
    {
        const tSid wanted{.GroupName = "Fák", .GroupId = 4, .Code = 33, .ShortName = "Fa",
                          .FullName = "Új jelkulcs ...", .Align = 24, .Size_mm = 5, .YwFact = 1, .XwFact = 1,
                          .Facename = "ZolW_DAT1_M2", .Weight = 16, .CharSet = 238, .DspZoom = 10,
                          .LayId = 1};
        QCOMPARE(newSymbol("Fa", {4, "Fák"}), wanted);
    }

    void loadedSymbolsGetNumbersAndTheGroup()
    {
        const auto named = [](const char *name, qint16 id) {
            return tSid{.SidId = id, .ShortName = name};
        };
        const std::vector<tSid> all{named("A", 32766)},
            read{named("B", 1), named("A", 2), named("B", 3), named("C", 4)};
        const LoadedSymbols out = loaded(read, {9, "G"}, all);
        QCOMPARE(out.known, (QStringList{"A", "B"}));   // also what the file has twice
        QVERIFY(out.roomForAll && out.symbols.size() == 2);
        QCOMPARE((Numbers{out.symbols[0].SidId, out.symbols[1].SidId}), (Numbers{32767, 1}));
        QVERIFY(out.symbols[1].GroupId == 9 && out.symbols[1].GroupName == "G");
    }

    void thicknessIsKeptInHundredths()
    {
        QCOMPARE(weightOf(0.35), qint16(35));
        QCOMPARE(weightOf(0.29), qint16(29)); // 28.999...
    }
};

QVDC_TEST(tst_SymbolRules)
#include "tst_SymbolRules.moc"
