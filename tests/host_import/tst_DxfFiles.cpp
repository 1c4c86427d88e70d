#include "DxfSource.h"

#include "support/Registry.h"

#include <locale>

using namespace refhost;
using source::Dxf;
using source::errorOf;
using source::Imported;
using source::kLayers;
using tests::same;

namespace {

struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

const QByteArray kPoint = Dxf{.entities = "0 POINT|8 0|10 1|20 1"}.bytes();

/// What is said of a drawing, what is in it, and the unit and scale that are guessed.
struct Guess {
    const char *name;
    QByteArray header, entities;
    double metres, scale;
    bool noted = false;
};
QByteArray texts(const char *one)
{
    QByteArray all = "0 POINT|8 0|10 900|20 900";
    for (int i = 0; i < 3; ++i) all += "|0 TEXT|8 0|10 " + QByteArray::number(i) + "|20 0|40 6|1 " + one;
    return all;
}
const QByteArray kNear = "0 LINE|8 0|10 0|20 0|11 1|21 1|0 POINT|8 0|10 800|20 400",
                 kFar = "0 LINE|8 0|10 650000|20 240000|11 1|21 1|0 POINT|8 0|10 650300|20 240200",
                 kSheet = "0 POINT|8 0|10 -100|20 -150|0 TEXT|8 0|10 109|20 148|40 3|1 N",
                 kLimits = "|9 $LIMMAX|10 12.0|20 9.0";
const Guess kGuesses[] = {
    {"named: feet", "|9 $INSUNITS|70 2", kNear, 0.3048, 250},
    {"named: millimetres, too small", "|9 $INSUNITS|70 4", kNear, 0.001, 100, true},
    {"map coordinates", "|9 $INSUNITS|70 4", kFar, 1, 500, true},
    {"map coordinates in feet", "|9 $INSUNITS|70 2", kFar, 0.3048, 100},
    {"imperial", "|9 $MEASUREMENT|70 0", kNear, 0.0254, 100},
    {"nothing said", "", kNear, 1, 1000},
    {"a sheet of inches", kLimits, kNear, 0.0254, 100},
    {"a sheet of inches, but metric", kLimits + "|9 $MEASUREMENT|70 1", kNear, 1, 1000},
    {"feet and inches", "|9 $INSUNITS|70 4", texts("\\A1;12'-6\""), 0.0254, 100, true},
    {"feet and inches shown", "|9 $LUNITS|70 4", kNear, 0.0254, 100},
    {"angles are no lengths", "|9 $INSUNITS|70 6", texts("47%%d12'30\""), 1, 2000},
    {"single lengths in a plan of feet", "|9 $INSUNITS|70 2", texts("10'-0\" SETBACK"), 0.3048, 500},
    {"an A4 sheet", "", kSheet, 0.001, 1, true},
    {"a sheet in metres", "|9 $INSUNITS|70 6", kSheet, 1, 500},
};

} // namespace

class tst_DxfFiles : public QObject {
    Q_OBJECT
private slots:
    void brokenFilesAreRefusedWithOneMessage()
    {
        const QByteArray good = Dxf{.tables = kLayers, .entities = "0 LINE|8 0|10 0|20 0|11 1|21 1"}.bytes();
        const std::tuple<const char *, QByteArray, int> rows[] = { // and the text that says why
            {"empty", {}, 30304},
            {"a letter", "Dear Sir,\nplease find enclosed\n", 30304},
            {"zeros", QByteArray(4096, '\0'), 30304},
            {"numbers only", "1\n2\n3\n4\n", 30304},
            {"cut in a value", good.left(good.size() / 2), 30306},
            {"cut after a section", good.left(good.indexOf("0\nENDSEC") + 9), 30306},
            {"without its end mark", good.left(good.size() - 6), 30306},
            {"rows shifted", good.left(200) + "x\n" + good.mid(200), 30304},
            {"no drawing in it", "0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n", 30304},
            {"binary", QByteArray("AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION", 32), 30302},
            {"another format of drawings", QByteArray("AC1032\0\0\0\0\0", 11), 30303}};
        const QTemporaryDir folder;
        const QString target = folder.filePath("new.qvd");
        for (const auto &[name, bytes, reason] : rows) {
            const QString path = source::written(folder, bytes);
            ImportReport report;
            const QString message = errorOf([&, path] { DxfImport::into(target, path, {}, report); });
            const QString why = QV_DOC_CONTROLS::txt(QV_DOC_CONTROLS::Text{reason});
            QVERIFY2(message.contains(path) && message.contains(why), qPrintable(name + (": " + message)));
            QVERIFY2(!QFile::exists(target), name);
            same(name, errorOf([&, path] { DxfImport::guessOf(path); }), message);
        }
    }

    void onlyANewDocumentIsWritten()
    {
        const Imported in(kPoint);
        const QTemporaryDir folder;
        const Drawing drawing = DxfImport::parse(source::written(folder, kPoint));
        QVERIFY(!errorOf([&] { DxfImport::write(drawing, *in.doc, {}); }).isEmpty());
        QCOMPARE(in.elements(), "Point l1 p-1 1,1");
    }

    void breakingOffLeavesNoDocument()
    {
        const QTemporaryDir folder;
        const QString path = source::written(folder, kPoint);
        const QString target = folder.filePath("new.qvd");
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
        QCOMPARE(DxfImport::into(target, path, {}, report)->info().importedFrom, "plan.dxf");
    }

    void announcedCountsAreNotTrusted()
    {
        const Imported in(
            Dxf{.entities = "0 LWPOLYLINE|8 0|90 1073741825|70 0|10 0|20 0|10 1|20 0|"
                    "0 LWPOLYLINE|8 0|70 0|10 5|20 5|10 6|20 5|"
                    "0 SPLINE|8 0|71 1|72 -7|73 2147483647|40 0|40 0|40 1|40 1|10 0|20 0|10 8|20 0|"
                    "0 SPLINE|8 0|71 3|74 2|11 0|21 0|11 1|21 0|0 LEADER|8 0|76 99999999|10 0|20 0|10 1|20 1"}
                .bytes());
        QVERIFY(in.elements().startsWith("Line l1 p-1 0,0 1,0 | Line l1 p-1 5,5 6,5 | "));
        QVERIFY(in.elements().endsWith(" | Line l1 p-1 0,0 1,1"));
        QCOMPARE(in.doc->elementCount(), 5);
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
        const QByteArray entities = hatch + "|0 ELLIPSE|8 0|10 0|20 0|11 1|21 0|40 0.5|41 0|42 1e300|"
                                            "0 INSERT|8 0|2 B|10 0|20 0|70 32000|71 32000";
        const Dxf nested{.blocks = blocks, .entities = "0 INSERT|8 0|2 B0|10 0|20 0"};
        QVERIFY(errorOf([&] { Imported in(nested.bytes()); }).contains("5000000"));
        QCOMPARE(Imported(Dxf{.entities = entities}.bytes()).doc->elementCount(), 2);
    }

    void longTextsStayWhole()
    {
        const QByteArray text = QByteArray("árvíz ").repeated(400);
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1021",
                              .entities = "0 TEXT|8 0|10 0|20 0|40 1|1 " + text + "|0 POINT|8 0|10 1|20 1"}
                              .bytes());
        QCOMPARE(in.doc->elements().at(0).text, QString::fromUtf8(text));
        QVERIFY(in.elements().endsWith(" | Point l1 p-1 1,1"));
    }

    void numbersHaveADecimalPointInEveryLocale()
    {
        const Dxf dxf{.entities = "0 CIRCLE|8 0|10 1.5|20 2.25|40 0.5|0 POINT|8 0|10 1.25|20 1e-1"};
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
        const QString elements = Imported(dxf.bytes()).elements();
        const bool kept = std::use_facet<std::numpunct<char>>(std::locale()).decimal_point() == ',';
        std::locale::global(before);
        QVERIFY(kept);
        QCOMPARE(elements, "Line l1 p-1 1,2.25b1 2,2.25b1 closed | Point l1 p-1 1.25,0.1");
    }

    void theUnitComesFromTheHeadUnlessTheDrawingDenies()
    {
        const QTemporaryDir folder;
        for (const auto &[name, header, entities, metres, scale, noted] : kGuesses) {
            const Dxf dxf{.header = "9 $ACADVER|1 AC1015" + header, .entities = entities};
            const ImportGuess guess = DxfImport::guessOf(source::written(folder, dxf.bytes()));
            same(name, lengthUnits()[size_t(guess.unit)].metres, metres);
            same(name, guess.scale, scale);
            same(name, !guess.note.isEmpty(), noted);
        }
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
        QVERIFY(notes.contains("2 vonal (LINE), a saját vonalvastagsága nélkül"));
        QVERIFY(notes.contains("1 sraffozás (HATCH), a saját vonalvastagsága nélkül"));
        QVERIFY(notes.contains("1 réteg a saját vonalvastagsága nélkül"));
    }
};

QVDC_TEST(tst_DxfFiles)
#include "tst_DxfFiles.moc"
