#include "DxfSource.h"

#include "support/Registry.h"

#include <QtTest/QTest>

#include <locale>

using namespace refhost;
using source::Dxf;
using source::Imported;

namespace {

template <class Act> QString errorOf(Act act)
{
    try {
        act();
    } catch (const DocumentError &e) {
        return e.text();
    }
    return {};
}

struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

const QByteArray kTable =
    "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 A|70 0|62 3|6 CONTINUOUS|0 ENDTAB";

} // namespace

class tst_DxfFiles : public QObject {
    Q_OBJECT
private slots:
    void brokenFilesAreRefusedWithOneMessage_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("reason");                // the text that says why
        const QByteArray good = Dxf{.tables = kTable, .entities = "0 LINE|8 0|10 0|20 0|11 1|21 1"}.bytes();
        QTest::newRow("empty") << QByteArray() << 30304;
        QTest::newRow("a letter") << QByteArray("Dear Sir,\nplease find enclosed\n") << 30304;
        QTest::newRow("zeros") << QByteArray(4096, '\0') << 30304;
        QTest::newRow("numbers only") << QByteArray("1\n2\n3\n4\n") << 30304;
        QTest::newRow("cut in a value") << good.left(good.size() / 2) << 30306;
        QTest::newRow("cut after a section") << good.left(good.indexOf("0\nENDSEC") + 9) << 30306;
        QTest::newRow("without its end mark") << good.left(good.size() - 6) << 30306;
        QTest::newRow("rows shifted") << good.left(200) + "x\n" + good.mid(200) << 30304;
        QTest::newRow("no drawing in it")
            << QByteArray("0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n") << 30304;
        QTest::newRow("binary") << QByteArray("AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION", 32) << 30302;
        QTest::newRow("another format of drawings") << QByteArray("AC1032\0\0\0\0\0", 11) << 30303;
    }
    void brokenFilesAreRefusedWithOneMessage()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, reason);
        const QTemporaryDir folder;
        const QString path = source::written(folder, bytes),
                      target = folder.filePath(QStringLiteral("new.qvd"));
        const Imported open(Dxf{.entities = "0 POINT|8 0|10 1|20 1"}.bytes());
        ImportReport report;
        const QString message = errorOf([&] { DxfImport::into(target, path, {}, report); });
        QVERIFY2(message.contains(path), qPrintable(message));
        QVERIFY2(message.contains(QV_DOC_CONTROLS::txt(QV_DOC_CONTROLS::Text{reason})), qPrintable(message));
        QCOMPARE(open.elements(), QStringList{"Point l1 p-1 1,1"});
        QVERIFY(!QFile::exists(target));
        QVERIFY(errorOf([&] { DxfImport::guessOf(path); }) == message);
    }

    void onlyANewDocumentIsWritten()
    {
        const QByteArray bytes = Dxf{.entities = "0 POINT|8 0|10 1|20 1"}.bytes();
        const Imported in(bytes);
        const QTemporaryDir folder;
        const Drawing drawing = DxfImport::parse(source::written(folder, bytes));
        QVERIFY(!errorOf([&] { DxfImport::write(drawing, *in.doc, {}); }).isEmpty());
        QCOMPARE(in.elements(), QStringList{"Point l1 p-1 1,1"});
    }

    void breakingOffLeavesNoDocument()
    {
        const QTemporaryDir folder;
        const QString path = source::written(folder, Dxf{.entities = "0 POINT|8 0|10 1|20 1"}.bytes());
        const QString target = folder.filePath(QStringLiteral("new.qvd"));
        for (double stopAt : {0.0, 0.3, 0.55, 1.0}) {
            ImportReport report;
            double last = -1;
            const auto progress = [&](double done) {
                if (done < last) qFatal("progress runs backwards");
                last = done;
                return done < stopAt;
            };
            QVERIFY_THROWS_EXCEPTION(ImportCancelled, DxfImport::into(target, path, {}, report, progress));
            QVERIFY(!QFile::exists(target));
        }
        ImportReport report;
        QCOMPARE(DxfImport::into(target, path, {}, report)->info().importedFrom, QStringLiteral("plan.dxf"));
    }

    void announcedCountsAreNotTrusted()
    {
        const Imported in(
            Dxf{.entities =
                    "0 LWPOLYLINE|8 0|90 1073741825|70 0|10 0|20 0|10 1|20 0|"
                    "0 LWPOLYLINE|8 0|70 0|10 5|20 5|10 6|20 5|"
                    "0 SPLINE|8 0|71 1|72 -7|73 2147483647|40 0|40 0|40 1|40 1|10 0|20 0|10 8|20 0|"
                    "0 SPLINE|8 0|71 3|74 2|11 0|21 0|11 1|21 0|0 LEADER|8 0|76 99999999|10 0|20 0|10 1|20 1"}
                .bytes());
        QCOMPARE(in.elements().size(), 5);
        QCOMPARE(in.elements().at(0), QStringLiteral("Line l1 p-1 0,0 1,0"));
        QCOMPARE(in.elements().at(1), QStringLiteral("Line l1 p-1 5,5 6,5"));
        QCOMPARE(in.elements().at(4), QStringLiteral("Line l1 p-1 0,0 1,1"));
    }

    void hostileSizesEnd()
    {
        QByteArray blocks;          // each holds the next one ten times, and the last one itself
        for (int i = 0; i < 12; ++i)
            blocks += "0 BLOCK|8 0|2 B" + QByteArray::number(i) + "|70 0|10 0|20 0"
                      + QByteArray("|0 INSERT|8 0|41 2|2 B" + QByteArray::number(std::min(i + 1, 11))
                                   + "|10 0|20 0")
                            .repeated(10)
                      + "|0 ENDBLK|";
        blocks.chop(1);
        const QByteArray hatch =
            "0 HATCH|8 0|10 0|20 0|30 0|2 P|70 0|91 1|92 2|72 0|73 1|93 3|10 1e20|20 1e20|10 1.1e20|20 1e20|"
            "10 1e20|20 1.1e20|97 0|75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 0|44 0|45 0|46 1e17|79 2|49 1|49 "
            "-1|98 0";
        QVERIFY(errorOf([&] {
                    Imported(Dxf{.blocks = blocks, .entities = "0 INSERT|8 0|2 B0|10 0|20 0"}.bytes());
                }).contains(QStringLiteral("5000000")));
        QCOMPARE(
            Imported(
                Dxf{.entities =
                        hatch
                        + "|0 ELLIPSE|8 0|10 0|20 0|11 1|21 0|40 0.5|41 0|42 1e300|0 INSERT|8 0|2 B|10 0|"
                          "20 0|70 32000|71 32000"}
                    .bytes())
                .elements()
                .size(),
            2);
    }

    void longTextsStayWhole()
    {
        const QByteArray text = QByteArray("árvíz ").repeated(400);
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1021",
                              .entities = "0 TEXT|8 0|10 0|20 0|40 1|1 " + text + "|0 POINT|8 0|10 1|20 1"}
                              .bytes());
        QCOMPARE(in.doc->elements().at(0).text, QString::fromUtf8(text));
        QCOMPARE(in.elements().at(1), QStringLiteral("Point l1 p-1 1,1"));
    }

    void numbersHaveADecimalPointInEveryLocale()
    {
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
        const QStringList elements =
            Imported(
                Dxf{.entities = "0 CIRCLE|8 0|10 1.5|20 2.25|40 0.5|0 POINT|8 0|10 1.25|20 1e-1"}.bytes())
                .elements();
        const bool kept = std::use_facet<std::numpunct<char>>(std::locale()).decimal_point() == ',';
        std::locale::global(before);
        QVERIFY(kept);
        QCOMPARE(elements, (QStringList{"Line l1 p-1 1,2.25b1 2,2.25b1 closed", "Point l1 p-1 1.25,0.1"}));
    }

    void theUnitComesFromTheHeadUnlessTheDrawingDenies_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<QByteArray>("entities");
        QTest::addColumn<double>("metres");
        QTest::addColumn<double>("scale");
        QTest::addColumn<bool>("noted");
        const QByteArray near = "0 LINE|8 0|10 0|20 0|11 1|21 1|0 POINT|8 0|10 800|20 400",
                         far = "0 LINE|8 0|10 650000|20 240000|11 1|21 1|0 POINT|8 0|10 650300|20 240200",
                         sheet = "0 POINT|8 0|10 -100|20 -150|0 TEXT|8 0|10 109|20 148|40 3|1 N",
                         limits = "|9 $LIMMAX|10 12.0|20 9.0";
        const auto texts = [](const char *one) {
            QByteArray all = "0 POINT|8 0|10 900|20 900";
            for (int i = 0; i < 3; ++i)
                all += "|0 TEXT|8 0|10 " + QByteArray::number(i) + "|20 0|40 6|1 " + one;
            return all;
        };
        const auto row = [](const char *name, const QByteArray &header, const QByteArray &entities,
                            double metres, double scale, bool noted = false) {
            QTest::newRow(name) << header << entities << metres << scale << noted;
        };
        row("named: feet", "|9 $INSUNITS|70 2", near, 0.3048, 250);
        row("named: millimetres, too small", "|9 $INSUNITS|70 4", near, 0.001, 100, true);
        row("map coordinates", "|9 $INSUNITS|70 4", far, 1, 500, true);
        row("map coordinates in feet", "|9 $INSUNITS|70 2", far, 0.3048, 100);
        row("imperial", "|9 $MEASUREMENT|70 0", near, 0.0254, 100);
        row("nothing said", "", near, 1, 1000);
        row("a sheet of inches", limits, near, 0.0254, 100);
        row("a sheet of inches, but metric", limits + "|9 $MEASUREMENT|70 1", near, 1, 1000);
        row("feet and inches", "|9 $INSUNITS|70 4", texts("\\A1;12'-6\""), 0.0254, 100, true);
        row("feet and inches shown", "|9 $LUNITS|70 4", near, 0.0254, 100);
        row("angles are no lengths", "|9 $INSUNITS|70 6", texts("47%%d12'30\""), 1, 2000);
        row("single lengths in a plan of feet", "|9 $INSUNITS|70 2", texts("10'-0\" SETBACK"), 0.3048, 500);
        row("an A4 sheet", "", sheet, 0.001, 1, true);
        row("a sheet in metres", "|9 $INSUNITS|70 6", sheet, 1, 500);
    }
    void theUnitComesFromTheHeadUnlessTheDrawingDenies()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, entities);
        QFETCH(double, scale);
        QFETCH(bool, noted);
        const QTemporaryDir folder;
        const ImportGuess guess = DxfImport::guessOf(source::written(
            folder, Dxf{.header = "9 $ACADVER|1 AC1015" + header, .entities = entities}.bytes()));
        QTEST(lengthUnits()[size_t(guess.unit)].metres, "metres");
        QCOMPARE(guess.scale, scale);
        QCOMPARE(!guess.note.isEmpty(), noted);
    }
    void lineWeightsThatAreLostAreToldByKind()
    {
        const Imported in(Dxf{
            .tables = "0 TABLE|2 LAYER|0 LAYER|2 a|70 0|62 1|370 35|0 LAYER|2 b|70 0|62 1|370 -3|0 ENDTAB",
            .entities = "0 LINE|8 a|370 50|10 0|20 0|11 1|21 0|0 LINE|8 a|370 -1|10 0|20 0|11 1|21 0|"
                        "0 LINE|8 a|370 0|10 0|20 0|11 1|21 0|0 LINE|8 a|67 1|370 50|10 0|20 0|11 1|21 0|"
                        "0 HATCH|8 a|370 13|2 SOLID|70 1|91 1|92 2|72 0|73 1|93 3|10 0|20 0|10 4|20 0|"
                        "10 4|20 4|97 0|75 0|76 1"}
                              .bytes());
        QCOMPARE(in.tally("LINE").weighted, 2);
        QCOMPARE(in.tally("HATCH").weighted, 1);
        QStringList notes;
        for (const ImportReport::Row &row : in.report.notes)
            notes << QString::number(row.count) + u' ' + row.text;
        QVERIFY(notes.contains(QStringLiteral("2 vonal (LINE), a saját vonalvastagsága nélkül")));
        QVERIFY(notes.contains(QStringLiteral("1 sraffozás (HATCH), a saját vonalvastagsága nélkül")));
        QVERIFY(notes.contains(QStringLiteral("1 réteg a saját vonalvastagsága nélkül")));
    }
};

QVDC_TEST(tst_DxfFiles)
#include "tst_DxfFiles.moc"
