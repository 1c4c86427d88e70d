#include "TinyDoc.h"

#include "facade/contract_tests/ContractTests.h"

#include "support/Registry.h"

#include <QtTest/QTest>

using namespace ZolWDoc;

/// The example of the host guide is a full host: it keeps every promise of the contract.
class tst_TinyDoc : public QObject {
    Q_OBJECT
private slots:
    void everyPromiseIsKept()
    {
        int documents = 0;
        const auto findings = checkContract([&] {
            ++documents;
            return filled();
        });
        QCOMPARE(toText(findings), QString());
        QVERIFY(documents > 50); // one for each promise
    }
private:
    static std::unique_ptr<ZOLW_Doc> filled()
    {
        auto doc = std::make_unique<example::TinyDoc>();
        tLay lay;
        lay.gNr = 1, lay.Name = QStringLiteral("first");
        lay.PenStyleId = doc->lineTypes().add({.PenStyleNr = 1, .Name = QStringLiteral("plain")});
        tTxd txd;
        txd.Name = QStringLiteral("plain");
        lay.TxdId = doc->textTypes().add(txd);
        doc->layers().add(lay);
        tSid sid;
        sid.ShortName = QStringLiteral("dot");
        doc->symbols().add(sid);
        return doc;
    }
};

QVDC_TEST(tst_TinyDoc)
#include "tst_TinyDoc.moc"
