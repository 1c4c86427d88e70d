#include "DxfSource.h"

#include "support/Registry.h"

#include <QtTest/QTest>

using namespace refhost;
using source::Dxf;
using source::Imported;

namespace {

const QByteArray kTable =
    "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 A|70 0|62 3|6 CONTINUOUS|0 ENDTAB";

} // namespace

class tst_DxfBlocks : public QObject {
    Q_OBJECT
private slots:
    void blocksBecomeSymbolsWhereACharacterCanShowThem_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("insert");
        QTest::addColumn<QStringList>("elements");
        const auto row = [](const char *name, const char *content, const char *insert,
                            const QStringList &elements) {
            QTest::newRow(name) << QByteArray(content) << QByteArray(insert) << elements;
        };
        const char *const plain = "0 LINE|8 0|10 1|20 1|11 3|21 1";
        row("turned and scaled", plain, "8 A|10 5|20 6|41 2|42 2|50 90", {"Symbol l2 p-1 5,6 x2 90°"});
        row("own colour of the insert", "0 LINE|8 0|62 0|10 1|20 1|11 3|21 1", "8 A|62 4|10 0|20 0",
            {"Symbol l2 p4 0,0 x1 0°"});
        row("layer's colour in spite of the insert's", plain, "8 A|62 4|10 0|20 0",
            {"Symbol l2 p-1 0,0 x1 0°"});
        row("mirrored across", plain, "8 A|10 0|20 0|41 -1", {"Symbol l2 p-1 0,0 x-1 0°"});
        row("mirrored along", plain, "8 A|10 0|20 0|42 -1", {"Symbol l2 p-1 0,0 x-1 180°"});
        row("from below", plain, "8 A|10 5|20 0|230 -1", {"Symbol l2 p-1 -5,0 x-1 0°"});
        row("one colour of its own", "0 LINE|8 0|62 5|10 1|20 1|11 3|21 1", "8 A|10 0|20 0",
            {"Symbol l2 p5 0,0 x1 0°"});
        row("one layer of its own", "0 LINE|8 A|10 1|20 1|11 3|21 1", "8 0|10 0|20 0",
            {"Symbol l2 p-1 0,0 x1 0°"});
        row("array", plain, "8 A|10 0|20 0|70 2|71 2|44 10|45 5",
            {"Symbol l2 p-1 0,0 x1 0°", "Symbol l2 p-1 10,0 x1 0°", "Symbol l2 p-1 0,5 x1 0°",
             "Symbol l2 p-1 10,5 x1 0°"});
        row("unequal scale", plain, "8 A|10 0|20 0|41 2|42 1", {"Line l2 p-1 0,0 4,0"});
        row("circle, unequal scale", "0 CIRCLE|8 0|10 1|20 1|40 1", "8 A|10 0|20 0|41 2|42 1",
            {"Ellipse l2 p-1 0,0 2,0 r0.5 0..0"});
        row("several colours", "0 LINE|8 0|62 1|10 1|20 1|11 3|21 1|0 LINE|8 0|10 1|20 1|11 1|21 2",
            "8 A|10 0|20 0", {"Line l2 p1 0,0 2,0", "Line l2 p-1 0,0 0,1"});
        row("dashes", "0 LINE|8 0|6 DASH|10 1|20 1|11 3|21 1", "8 A|10 0|20 0", {"Line l2 p-1 t2 0,0 2,0"});
        row("fill", "0 SOLID|8 0|62 0|10 1|20 1|11 2|21 1|12 1|22 2|13 1|23 2", "8 A|62 6|10 0|20 0",
            {"Fill l2 p6 0,0 1,0 0,1"});
        row("text, turned", "0 TEXT|8 0|10 1|20 1|40 1|1 t", "8 A|10 0|20 0|50 90",
            {"Text l2 p-1 0,0 h1 a24 90° 't'"});
        row("block in a block", "0 INSERT|8 0|2 inner|10 1|20 1|41 3|42 3", "8 A|10 7|20 7",
            {"Symbol l2 p-1 7,7 x1 0°"});
        row("block in a block, unequal scale", "0 INSERT|8 0|62 0|2 inner|10 1|20 1|41 3|42 3",
            "8 A|62 2|10 0|20 0|41 1|42 2", {"Line l2 p2 0,0 3,0"});
        row("contains itself", "0 INSERT|8 0|2 B|10 1|20 1|0 LINE|8 0|10 1|20 1|11 3|21 1", "8 A|10 0|20 0",
            {"Line l2 p-1 0,0 2,0"});
        row("invisible content", "0 LINE|8 0|60 1|10 9|20 9|11 9|21 8|0 LINE|8 0|10 1|20 1|11 3|21 1",
            "8 A|10 0|20 0", {"Symbol l2 p-1 0,0 x1 0°"});
    }
    void blocksBecomeSymbolsWhereACharacterCanShowThem()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, insert);
        const Imported in(
            Dxf{.tables = kTable + "|0 TABLE|2 LTYPE|0 LTYPE|2 DASH|70 0|73 2|40 3|49 2|49 -1|0 ENDTAB",
                .blocks = "0 BLOCK|8 0|2 inner|70 0|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 ENDBLK|"
                          "0 BLOCK|8 0|2 B|70 0|10 1|20 1|"
                          + content + "|0 ENDBLK",
                .entities = "0 INSERT|2 B|" + insert}
                .bytes());
        QTEST(in.elements(), "elements");
        QCOMPARE(in.tally("INSERT").lost, 0);
    }

    void aSymbolHasTheTrueSize()
    {
        const Imported in(
            Dxf{.blocks = "0 BLOCK|8 0|2 Well|70 0|10 100|20 50|0 CIRCLE|8 0|10 103|20 50|40 2|0 ENDBLK|"
                          "0 BLOCK|8 0|2 *U1|70 1|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                .entities = "0 INSERT|8 0|2 WELL|10 0|20 0|41 3|42 3"}
                .bytes(),
            {0.3048, 500});
        const auto symbols = in.doc->symbols().readAll();
        QCOMPARE(symbols.size(), size_t(2));            // the one of a new document, and the named block
        const ZolWDoc::tSid &s = symbols.back();
        QCOMPARE(s.ShortName, QStringLiteral("Well"));
        QVERIFY(s.Code == 33 && s.Type == 1 && s.Align == 24 && s.Facename == in.doc->ownFontName());
        QCOMPARE(s.Size_mm, float(4 * 0.3048 * 1000 / 500));
        const ZolWDoc::Glyph glyph = in.doc->ownFont().find(s.Facename)->glyph(s.Code);
        const double metres = double(s.Size_mm) * 500 / 1000
                              / 0.3048; // of one letter height, in the file's feet
        for (const ZolWDoc::PointMm &p : glyph.strokes.at(0))
            QVERIFY(std::abs(std::hypot(p.x * metres - 3, p.y * metres) - 2) < 1e-6);
        QVERIFY(glyph.strokes.at(0).size() >= 32);      // sagitta of half a percent at most
        QCOMPARE(in.doc->elements().at(0).scale, 3.0);
    }

    void dimensionsShowTheirBlock()
    {
        const Imported in(
            Dxf{.tables = kTable,
                .blocks = "0 BLOCK|8 0|2 *D1|70 1|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                .entities = "0 DIMENSION|8 A|62 1|2 *D1|10 0|20 0|70 0|13 0|23 0|14 1|24 0"}
                .bytes());
        QCOMPARE(in.elements(), QStringList{"Line l2 p1 0,0 1,0"});
        QCOMPARE(in.doc->symbols().count(), 1);
    }

    void nothingIsLeftOutSilently()
    {
        const Imported in(Dxf{
            .blocks = "0 BLOCK|8 0|2 *Paper_Space|70 0|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 1|0 ENDBLK|"
                      "0 BLOCK|8 0|2 *U9|70 1|10 0|20 0|0 CIRCLE|8 0|10 0|20 0|40 1|0 ENDBLK",
            .entities = "0 LINE|8 0|67 1|10 0|20 0|11 1|21 1|0 LINE|8 0|60 1|10 0|20 0|11 1|21 1|"
                        "0 RAY|8 0|10 0|20 0|11 1|21 0|0 FUTURE|8 0|1 x|0 FUTURE|8 0|1 y|"
                        "0 TEXT|8 0|10 0|20 0|40 1|1   |0 VIEWPORT|8 0|67 1|10 0|20 0|0 POINT|8 0|10 1|20 1"}
                              .bytes());
        QCOMPARE(in.elements(), QStringList{"Point l1 p-1 1,1"});
        QCOMPARE(in.tally("LINE"), (KindTally{.kind = "LINE", .total = 3, .paper = 2, .invisible = 1}));
        QCOMPARE(in.tally("TEXT"), (KindTally{.kind = "TEXT", .total = 1, .empty = 1}));
        QCOMPARE(in.tally("CIRCLE"), (KindTally{.kind = "CIRCLE", .total = 1, .unused = 1}));
        QCOMPARE(in.tally("VIEWPORT"), (KindTally{.kind = "VIEWPORT", .total = 1, .paper = 1}));
        QCOMPARE(in.tally("POINT"), (KindTally{.kind = "POINT", .total = 1, .carried = 1}));
        QCOMPARE(in.report.paperSpace, 3);
        QCOMPARE(in.report.notCarried.front(), (ImportReport::Row{"FUTURE", 2}));
        QCOMPARE(in.report.notCarried.back(), (ImportReport::Row{kindText("RAY"), 1}));
        QVERIFY(in.report.text().contains(QStringLiteral("2  FUTURE")));
    }
};

QVDC_TEST(tst_DxfBlocks)
#include "tst_DxfBlocks.moc"
