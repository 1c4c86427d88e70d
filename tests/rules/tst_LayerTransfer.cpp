#include "rules/LayerTransfer.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

class tst_LayerTransfer : public QObject {
    Q_OBJECT
private slots:
    void onlyTheChosenPartsOfEqualNumbersGoOver()
    {
        const std::pair<std::vector<bool tLay::*>, const char *> rows[] = {
            {{}, ""},
            {{&tLay::Visible}, "12 Y off -- "},
            {{&tLay::ElByLayer}, "12 Y on l- 13 X on l- "},
            {{&tLay::TxByLayer}, "12 Y on -t "},
            {{&tLay::Visible, &tLay::ElByLayer, &tLay::TxByLayer}, "12 Y off lt 13 X on l- "}};
        const tLayArr from{
            {.LayId = 1, .gNr = 12, .Name = "A", .Visible = false, .ElByLayer = true, .TxByLayer = true},
            {.LayId = 2, .gNr = 13, .Name = "B", .ElByLayer = true},
            {.LayId = 3, .gNr = 14, .Name = "C", .Visible = false}};
        const tLayArr to{{.LayId = 7, .gNr = 13, .Name = "X"}, {.LayId = 1, .gNr = 12, .Name = "Y"},
                         {.LayId = 3, .gNr = 15, .Name = "C"}};
        for (const auto &[parts, changed] : rows) {
            tLayArr taken = takingOver(from, to, parts);
            std::ranges::sort(taken, {}, &tLay::gNr);
            QString seen;
            for (const tLay &l : taken)
                seen += QString("%1 %2 %3 %4%5 ")
                            .arg(l.gNr)
                            .arg(l.Name, l.Visible ? "on" : "off")
                            .arg(l.ElByLayer ? "l" : "-", l.TxByLayer ? "t" : "-");
            QCOMPARE(seen, changed);
        }
    }
};

QVDC_TEST(tst_LayerTransfer)
#include "tst_LayerTransfer.moc"
