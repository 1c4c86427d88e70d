#include "document/SqliteDoc.h"
#include "host_document/FaultyDoc.h"

#include "facade/contract_tests/ContractTests.h"

#include "support/Registry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest/QTest>

using namespace ZolWDoc;
using refhost::SqliteDoc;

/// The reference host's document keeps every promise of the contract.
class tst_Contract : public QObject {
    Q_OBJECT
private slots:
    void everyPromiseIsKeptInMemory()
    {
        const auto findings = checkContract([] { return SqliteDoc::create(QStringLiteral(":memory:")); });
        QCOMPARE(toText(findings), QString());
    }
    void everyPromiseIsKeptOnAFile()
    {
        QTemporaryDir folder;
        const QString fresh = folder.filePath(QStringLiteral("fresh.qvd"));
        SqliteDoc::create(fresh);
        int n = 0;
        const auto findings = checkContract([&] {
            const QString path = folder.filePath(QStringLiteral("%1.qvd").arg(++n));
            QFile::copy(fresh, path);
            return SqliteDoc::open(path);
        });
        QCOMPARE(toText(findings), QString());
        QVERIFY(n > 150); // a document for each promise
    }

    void everyFaultIsFound_data()
    {
        QTest::addColumn<int>("fault");
        QTest::addColumn<QString>("foundIn");   // the role that must be found broken
        const auto row = [](const char *name, tests::Fault fault, const char *role) {
            QTest::newRow(name) << int(fault) << QString::fromLatin1(role);
        };
        using enum tests::Fault;
        row("add gives a used identifier", AddGivesUsedId, "points");
        row("add forgets every other record", AddForgetsLast, "points");
        row("find gives another record", FindGivesAnother, "symbols");
        row("find invents a record", FindInventsOne, "text types");
        row("count is off", CountIsOff, "line types");
        row("update forgets a member of layers", UpdateForgetsMember, "layers");
        row("update forgets a member of symbols", UpdateForgetsMember, "symbols");
        row("update forgets the slots", UpdateForgetsMember, "line types");
        row("update changes the others too", UpdateHitsAll, "points");
        row("update of an unknown record is silent", UpdateSwallowsUnknown, "line symbolizations");
        row("remove ignores references", RemoveIgnoresUses, "symbols");
        row("remove answers false", RemoveAnswersFalse, "points");
        row("uses is always 0", UsesAlwaysFree, "line symbolizations");
        row("addAll loses an identifier", AddAllForgetsIds, "text types");
        row("a failed updateAll lies", UpdateAllSaysAll, "layers");
        row("removeAll leaves the last out", RemoveAllStopsEarly, "line types");
        row("the current layer is forgotten", CurrentForgotten, "layers");
        row("orphans always go", OrphansAlwaysGo, "layers");
        row("a membership is lost", MembersForgotten, "layers: groups");
        row("new groups are not written", GroupsUnnumbered, "layers: groups");
        row("writeAll loses a layer", WriteAllForgets, "layers");
        row("renumbering leaves references behind", RenumberLeavesReferences, "text types");
        row("a group keeps its old name", GroupRenameForgotten, "symbols: groups");
        row("a full group is removed", GroupRemoveForced, "text types: groups");
        row("a taken number is told", TakeOverKeepsNumber, "text types");
        row("pens are shifted by one", PensShifted, "pen colours");
        row("the palette is not replaced", PaletteIgnored, "pen colours: palette");
        row("the revision stays", RevisionStays, "layers: revision");
        row("restore gives a new identifier", RestoreNewId, "layers: restore");
        row("discard keeps the changes", DiscardKeeps, "symbols: change scope");
        row("commit drops the changes", CommitDiscards, "line types: change scope");
        row("a failed command is taken back", ScopeRollsBackOnError, "command scope");
        row("the members by name are missing", LateBoundMissing, "members by name");
        row("the layers of a pen are not told", PenUsersForgotten, "pen colours: usage");
        row("a layer counts once per colour", PenUsersCountedTwice, "pen colours: usage");
        row("a list file is not looked at", ListFilesIgnored, "layers: text files");
        row("elements of other layers go too", ElementsOfAllLayersGo, "layers: elements");
        row("the elements gone are miscounted", ElementsMiscounted, "layers: elements");
    }
    void everyFaultIsFound()
    {
        QFETCH(int, fault);
        QFETCH(QString, foundIn);
        const auto findings =
            checkContract([&] { return tests::faulty(tests::Fault(fault)); }, {.onlyRole = foundIn});
        QVERIFY2(std::ranges::count(findings, foundIn, &ContractFinding::role) > 0,
                 qPrintable(toText(findings)));
    }
    void theFaultlessWrapperIsFoundFaultless()
    {
        QCOMPARE(toText(checkContract([] { return tests::faulty(tests::Fault::None); })), QString());
    }
};

QVDC_TEST(tst_Contract)
#include "tst_Contract.moc"
