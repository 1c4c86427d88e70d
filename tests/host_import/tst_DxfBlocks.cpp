#include "DxfSource.h"

#include "support/Registry.h"

using namespace refhost;
using source::Dxf;
using source::Imported;
using source::kLayers;

namespace {

constexpr char kPlain[] = "0 LINE|8 0|10 1|20 1|11 3|21 1";
/// What is in a block, how it is inserted, and the elements that come of it.
struct Row {
    const char *name, *content, *insert, *elements;
};
constexpr Row kRows[] = {
    {"turned and scaled", kPlain, "8 A|10 5|20 6|41 2|42 2|50 90", "Symbol l2 p-1 5,6 x2 90°"},
    {"own colour of the insert", "0 LINE|8 0|62 0|10 1|20 1|11 3|21 1", "8 A|62 4|10 0|20 0",
     "Symbol l2 p4 0,0 x1 0°"},
    {"layer's colour in spite of the insert's", kPlain, "8 A|62 4|10 0|20 0", "Symbol l2 p-1 0,0 x1 0°"},
    {"mirrored across", kPlain, "8 A|10 0|20 0|41 -1", "Symbol l2 p-1 0,0 x-1 0°"},
    {"mirrored along", kPlain, "8 A|10 0|20 0|42 -1", "Symbol l2 p-1 0,0 x-1 180°"},
    {"from below", kPlain, "8 A|10 5|20 0|230 -1", "Symbol l2 p-1 -5,0 x-1 0°"},
    {"one colour of its own", "0 LINE|8 0|62 5|10 1|20 1|11 3|21 1", "8 A|10 0|20 0",
     "Symbol l2 p5 0,0 x1 0°"},
    {"one layer of its own", "0 LINE|8 A|10 1|20 1|11 3|21 1", "8 0|10 0|20 0", "Symbol l2 p-1 0,0 x1 0°"},
    {"array", kPlain, "8 A|10 0|20 0|70 2|71 2|44 10|45 5",
     "Symbol l2 p-1 0,0 x1 0° | Symbol l2 p-1 10,0 x1 0° | Symbol l2 p-1 0,5 x1 0° | Symbol l2 p-1 10,5 x1 "
     "0°"},
    {"unequal scale", kPlain, "8 A|10 0|20 0|41 2|42 1", "Line l2 p-1 0,0 4,0"},
    {"circle, unequal scale", "0 CIRCLE|8 0|10 1|20 1|40 1", "8 A|10 0|20 0|41 2|42 1",
     "Ellipse l2 p-1 0,0 2,0 r0.5 0..0"},
    {"several colours", "0 LINE|8 0|62 1|10 1|20 1|11 3|21 1|0 LINE|8 0|10 1|20 1|11 1|21 2", "8 A|10 0|20 0",
     "Line l2 p1 0,0 2,0 | Line l2 p-1 0,0 0,1"},
    {"dashes", "0 LINE|8 0|6 DASH|10 1|20 1|11 3|21 1", "8 A|10 0|20 0", "Line l2 p-1 t2 0,0 2,0"},
    {"fill", "0 SOLID|8 0|62 0|10 1|20 1|11 2|21 1|12 1|22 2|13 1|23 2", "8 A|62 6|10 0|20 0",
     "Fill l2 p6 0,0 1,0 0,1"},
    {"text, turned", "0 TEXT|8 0|10 1|20 1|40 1|1 t", "8 A|10 0|20 0|50 90",
     "Text l2 p-1 0,0 h1 a24 90° 't'"},
    {"block in a block", "0 INSERT|8 0|2 inner|10 1|20 1|41 3|42 3", "8 A|10 7|20 7",
     "Symbol l2 p-1 7,7 x1 0°"},
    {"block in a block, unequal scale", "0 INSERT|8 0|62 0|2 inner|10 1|20 1|41 3|42 3",
     "8 A|62 2|10 0|20 0|41 1|42 2", "Line l2 p2 0,0 3,0"},
    {"contains itself", "0 INSERT|8 0|2 B|10 1|20 1|0 LINE|8 0|10 1|20 1|11 3|21 1", "8 A|10 0|20 0",
     "Line l2 p-1 0,0 2,0"},
    {"invisible content", "0 LINE|8 0|60 1|10 9|20 9|11 9|21 8|0 LINE|8 0|10 1|20 1|11 3|21 1",
     "8 A|10 0|20 0", "Symbol l2 p-1 0,0 x1 0°"},
};

} // namespace

class tst_DxfBlocks : public QObject {
    Q_OBJECT
private slots:
    void blocksBecomeSymbolsWhereACharacterCanShowThem()
    {
        const QByteArray dash = "|0 TABLE|2 LTYPE|0 LTYPE|2 DASH|70 0|73 2|40 3|49 2|49 -1|0 ENDTAB";
        const QByteArray blocks = "0 BLOCK|8 0|2 inner|70 0|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|"
                                  "0 ENDBLK|0 BLOCK|8 0|2 B|70 0|10 1|20 1|";
        for (const auto &[name, content, insert, elements] : kRows) {
            const Imported in(Dxf{.tables = kLayers + dash, .blocks = blocks + content + "|0 ENDBLK",
                                  .entities = QByteArray("0 INSERT|2 B|") + insert} .bytes());
            tests::same(name, in.elements(), elements);
            tests::same(name, in.tally("INSERT").lost, 0);
        }
    }

    void aSymbolHasTheTrueSize()
    {
        const Imported in(
            Dxf{.blocks = "0 BLOCK|8 0|2 Well|70 0|10 100|20 50|0 CIRCLE|8 0|10 103|20 50|40 2|0 ENDBLK|"
                          "0 BLOCK|8 0|2 *U1|70 1|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                .entities = "0 INSERT|8 0|2 WELL|10 0|20 0|41 3|42 3"} .bytes(), {0.3048, 500});
        const auto symbols = in.doc->symbols().readAll();
        QCOMPARE(symbols.size(), size_t(2));            // the one of a new document, and the named block
        const ZolWDoc::tSid &s = symbols.back();
        QCOMPARE(s.ShortName, "Well");
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
        const Imported in(Dxf{.tables = kLayers,
                .blocks = "0 BLOCK|8 0|2 *D1|70 1|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                .entities = "0 DIMENSION|8 A|62 1|2 *D1|10 0|20 0|70 0|13 0|23 0|14 1|24 0"} .bytes());
        QCOMPARE(in.elements(), "Line l2 p1 0,0 1,0");
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
        QCOMPARE(in.elements(), "Point l1 p-1 1,1");
        QCOMPARE(in.tally("LINE"), (KindTally{.kind = "LINE", .total = 3, .paper = 2, .invisible = 1}));
        QCOMPARE(in.tally("TEXT"), (KindTally{.kind = "TEXT", .total = 1, .empty = 1}));
        QCOMPARE(in.tally("CIRCLE"), (KindTally{.kind = "CIRCLE", .total = 1, .unused = 1}));
        QCOMPARE(in.tally("VIEWPORT"), (KindTally{.kind = "VIEWPORT", .total = 1, .paper = 1}));
        QCOMPARE(in.tally("POINT"), (KindTally{.kind = "POINT", .total = 1, .carried = 1}));
        QCOMPARE(in.report.paperSpace, 3);
        QCOMPARE(in.report.notCarried.front(), (ImportReport::Row{"FUTURE", 2}));
        QCOMPARE(in.report.notCarried.back(), (ImportReport::Row{kindText("RAY"), 1}));
        QVERIFY(in.report.text().contains("2  FUTURE"));
    }
};

QVDC_TEST(tst_DxfBlocks)
#include "tst_DxfBlocks.moc"
