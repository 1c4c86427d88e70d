#include "document/SqliteDoc.h"

#include "facade/contract_tests/ContractTests.h"

#include "support/Registry.h"

#include <QTemporaryDir>
#include <QtTest/qtestcase.h>

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
        int n = 0;
        const auto findings = checkContract([&] { return SqliteDoc::create(folder.filePath(QStringLiteral("%1.qvd").arg(++n))); });
        QCOMPARE(toText(findings), QString());
        QVERIFY(n > 150); // a document for each promise
    }
};

QVDC_TEST(tst_Contract)
#include "tst_Contract.moc"
