#include "rules/LayerTransfer.h"
#include "support/Registry.h"

#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

class tst_LayerTransfer : public QObject {
    Q_OBJECT
private slots:
    void onlyTheChosenPartsOfEqualNumbersGoOver_data()
    {
        QTest::addColumn<int>("parts"); // 1 visible, 2 lines, 4 texts
        QTest::addColumn<QString>("changed");
        QTest::newRow("none") << 0 << "";
        QTest::newRow("visible") << 1 << "12 off -- ";
        QTest::newRow("lines") << 2 << "12 on l- 13 on l- ";
        QTest::newRow("texts") << 4 << "12 on -t ";
        QTest::newRow("all") << 7 << "12 off lt 13 on l- ";
    }
    void onlyTheChosenPartsOfEqualNumbersGoOver()
    {
        QFETCH(int, parts);
        QFETCH(QString, changed);
        const tLayArr from{
            {.LayId = 1, .gNr = 12, .Name = "A", .Visible = false, .ElByLayer = true, .TxByLayer = true},
            {.LayId = 2, .gNr = 13, .Name = "B", .ElByLayer = true},
            {.LayId = 3, .gNr = 14, .Name = "C", .Visible = false}};
        const tLayArr to{{.LayId = 7, .gNr = 13, .Name = "X"},
                         {.LayId = 1, .gNr = 12, .Name = "Y"},
                         {.LayId = 3, .gNr = 15, .Name = "C"}};
        constexpr bool tLay::*all[] = {&tLay::Visible, &tLay::ElByLayer, &tLay::TxByLayer};
        std::vector<bool tLay::*> chosen;
        for (int i = 0; i < 3; ++i)
            if (parts & 1 << i) chosen.push_back(all[i]);
        tLayArr taken = takingOver(from, to, chosen);
        std::ranges::sort(taken, {}, &tLay::gNr);
        QString seen;
        for (const tLay &l : taken) {
            const auto own = std::ranges::find(to, l.LayId, &tLay::LayId);
            QCOMPARE(l.Name, own->Name);
            QCOMPARE(l.gNr, own->gNr);
            seen += QStringLiteral("%1 %2 %3%4 ")
                        .arg(l.gNr)
                        .arg(QLatin1String(l.Visible ? "on" : "off"), QLatin1String(l.ElByLayer ? "l" : "-"),
                             QLatin1String(l.TxByLayer ? "t" : "-"));
        }
        QCOMPARE(seen, changed);
    }
};

QVDC_TEST(tst_LayerTransfer)
#include "tst_LayerTransfer.moc"
