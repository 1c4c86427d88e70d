#include "DxfSource.h"

#include "support/Registry.h"

#include <QtTest/QTest>

#include <locale>
#include <numbers>

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

const QByteArray kTable = "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 A|70 0|62 3|6 CONTINUOUS|0 ENDTAB";
const QByteArray kStyle = "0 TABLE|2 STYLE|0 STYLE|2 STANDARD|70 0|40 0|41 1|50 0|71 0|42 2|3 arial.ttf|4 |0 ENDTAB";

} // namespace

class tst_DxfImport : public QObject {
    Q_OBJECT
private slots:
    void layersKeepNumberColourAndState()
    {
        const Imported in(Dxf{.tables = "0 TABLE|2 LTYPE|0 LTYPE|2 DASH|70 0|3 |72 65|73 2|40 3|49 2|49 -1|0 ENDTAB|"
                                        "0 TABLE|2 LAYER|0 LAYER|2 Kut|70 0|62 5|6 DASH|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|"
                                        "0 LAYER|2 off|70 0|62 -3|6 dash|0 LAYER|2 frozen|70 1|62 2|6 CONTINUOUS|"
                                        "0 LAYER|2 true|70 0|62 7|420 16711680|6 CONTINUOUS|0 ENDTAB",
                              .entities = "0 LINE|8 unlisted|10 0|20 0|11 1|21 0"}.bytes());
        QStringList rows;
        for (const ZolWDoc::tLay &l : in.doc->layers().readAll())
            rows << QStringLiteral("%1 %2 c%3 t%4%5").arg(l.gNr).arg(l.Name).arg(l.ScrColor).arg(l.PenStyleId)
                        .arg(l.Visible ? QString() : QStringLiteral(" off"));
        QCOMPARE(rows, (QStringList{"1 Kut c5 t2", "2 0 c7 t1", "3 off c3 t2 off", "4 frozen c2 t1 off", "5 true c1 t1",
                                    "6 unlisted c7 t1"}));
        const ImportReport::Row approximated{QV_DOC_CONTROLS::txt(QV_DOC_CONTROLS::Text{30370}), 1};
        QVERIFY(std::ranges::find(in.report.notes, approximated) != in.report.notes.end());
    }

    void lineTypesHaveTheirLengthsOnPaper()
    {
        const QByteArray tables = "0 TABLE|2 LTYPE|0 LTYPE|2 ByLayer|70 0|3 |72 65|73 0|40 0|0 LTYPE|2 Continuous|70 0|3 |"
                                  "72 65|73 0|40 0|0 LTYPE|2 GAS|70 0|3 |72 65|73 3|40 1|49 0.5|74 0|49 -0.2|74 2|75 0|46 1|"
                                  "50 0|44 0|45 0|9 GAS|49 -0.3|74 0|0 ENDTAB";
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1015|9 $LTSCALE|40 10", .tables = tables,
                              .entities = "0 LINE|8 0|6 GAS|48 2|10 0|20 0|11 1|21 0|0 LINE|8 0|6 gas|10 0|20 0|11 1|21 0"}
                              .bytes(), {0.001, 20});
        QStringList rows;
        for (const ZolWDoc::tPenStyle &p : in.doc->lineTypes().readAll()) {
            QStringList lengths;
            for (double d : p.Pattern) lengths << source::number(d);
            rows << p.Name + u' ' + lengths.join(u'-');
        }
        QCOMPARE(rows, (QStringList{"Continuous ", "GAS 0.25-0.25", QStringLiteral("GAS ×2 0.5-0.5")}));
        QCOMPARE(in.elements(), (QStringList{"Line l1 p-1 t3 0,0 0.001,0", "Line l1 p-1 t2 0,0 0.001,0"}));
    }

    void layerSwitchesAreOnWhereEverythingFollowsTheLayer()
    {
        const Imported in(Dxf{.tables = kStyle,
                              .entities = "0 LINE|8 plain|10 0|20 0|11 1|21 0|0 LINE|8 own|62 1|10 0|20 0|11 1|21 0|"
                                          "0 LINE|8 own|10 0|20 0|11 1|21 0|0 TEXT|8 own|10 0|20 0|40 1|1 a|"
                                          "0 TEXT|8 plain|62 3|10 0|20 0|40 1|1 b"}.bytes());
        QStringList rows;
        for (const ZolWDoc::tLay &l : in.doc->layers().readAll())
            rows << QStringLiteral("%1 %2 %3").arg(l.Name).arg(l.ElByLayer).arg(l.TxByLayer);
        QCOMPARE(rows, (QStringList{"plain 1 0", "own 0 1", "0 1 1"}));
    }

    void shapesAreTakenOver_data()
    {
        QTest::addColumn<QByteArray>("entity");
        QTest::addColumn<QStringList>("elements");
        const auto row = [](const char *name, const char *entity, const QStringList &elements) {
            QTest::newRow(name) << QByteArray(entity) << elements;
        };
        row("line", "0 LINE|8 A|10 1|20 2|30 9|11 3|21 4", {"Line l2 p-1 1,2 3,4"});
        row("point", "0 POINT|8 A|62 1|10 1|20 2", {"Point l2 p1 1,2"});
        row("arc", "0 ARC|8 A|10 0|20 0|40 1|50 0|51 90", {"Line l2 p-1 1,0b0.4142 0,1"});
        row("arc through zero", "0 ARC|8 A|10 0|20 0|40 1|50 270|51 0", {"Line l2 p-1 0,-1b0.4142 1,0"});
        row("long arc", "0 ARC|8 A|10 0|20 0|40 1|50 0|51 270", {"Line l2 p-1 1,0b0.6682 -0.7071,0.7071b0.6682 0,-1"});
        row("arc seen from below", "0 ARC|8 A|10 5|20 0|40 1|50 0|51 90|230 -1", {"Line l2 p-1 -6,0b-0.4142 -5,1"});
        row("circle", "0 CIRCLE|8 A|10 1|20 1|40 2", {"Line l2 p-1 -1,1b1 3,1b1 closed"});
        row("tilted circle", "0 CIRCLE|8 A|10 0|20 0|40 2|210 1|220 0|230 0", {"Ellipse l2 p-1 0,0 0,2 r0 0..0"});
        row("ellipse", "0 ELLIPSE|8 A|10 1|20 1|11 4|21 0|40 0.5|41 0|42 6.283185307179586",
            {"Ellipse l2 p-1 1,1 4,0 r0.5 0..0"});
        row("part of an ellipse from below", "0 ELLIPSE|8 A|10 0|20 0|11 4|21 0|40 0.5|41 0|42 1|230 -1",
            {"Ellipse l2 p-1 0,0 4,0 r0.5 -1..0"});
        row("light polyline", "0 LWPOLYLINE|8 A|90 3|70 1|10 0|20 0|42 1|10 2|20 0|10 2|20 2",
            {"Line l2 p-1 0,0b1 2,0 2,2 closed"});
        row("mirrored light polyline", "0 LWPOLYLINE|8 A|90 2|70 0|10 1|20 0|42 0.5|10 2|20 0|230 -1",
            {"Line l2 p-1 -1,0b-0.5 -2,0"});
        row("old polyline", "0 POLYLINE|8 A|66 1|70 0|0 VERTEX|8 A|10 0|20 0|42 -1|0 VERTEX|8 A|10 1|20 0|0 SEQEND",
            {"Line l2 p-1 0,0b-1 1,0"});
        row("smoothed polyline without its frame",
            "0 POLYLINE|8 A|66 1|70 4|0 VERTEX|10 9|20 9|70 16|0 VERTEX|10 0|20 0|70 8|0 VERTEX|10 1|20 0|70 8|0 SEQEND",
            {"Line l2 p-1 0,0 1,0"});
        row("spatial polyline", "0 POLYLINE|8 A|66 1|70 8|0 VERTEX|10 0|20 0|30 1|70 32|0 VERTEX|10 1|20 0|30 2|70 32|0 SEQEND",
            {"Line l2 p-1 0,0 1,0"});
        row("mesh of faces",
            "0 POLYLINE|8 A|66 1|70 64|71 3|72 1|0 VERTEX|10 0|20 0|70 192|0 VERTEX|10 1|20 0|70 192|0 VERTEX|10 0|20 1|"
            "70 192|0 VERTEX|10 0|20 0|70 128|71 1|72 -2|73 3|0 SEQEND", {"Line l2 p-1 0,0 1,0", "Line l2 p-1 0,1 0,0"});
        row("solid", "0 SOLID|8 A|10 0|20 0|11 1|21 0|12 0|22 1|13 1|23 1", {"Fill l2 p-1 0,0 1,0 1,1 0,1"});
        row("face", "0 3DFACE|8 A|10 0|20 0|11 1|21 0|12 1|22 1|13 1|23 1", {"Line l2 p-1 0,0 1,0 1,1 closed"});
        row("face with hidden edges", "0 3DFACE|8 A|10 0|20 0|11 1|21 0|12 1|22 1|13 0|23 1|70 13", {"Line l2 p-1 1,0 1,1"});
        row("leader", "0 LEADER|8 A|76 2|10 0|20 0|10 1|20 1", {"Line l2 p-1 0,0 1,1"});
        row("straight spline", "0 SPLINE|8 A|70 8|71 1|72 4|73 2|74 0|40 0|40 0|40 1|40 1|10 0|20 0|10 8|20 0",
            {"Line l2 p-1 0,0 1,0 2,0 3,0 4,0 5,0 6,0 7,0 8,0"});
        row("multiline", "0 MLINE|8 A|2 S|40 1|70 0|71 1|72 2|73 2|10 0|20 0|11 0|21 0|12 1|22 0|13 0|23 1|74 2|41 1|41 0|75 0|"
                         "74 2|41 -1|41 0|75 0|11 5|21 0|12 1|22 0|13 0|23 1|74 2|41 1|41 0|75 0|74 2|41 -1|41 0|75 0",
            {"Line l2 p-1 0,1 5,1", "Line l2 p-1 0,-1 5,-1"});
        row("byblock outside of blocks", "0 LINE|8 A|62 0|6 BYBLOCK|10 0|20 0|11 1|21 0", {"Line l2 p7 t1 0,0 1,0"});
    }
    void shapesAreTakenOver()
    {
        QFETCH(QByteArray, entity);
        QTEST(Imported(Dxf{.tables = kTable, .entities = entity}.bytes()).elements(), "elements");
    }

    void hatchesKeepTheirRings_data()
    {
        QTest::addColumn<QByteArray>("rest");
        QTest::addColumn<QString>("first");
        QTest::addColumn<int>("count");
        const QByteArray square = "91 1|92 2|72 0|73 1|93 4|10 0|20 0|10 4|20 0|10 4|20 4|10 0|20 4|97 0|";
        const QByteArray seeds = "98 4|10 0|20 0|10 1|20 1|10 2|20 2|10 3|20 3";
        QTest::newRow("polyline, seeds are no boundary") << "70 1|" + square + "75 0|76 1|" + seeds
                                                         << "Fill l1 p-1 0,0 4,0 4,4 0,4" << 1;
        QTest::newRow("island of edges given in any direction")
            << QByteArray("70 1|91 2|92 2|72 0|73 1|93 3|10 0|20 0|10 9|20 0|10 0|20 9|97 0|92 0|93 3|72 1|10 1|20 1|11 2|21 1|72 1|"
               "10 1|20 2|11 2|21 1|72 1|10 1|20 2|11 1|21 1|97 0|75 0|76 1")
            << "Fill l1 p-1 0,0 9,0 0,9 1,1 2,1 2,1 1,2 1,2 ring0 ring3" << 1;
        QTest::newRow("pattern, cut at the boundary")
            << "70 0|" + square + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 0|44 0.5|45 0|46 1|79 0|98 0"
            << "Line l1 p-1 0,0.5 4,0.5" << 4;
        QTest::newRow("dashes of a pattern run on from its base")
            << "70 0|" + square + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 1|44 2|45 0|46 100|79 2|49 1|49 -1|98 0"
            << "Line l1 p-1 1,2 2,2" << 2;
        QTest::newRow("pattern that is missing") << "70 0|" + square + "75 0|76 1"
                                                 << "Line l1 p-1 0,0 4,0 4,4 0,4 closed" << 1;
        QTest::newRow("pattern too fine to draw")
            << "70 0|" + square + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 0|44 0|45 0|46 0.0001|79 0|98 0"
            << "Line l1 p-1 0,0 4,0 4,4 0,4 closed" << 1;
    }
    void hatchesKeepTheirRings()
    {
        QFETCH(QByteArray, rest);
        const Imported in(Dxf{.entities = "0 HATCH|8 0|10 0|20 0|30 0|2 P|" + rest}.bytes());
        QTEST(int(in.elements().size()), "count");
        QTEST(in.elements().value(0), "first");
    }

    void aRoundEdgeOfAHatchStaysWithinItsTolerance()
    {
        const Imported in(Dxf{.entities = "0 HATCH|8 0|10 0|20 0|30 0|2 SOLID|70 1|91 1|92 0|93 1|72 2|10 5|20 0|40 2|50 0|51 360|"
                                          "73 1|97 0|75 0|76 1"}.bytes());
        const auto ring = in.doc->elements().at(0).vertices;
        double area = 0;
        for (size_t i = 0; i < ring.size(); ++i) {
            const Vertex &a = ring[i], &b = ring[(i + 1) % ring.size()];
            QVERIFY(std::abs(std::hypot(a.x - 5, a.y) - 2) < 1e-9);
            area += (a.x * b.y - b.x * a.y) / 2;
        }
        QVERIFY(std::abs(area - 4 * std::numbers::pi) < 0.03);
    }

    void textsStandWhereTheyStood_data()
    {
        QTest::addColumn<QByteArray>("entity");
        QTest::addColumn<QString>("element");
        const auto row = [](const char *name, const char *entity, const char *element) {
            QTest::newRow(name) << QByteArray(entity) << QString::fromUtf8(element);
        };
        row("left", "0 TEXT|8 A|10 1|20 2|40 3|1 a|50 90", "Text l2 p-1 1,2 h3 a24 90° 'a'");
        row("right", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 3|1 a|72 2", "Text l2 p-1 9,2 h3 a26 0° 'a'");
        row("top centre", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 3|1 a|72 1|73 3", "Text l2 p-1 9,2 h3 a6 0° 'a'");
        row("middle stands on its base line", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 2|1 a|72 4|50 90",
            "Text l2 p-1 10,2 h2 a30 90° 'a'");
        row("fitted between points", "0 TEXT|8 A|10 0|20 0|11 3|21 3|40 2|1 a|72 5", "Text l2 p-1 0,0 h2 a24 45° 'a'");
        row("seen from below", "0 TEXT|8 A|10 5|20 0|40 2|1 a|230 -1", "Text l2 p-1 -5,0 h2 a26 0° 'a'");
        row("rows, middle", "0 MTEXT|8 A|10 0|20 0|40 3|41 0|71 5|72 1|1 a\\Pb|7 STANDARD|11 0|21 1",
            "Text l2 p-1 -4,0 h3 a6 90° 'a/b'");
        row("rows, bottom right, to the left", "0 MTEXT|8 A|10 0|20 0|40 3|71 9|1 a|11 -1|21 0",
            "Text l2 p-1 0,-3 h3 a2 180° 'a'");
        row("long rows come in pieces", "0 MTEXT|8 A|10 0|20 0|40 1|71 1|3 first |3 second |1 last",
            "Text l2 p-1 0,0 h1 a0 0° 'first second last'");
        row("attribute", "0 INSERT|8 A|66 1|2 nothing|10 0|20 0|0 ATTRIB|8 A|10 1|20 1|40 2|1 12/3|2 NR|70 0|0 SEQEND",
            "Text l2 p-1 1,1 h2 a24 0° '12/3'");
    }
    void textsStandWhereTheyStood()
    {
        QFETCH(QByteArray, entity);
        const Imported in(Dxf{.tables = kTable + "|" + kStyle, .entities = entity}.bytes());
        QCOMPARE(in.elements().size(), 1);
        QTEST(in.elements().first(), "element");
    }

    void aTextWiderThanItsStyleGetsATypeOfItsOwn()
    {
        const Imported in(Dxf{.tables = kStyle, .entities = "0 TEXT|8 0|10 0|20 0|40 1|1 a|41 0.8|0 TEXT|8 0|10 0|20 0|40 1|1 b|"
                                                            "0 TEXT|8 0|10 0|20 0|40 1|1 c|41 0.8|0 MTEXT|8 0|10 0|20 0|40 1|71 1|"
                                                            "1 {\\fTahoma;d}"}.bytes());
        QStringList types;
        for (const ZolWDoc::tTxd &t : in.doc->textTypes().readAll())
            types << QStringLiteral("%1 %2 %3 %4").arg(t.Name, t.Facename).arg(double(t.XwFact), 0, 'f', 1).arg(t.Weight);
        QCOMPARE(types.first(), QStringLiteral("STANDARD Arial 1.0 0"));
        QCOMPARE(types.at(1), QStringLiteral("STANDARD 2 Arial 0.8 0"));
        QCOMPARE(types.at(2), QStringLiteral("STANDARD 3 Tahoma 1.0 0"));
        const auto all = in.doc->elements();
        QVERIFY(all[0].txdId == all[2].txdId && all[0].txdId != all[1].txdId);
    }

    void namesKeepTheirLetters()
    {
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1018|9 $DWGCODEPAGE|3 ANSI_1251",
                              .tables = "0 TABLE|2 LAYER|0 LAYER|2 \xCA\xEE\xEB\xEE\xE4\xE5\xF6|70 0|62 1|6 CONTINUOUS|0 ENDTAB",
                              .entities = "0 LINE|8 \xEA\xEE\xEB\xEE\xE4\xE5\xF6|10 0|20 0|11 1|21 0"}.bytes());
        QCOMPARE(in.doc->layers().readAll().front().Name, QStringLiteral("Колодец"));
        QCOMPARE(in.elements(), QStringList{"Line l1 p-1 0,0 1,0"});   // names are found in any case
    }

    void blocksBecomeSymbolsWhereACharacterCanShowThem_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("insert");
        QTest::addColumn<QStringList>("elements");
        const auto row = [](const char *name, const char *content, const char *insert, const QStringList &elements) {
            QTest::newRow(name) << QByteArray(content) << QByteArray(insert) << elements;
        };
        const char *const plain = "0 LINE|8 0|10 1|20 1|11 3|21 1";
        row("turned and scaled", plain, "8 A|10 5|20 6|41 2|42 2|50 90", {"Symbol l2 p-1 5,6 x2 90°"});
        row("own colour of the insert", "0 LINE|8 0|62 0|10 1|20 1|11 3|21 1", "8 A|62 4|10 0|20 0", {"Symbol l2 p4 0,0 x1 0°"});
        row("layer's colour in spite of the insert's", plain, "8 A|62 4|10 0|20 0", {"Symbol l2 p-1 0,0 x1 0°"});
        row("mirrored across", plain, "8 A|10 0|20 0|41 -1", {"Symbol l2 p-1 0,0 x-1 0°"});
        row("mirrored along", plain, "8 A|10 0|20 0|42 -1", {"Symbol l2 p-1 0,0 x-1 180°"});
        row("from below", plain, "8 A|10 5|20 0|230 -1", {"Symbol l2 p-1 -5,0 x-1 0°"});
        row("one colour of its own", "0 LINE|8 0|62 5|10 1|20 1|11 3|21 1", "8 A|10 0|20 0", {"Symbol l2 p5 0,0 x1 0°"});
        row("one layer of its own", "0 LINE|8 A|10 1|20 1|11 3|21 1", "8 0|10 0|20 0", {"Symbol l2 p-1 0,0 x1 0°"});
        row("array", plain, "8 A|10 0|20 0|70 2|71 2|44 10|45 5",
            {"Symbol l2 p-1 0,0 x1 0°", "Symbol l2 p-1 10,0 x1 0°", "Symbol l2 p-1 0,5 x1 0°", "Symbol l2 p-1 10,5 x1 0°"});
        row("unequal scale", plain, "8 A|10 0|20 0|41 2|42 1", {"Line l2 p-1 0,0 4,0"});
        row("circle, unequal scale", "0 CIRCLE|8 0|10 1|20 1|40 1", "8 A|10 0|20 0|41 2|42 1",
            {"Ellipse l2 p-1 0,0 2,0 r0.5 0..0"});
        row("several colours", "0 LINE|8 0|62 1|10 1|20 1|11 3|21 1|0 LINE|8 0|10 1|20 1|11 1|21 2", "8 A|10 0|20 0",
            {"Line l2 p1 0,0 2,0", "Line l2 p-1 0,0 0,1"});
        row("dashes", "0 LINE|8 0|6 DASH|10 1|20 1|11 3|21 1", "8 A|10 0|20 0", {"Line l2 p-1 t2 0,0 2,0"});
        row("fill", "0 SOLID|8 0|62 0|10 1|20 1|11 2|21 1|12 1|22 2|13 1|23 2", "8 A|62 6|10 0|20 0", {"Fill l2 p6 0,0 1,0 0,1"});
        row("text, turned", "0 TEXT|8 0|10 1|20 1|40 1|1 t", "8 A|10 0|20 0|50 90", {"Text l2 p-1 0,0 h1 a24 90° 't'"});
        row("block in a block", "0 INSERT|8 0|2 inner|10 1|20 1|41 3|42 3", "8 A|10 7|20 7", {"Symbol l2 p-1 7,7 x1 0°"});
        row("block in a block, unequal scale", "0 INSERT|8 0|62 0|2 inner|10 1|20 1|41 3|42 3", "8 A|62 2|10 0|20 0|41 1|42 2",
            {"Line l2 p2 0,0 3,0"});
        row("contains itself", "0 INSERT|8 0|2 B|10 1|20 1|0 LINE|8 0|10 1|20 1|11 3|21 1", "8 A|10 0|20 0", {"Line l2 p-1 0,0 2,0"});
        row("invisible content", "0 LINE|8 0|60 1|10 9|20 9|11 9|21 8|0 LINE|8 0|10 1|20 1|11 3|21 1", "8 A|10 0|20 0",
            {"Symbol l2 p-1 0,0 x1 0°"});
    }
    void blocksBecomeSymbolsWhereACharacterCanShowThem()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, insert);
        const Imported in(Dxf{.tables = kTable + "|0 TABLE|2 LTYPE|0 LTYPE|2 DASH|70 0|73 2|40 3|49 2|49 -1|0 ENDTAB",
                              .blocks = "0 BLOCK|8 0|2 inner|70 0|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 ENDBLK|"
                                        "0 BLOCK|8 0|2 B|70 0|10 1|20 1|" + content + "|0 ENDBLK",
                              .entities = "0 INSERT|2 B|" + insert}.bytes());
        QTEST(in.elements(), "elements");
        QCOMPARE(in.tally("INSERT").lost, 0);
    }

    void aSymbolHasTheTrueSize()
    {
        const Imported in(Dxf{.blocks = "0 BLOCK|8 0|2 Well|70 0|10 100|20 50|0 CIRCLE|8 0|10 103|20 50|40 2|0 ENDBLK|"
                                        "0 BLOCK|8 0|2 *U1|70 1|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                              .entities = "0 INSERT|8 0|2 WELL|10 0|20 0|41 3|42 3"}.bytes(), {0.3048, 500});
        const auto symbols = in.doc->symbols().readAll();
        QCOMPARE(symbols.size(), size_t(2));            // the one of a new document, and the named block
        const ZolWDoc::tSid &s = symbols.back();
        QCOMPARE(s.ShortName, QStringLiteral("Well"));
        QVERIFY(s.Code == 33 && s.Type == 1 && s.Align == 24 && s.Facename == in.doc->ownFontName());
        QCOMPARE(s.Size_mm, float(4 * 0.3048 * 1000 / 500));
        const ZolWDoc::Glyph glyph = in.doc->ownFont().find(s.Facename)->glyph(s.Code);
        const double metres = double(s.Size_mm) * 500 / 1000 / 0.3048;   // of one letter height, in the file's feet
        for (const ZolWDoc::PointMm &p : glyph.strokes.at(0))
            QVERIFY(std::abs(std::hypot(p.x * metres - 3, p.y * metres) - 2) < 1e-6);
        QVERIFY(glyph.strokes.at(0).size() >= 32);      // sagitta of half a percent at most
        QCOMPARE(in.doc->elements().at(0).scale, 3.0);
    }

    void dimensionsShowTheirBlock()
    {
        const Imported in(Dxf{.tables = kTable, .blocks = "0 BLOCK|8 0|2 *D1|70 1|10 0|20 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 ENDBLK",
                              .entities = "0 DIMENSION|8 A|62 1|2 *D1|10 0|20 0|70 0|13 0|23 0|14 1|24 0"}.bytes());
        QCOMPARE(in.elements(), QStringList{"Line l2 p1 0,0 1,0"});
        QCOMPARE(in.doc->symbols().count(), 1);
    }

    void nothingIsLeftOutSilently()
    {
        const Imported in(Dxf{.blocks = "0 BLOCK|8 0|2 *Paper_Space|70 0|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 1|0 ENDBLK|"
                                        "0 BLOCK|8 0|2 *U9|70 1|10 0|20 0|0 CIRCLE|8 0|10 0|20 0|40 1|0 ENDBLK",
                              .entities = "0 LINE|8 0|67 1|10 0|20 0|11 1|21 1|0 LINE|8 0|60 1|10 0|20 0|11 1|21 1|"
                                          "0 RAY|8 0|10 0|20 0|11 1|21 0|0 FUTURE|8 0|1 x|0 FUTURE|8 0|1 y|"
                                          "0 TEXT|8 0|10 0|20 0|40 1|1   |0 VIEWPORT|8 0|67 1|10 0|20 0|0 POINT|8 0|10 1|20 1"}.bytes());
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
        QTest::newRow("no drawing in it") << QByteArray("0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n") << 30304;
        QTest::newRow("binary") << QByteArray("AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION", 32) << 30302;
        QTest::newRow("another format of drawings") << QByteArray("AC1032\0\0\0\0\0", 11) << 30303;
    }
    void brokenFilesAreRefusedWithOneMessage()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, reason);
        const QTemporaryDir folder;
        const QString path = source::written(folder, bytes), target = folder.filePath(QStringLiteral("new.qvd"));
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
        const Imported in(Dxf{.entities = "0 LWPOLYLINE|8 0|90 1073741825|70 0|10 0|20 0|10 1|20 0|"
                                          "0 LWPOLYLINE|8 0|70 0|10 5|20 5|10 6|20 5|"
                                          "0 SPLINE|8 0|71 1|72 -7|73 2147483647|40 0|40 0|40 1|40 1|10 0|20 0|10 8|20 0|"
                                          "0 SPLINE|8 0|71 3|74 2|11 0|21 0|11 1|21 0|0 LEADER|8 0|76 99999999|10 0|20 0|10 1|20 1"}
                              .bytes());
        QCOMPARE(in.elements().size(), 5);
        QCOMPARE(in.elements().at(0), QStringLiteral("Line l1 p-1 0,0 1,0"));
        QCOMPARE(in.elements().at(1), QStringLiteral("Line l1 p-1 5,5 6,5"));
        QCOMPARE(in.elements().at(4), QStringLiteral("Line l1 p-1 0,0 1,1"));
    }

    void longTextsStayWhole()
    {
        const QByteArray text = QByteArray("árvíz ").repeated(400);
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1021", .entities = "0 TEXT|8 0|10 0|20 0|40 1|1 " + text
                                                                           + "|0 POINT|8 0|10 1|20 1"}.bytes());
        QCOMPARE(in.doc->elements().at(0).text, QString::fromUtf8(text));
        QCOMPARE(in.elements().at(1), QStringLiteral("Point l1 p-1 1,1"));
    }

    void numbersHaveADecimalPointInEveryLocale()
    {
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
        const QStringList elements = Imported(Dxf{.entities = "0 CIRCLE|8 0|10 1.5|20 2.25|40 0.5|0 POINT|8 0|10 1.25|20 1e-1"}
                                                  .bytes()).elements();
        const bool kept = std::use_facet<std::numpunct<char>>(std::locale()).decimal_point() == ',';
        std::locale::global(before);
        QVERIFY(kept);
        QCOMPARE(elements, (QStringList{"Line l1 p-1 1,2.25b1 2,2.25b1 closed", "Point l1 p-1 1.25,0.1"}));
    }

    void theUnitComesFromTheHeadUnlessTheCoordinatesDeny_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<double>("metres");
        QTest::addColumn<double>("scale");
        const QByteArray near = "10 0|20 0|11 1|21 1|0 POINT|8 0|10 800|20 400", far = "10 650000|20 240000|11 1|21 1|"
                                                                                        "0 POINT|8 0|10 650300|20 240200";
        QTest::newRow("named: feet") << QByteArray("|9 $INSUNITS|70 2") << near << 0.3048 << 250.0;
        QTest::newRow("named: millimetres") << QByteArray("|9 $INSUNITS|70 4") << near << 0.001 << 100.0;
        QTest::newRow("map coordinates") << QByteArray("|9 $INSUNITS|70 4") << far << 1.0 << 500.0;
        QTest::newRow("imperial") << QByteArray("|9 $MEASUREMENT|70 0") << near << 0.0254 << 100.0;
        QTest::newRow("nothing said") << QByteArray() << near << 1.0 << 1000.0;
    }
    void theUnitComesFromTheHeadUnlessTheCoordinatesDeny()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, line);
        QFETCH(double, scale);
        const QTemporaryDir folder;
        const ImportGuess guess = DxfImport::guessOf(source::written(
            folder, Dxf{.header = "9 $ACADVER|1 AC1015" + header, .entities = "0 LINE|8 0|" + line}.bytes()));
        QTEST(lengthUnits()[size_t(guess.unit)].metres, "metres");
        QCOMPARE(guess.scale, scale);
        QCOMPARE(guess.objects, 2);
    }
};

QVDC_TEST(tst_DxfImport)
#include "tst_DxfImport.moc"
