#include "rules/LayerFile.h"
#include "support/Registry.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Why = LayerFileRefusal::Why;

namespace {

LayerFile sample()
{
    return {7,
            {{.LayId = 1,
              .gNr = 258,
              .Name = QStringLiteral("Út"),
              .Visible = true,
              .PenStyleId = 2,
              .ScrColor = 3,
              .PrnColor = 4,
              .PenColorId = 5,
              .TxdId = 6,
              .ElByLayer = true,
              .TxByLayer = false}},
            {{9, QStringLiteral("Ő")}},
            {{9, 1}}};
}
QByteArray sampleBytes() // windows-1250
{
    return QByteArray::fromHex("07000000"
                               "01000000"
                               "0100"
                               "0201"
                               "0200"
                               "da74"
                               "ffff"
                               "0200"
                               "0300"
                               "0400"
                               "0500"
                               "0600"
                               "ffff"
                               "0000"
                               "01000000"
                               "0900"
                               "0100"
                               "d5"
                               "01000000"
                               "0900"
                               "0100");
}
const QString kPage = QStringLiteral("windows-1250");

} // namespace

class tst_LayerFile : public QObject {
    Q_OBJECT
private slots:
    void writesAndReadsToTheByte()
    {
        QCOMPARE(std::get<QByteArray>(bytesOf(sample(), kPage)), sampleBytes());
        QVERIFY(std::get<LayerFile>(layerFileOf(sampleBytes(), kPage)) == sample());
        QCOMPARE(layerFileVersionOf(sampleBytes()), std::optional<qint32>(7));
    }
    void anyValueButZeroIsTrue()
    {
        QByteArray bytes = sampleBytes();
        bytes.replace(16, 2, QByteArray::fromHex("0100"));
        QVERIFY(std::get<LayerFile>(layerFileOf(bytes, kPage)).layers[0].Visible);
        bytes.replace(16, 2, QByteArray::fromHex("0000"));
        QVERIFY(!std::get<LayerFile>(layerFileOf(bytes, kPage)).layers[0].Visible);
    }
    void everyCutIsRefused()
    {
        for (qsizetype n = 0; n < sampleBytes().size(); ++n) {
            const auto read = layerFileOf(sampleBytes().first(n), kPage);
            QVERIFY2(std::holds_alternative<LayerFileRefusal>(read), qPrintable(QString::number(n)));
        }
        QCOMPARE(layerFileVersionOf("abc"), std::nullopt);
    }
    void damagedFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("why");
        QByteArray huge = sampleBytes(), negative = sampleBytes();
        huge.replace(4, 4, QByteArray::fromHex("ffffff7f"));
        negative.replace(4, 4, QByteArray::fromHex("ffffffff"));
        QTest::newRow("claims two thousand million layers") << huge << int(Why::WrongCount);
        QTest::newRow("claims less than none") << negative << int(Why::WrongCount);
        QTest::newRow("goes on after its end") << sampleBytes() + '\0' << int(Why::TrailingBytes);
        QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << int(Why::WrongCount);
    }
    void damagedFilesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, why);
        QCOMPARE(int(std::get<LayerFileRefusal>(layerFileOf(bytes, kPage)).why), why);
    }
    void whatTheCodePageLacksStopsTheSave_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("why");
        QTest::newRow("vietnamese in 1250") << QStringLiteral("Đường ế") << kPage << int(Why::LetterLacking);
        QTest::newRow("too long") << QString(65536, u'a') << kPage << int(Why::NameTooLong);
        QTest::newRow("no such page")
            << QStringLiteral("a") << QStringLiteral("windows-9") << int(Why::UnknownCodePage);
    }
    void whatTheCodePageLacksStopsTheSave()
    {
        QFETCH(QString, name);
        QFETCH(QString, page);
        QFETCH(int, why);
        LayerFile file = sample();
        file.layers[0].Name = name;
        const auto refusal = std::get<LayerFileRefusal>(bytesOf(file, page));
        QCOMPARE(int(refusal.why), why);
        QVERIFY(refusal.name == name || refusal.name == page);
    }
};

QVDC_TEST(tst_LayerFile)
#include "tst_LayerFile.moc"
