#include "rules/LayerFile.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Why = LayerFileRefusal::Why;

namespace {

LayerFile sample()
{
    return {7, {{.LayId = 1, .gNr = 258, .Name = "Út", .Visible = true, .PenStyleId = 2, .ScrColor = 3,
              .PrnColor = 4, .PenColorId = 5, .TxdId = 6, .ElByLayer = true, .TxByLayer = false}}, {{9, "Ő"}},
            {{9, 1}}};
}
const QByteArray kBytes =
    QByteArray::fromHex("07000000" // in windows-1250
                        "01000000 0100 0201 0200da74 ffff 0200 0300 0400 0500 0600 ffff 0000"
                        "01000000 0900 0100d5"
                        "01000000 0900 0100");
const QString kPage = "windows-1250";

} // namespace

class tst_LayerFile : public QObject {
    Q_OBJECT
private slots:
    void writesAndReadsToTheByte()
    {
        QCOMPARE(std::get<QByteArray>(bytesOf(sample(), kPage)), kBytes);
        QVERIFY(std::get<LayerFile>(layerFileOf(kBytes, kPage)) == sample());
        QCOMPARE(layerFileVersionOf(kBytes), std::optional<qint32>(7));
        QCOMPARE(layerFileVersionOf("abc"), std::nullopt);
        for (const char flag : {0, 1}) {        // any value but zero is true
            QByteArray bytes = kBytes;
            bytes[16] = flag, bytes[17] = 0;
            QCOMPARE(std::get<LayerFile>(layerFileOf(bytes, kPage)).layers[0].Visible, flag != 0);
        }
    }
    void damagedFilesAreRefused()
    {
        for (qsizetype n = 0; n < kBytes.size(); ++n)
            QVERIFY2(std::holds_alternative<LayerFileRefusal>(layerFileOf(kBytes.first(n), kPage)),
                     qPrintable(QString::number(n)));
        const std::tuple<const char *, QByteArray, Why> rows[] = {
            {"two thousand million layers", QByteArray(kBytes).replace(4, 4, "\xff\xff\xff\x7f"),
             Why::WrongCount},
            {"less than none", QByteArray(kBytes).replace(4, 4, "\xff\xff\xff\xff"), Why::WrongCount},
            {"goes on after its end", kBytes + '\0', Why::TrailingBytes},
            {"a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), Why::WrongCount}};
        for (const auto &[name, bytes, why] : rows)
            tests::same(name, int(std::get<LayerFileRefusal>(layerFileOf(bytes, kPage)).why), int(why));
    }
    void whatTheCodePageLacksStopsTheSave()
    {
        const std::tuple<QString, QString, Why> rows[] = {{"Đường ế", kPage, Why::LetterLacking},
                                                          {QString(65536, u'a'), kPage, Why::NameTooLong},
                                                          {"a", "windows-9", Why::UnknownCodePage}};
        for (const auto &[name, page, why] : rows) {
            LayerFile file = sample();
            file.layers[0].Name = name;
            const auto refusal = std::get<LayerFileRefusal>(bytesOf(file, page));
            QCOMPARE(int(refusal.why), int(why));
            QVERIFY(refusal.name == name || refusal.name == page);
        }
    }
};

QVDC_TEST(tst_LayerFile)
#include "tst_LayerFile.moc"
