#include "host_document/BrokenDoc.h"

#include "facade/contract_tests/ContractTests.h"

#include "support/Registry.h"

using namespace ZolWDoc;
using refhost::SqliteDoc;

namespace {

/// Faults, and the role that must be found broken.
constexpr std::pair<const char *, const char *> kFaults[] = {
    {"add gives a used identifier", "symbols"}, {"add forgets every other record", "symbols"},
    {"find gives another record", "symbols"}, {"find invents a record", "symbols"},
    {"the count is off", "symbols"}, {"update forgets a member of symbols", "symbols"},
    {"update forgets a member of layers", "layers"}, {"update forgets the slots", "line types"},
    {"update changes the records before it", "symbols"}, {"update changes the records behind it", "symbols"},
    {"updateAll changes a record that is not meant", "symbols"}, {"remove changes what stays", "symbols"},
    {"removeAll changes what stays", "symbols"}, {"update of an unknown record is silent", "symbols"},
    {"remove ignores references", "symbols"}, {"remove answers false", "symbols"},
    {"uses is always 0", "symbols"}, {"addAll loses an identifier", "symbols"},
    {"a failed addAll takes all back", "symbols"}, {"a failed updateAll lies", "symbols"},
    {"removeAll leaves the last out", "symbols"},
    {"the current layer is forgotten", "layers"}, {"orphans always go", "layers"},
    {"a membership is lost", "layers: groups"}, {"a group is lost", "layers: groups"},
    {"writeAll loses a layer", "layers"}, {"renumbering leaves references behind", "text types"},
    {"a taken number is told", "text types"}, {"a group keeps its old name", "symbols: groups"},
    {"a full group is removed", "symbols: groups"}, {"pens are shifted by one", "pen colours"},
    {"the palette is not replaced", "pen colours: palette"}, {"the revision stays", "layers: revision"},
    {"restore gives a new identifier", "layers: restore"},
    {"discard keeps the changes", "symbols: change scope"},
    {"commit drops the changes", "line types: change scope"},
    {"a failed command is taken back", "command scope"},
    {"the members by name are missing", "members by name"},
    {"the layers of a pen are not told", "pen colours: usage"},
    {"a layer counts once per colour", "pen colours: usage"},
    {"a list file is not looked at", "layers: text files"},
    {"elements of other layers go too", "layers: elements"},
    {"the elements gone are miscounted", "layers: elements"},
};

QStringList rolesFoundIn(const QString &onlyRole)
{
    QStringList roles;
    for (const auto &f :
         checkContract([] { return std::make_unique<broken::Doc>(); }, {.onlyRole = onlyRole}))
        roles << f.role;
    return roles;
}

} // namespace

/// The reference host's document keeps every promise of the contract, and a broken one is found out.
class tst_Contract : public QObject {
    Q_OBJECT
private slots:
    void everyPromiseIsKeptInMemory()
    {
        const auto findings = checkContract([] { return SqliteDoc::create(":memory:"); });
        QCOMPARE(toText(findings), QString());
    }
    void everyPromiseIsKeptOnAFile()
    {
        QTemporaryDir folder;
        const QString fresh = folder.filePath("fresh.qvd");
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
    void everyFaultIsFound()
    {
        QCOMPARE(rolesFoundIn({}), QStringList());
        for (const auto &[fault, role] : kFaults) {
            broken::s_fault = fault;
            QVERIFY2(rolesFoundIn(role).contains(role), fault);
        }
        broken::s_fault.clear();
    }
};

QVDC_TEST(tst_Contract)
#include "tst_Contract.moc"
