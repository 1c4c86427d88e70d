#include "DxfSource.h"

#include "support/Registry.h"

#include <numbers>

using namespace refhost;
using source::Dxf;
using source::Imported;
using source::kLayers;
using source::kStyle;
using tests::same;

namespace {

/// An entity, and the elements it becomes.
struct Row {
    const char *name, *entity, *elements;
};
constexpr Row kShapes[] = {
    {"line", "0 LINE|8 A|10 1|20 2|30 9|11 3|21 4", "Line l2 p-1 1,2 3,4"},
    {"point", "0 POINT|8 A|62 1|10 1|20 2", "Point l2 p1 1,2"},
    {"arc", "0 ARC|8 A|10 0|20 0|40 1|50 0|51 90", "Line l2 p-1 1,0b0.4142 0,1"},
    {"arc through zero", "0 ARC|8 A|10 0|20 0|40 1|50 270|51 0", "Line l2 p-1 0,-1b0.4142 1,0"},
    {"long arc", "0 ARC|8 A|10 0|20 0|40 1|50 0|51 270", "Line l2 p-1 1,0b0.6682 -0.7071,0.7071b0.6682 0,-1"},
    {"arc seen from below", "0 ARC|8 A|10 5|20 0|40 1|50 0|51 90|230 -1", "Line l2 p-1 -6,0b-0.4142 -5,1"},
    {"circle", "0 CIRCLE|8 A|10 1|20 1|40 2", "Line l2 p-1 -1,1b1 3,1b1 closed"},
    {"tilted circle", "0 CIRCLE|8 A|10 0|20 0|40 2|210 1|220 0|230 0", "Ellipse l2 p-1 0,0 0,2 r0 0..0"},
    {"ellipse", "0 ELLIPSE|8 A|10 1|20 1|11 4|21 0|40 0.5|41 0|42 6.283185307179586",
     "Ellipse l2 p-1 1,1 4,0 r0.5 0..0"},
    {"part of an ellipse from below", "0 ELLIPSE|8 A|10 0|20 0|11 4|21 0|40 0.5|41 0|42 1|230 -1",
     "Ellipse l2 p-1 0,0 4,0 r0.5 -1..0"},
    {"light polyline", "0 LWPOLYLINE|8 A|90 3|70 1|10 0|20 0|42 1|10 2|20 0|10 2|20 2",
     "Line l2 p-1 0,0b1 2,0 2,2 closed"},
    {"mirrored light polyline", "0 LWPOLYLINE|8 A|90 2|70 0|10 1|20 0|42 0.5|10 2|20 0|230 -1",
     "Line l2 p-1 -1,0b-0.5 -2,0"},
    {"old polyline", "0 POLYLINE|8 A|66 1|70 0|0 VERTEX|8 A|10 0|20 0|42 -1|0 VERTEX|8 A|10 1|20 0|0 SEQEND",
     "Line l2 p-1 0,0b-1 1,0"},
    {"smoothed polyline without its frame",
     "0 POLYLINE|8 A|66 1|70 4|0 VERTEX|10 9|20 9|70 16|0 VERTEX|10 0|20 0|70 8|0 VERTEX|10 1|20 0|70 8|0 "
     "SEQEND", "Line l2 p-1 0,0 1,0"},
    {"spatial polyline",
     "0 POLYLINE|8 A|66 1|70 8|0 VERTEX|10 0|20 0|30 1|70 32|0 VERTEX|10 1|20 0|30 2|70 32|0 SEQEND",
     "Line l2 p-1 0,0 1,0"},
    {"mesh of faces",
     "0 POLYLINE|8 A|66 1|70 64|71 3|72 1|0 VERTEX|10 0|20 0|70 192|0 VERTEX|10 1|20 0|70 192|0 VERTEX|10 "
     "0|20 1|70 192|0 VERTEX|10 0|20 0|70 128|71 1|72 -2|73 3|0 SEQEND",
     "Line l2 p-1 0,0 1,0 | Line l2 p-1 0,1 0,0"},
    {"solid", "0 SOLID|8 A|10 0|20 0|11 1|21 0|12 0|22 1|13 1|23 1", "Fill l2 p-1 0,0 1,0 1,1 0,1"},
    {"face", "0 3DFACE|8 A|10 0|20 0|11 1|21 0|12 1|22 1|13 1|23 1", "Line l2 p-1 0,0 1,0 1,1 closed"},
    {"face with hidden edges", "0 3DFACE|8 A|10 0|20 0|11 1|21 0|12 1|22 1|13 0|23 1|70 13",
     "Line l2 p-1 1,0 1,1"},
    {"leader", "0 LEADER|8 A|76 2|10 0|20 0|10 1|20 1", "Line l2 p-1 0,0 1,1"},
    {"straight spline", "0 SPLINE|8 A|70 8|71 1|72 4|73 2|74 0|40 0|40 0|40 1|40 1|10 0|20 0|10 8|20 0",
     "Line l2 p-1 0,0 1,0 2,0 3,0 4,0 5,0 6,0 7,0 8,0"},
    {"multiline",
     "0 MLINE|8 A|2 S|40 1|70 0|71 1|72 2|73 2|10 0|20 0|11 0|21 0|12 1|22 0|13 0|23 1|74 2|41 1|41 0|75 "
     "0|74 2|41 -1|41 0|75 0|11 5|21 0|12 1|22 0|13 0|23 1|74 2|41 1|41 0|75 0|74 2|41 -1|41 0|75 0",
     "Line l2 p-1 0,1 5,1 | Line l2 p-1 0,-1 5,-1"},
    {"byblock outside of blocks", "0 LINE|8 A|62 0|6 BYBLOCK|10 0|20 0|11 1|21 0", "Line l2 p7 t1 0,0 1,0"},
};
constexpr Row kTexts[] = {
    {"left", "0 TEXT|8 A|10 1|20 2|40 3|1 a|50 90", "Text l2 p-1 1,2 h3 a24 90° 'a'"},
    {"right", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 3|1 a|72 2", "Text l2 p-1 9,2 h3 a26 0° 'a'"},
    {"top centre", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 3|1 a|72 1|73 3", "Text l2 p-1 9,2 h3 a6 0° 'a'"},
    {"middle stands on its base line", "0 TEXT|8 A|10 1|20 2|11 9|21 2|40 2|1 a|72 4|50 90",
     "Text l2 p-1 10,2 h2 a30 90° 'a'"},
    {"fitted between points", "0 TEXT|8 A|10 0|20 0|11 3|21 3|40 2|1 a|72 5",
     "Text l2 p-1 0,0 h2 a24 45° 'a'"},
    {"seen from below", "0 TEXT|8 A|10 5|20 0|40 2|1 a|230 -1", "Text l2 p-1 -5,0 h2 a26 0° 'a'"},
    {"rows, middle", "0 MTEXT|8 A|10 0|20 0|40 3|41 0|71 5|72 1|1 a\\Pb|7 STANDARD|11 0|21 1",
     "Text l2 p-1 -4,0 h3 a6 90° 'a/b'"},
    {"rows, bottom right, to the left", "0 MTEXT|8 A|10 0|20 0|40 3|71 9|1 a|11 -1|21 0",
     "Text l2 p-1 0,-3 h3 a2 180° 'a'"},
    {"long rows come in pieces", "0 MTEXT|8 A|10 0|20 0|40 1|71 1|3 first |3 second |1 last",
     "Text l2 p-1 0,0 h1 a0 0° 'first second last'"},
    {"attribute",
     "0 INSERT|8 A|66 1|2 nothing|10 0|20 0|0 ATTRIB|8 A|10 1|20 1|40 2|1 12/3|2 NR|70 0|0 SEQEND",
     "Text l2 p-1 1,1 h2 a24 0° '12/3'"},
};

const QByteArray kSquare = "91 1|92 2|72 0|73 1|93 4|10 0|20 0|10 4|20 0|10 4|20 4|10 0|20 4|97 0|";
constexpr char kFrame[] = "Line l1 p-1 0,0 4,0 4,4 0,4 closed";
const std::tuple<const char *, QByteArray, const char *, int> kHatches[] = {
    {"polyline, seeds are no boundary",
     "70 1|" + kSquare + "75 0|76 1|98 4|10 0|20 0|10 1|20 1|10 2|20 2|10 3|20 3",
     "Fill l1 p-1 0,0 4,0 4,4 0,4", 1},
    {"island of edges given in any direction",
     "70 1|91 2|92 2|72 0|73 1|93 3|10 0|20 0|10 9|20 0|10 0|20 9|97 0|92 0|93 3|72 1|10 1|20 1|11 2|21 1|72 "
     "1|"
     "10 1|20 2|11 2|21 1|72 1|10 1|20 2|11 1|21 1|97 0|75 0|76 1",
     "Fill l1 p-1 0,0 9,0 0,9 1,1 2,1 2,1 1,2 1,2 ring0 ring3", 1},
    {"pattern, cut at the boundary",
     "70 0|" + kSquare + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 0|44 0.5|45 0|46 1|79 0|98 0",
     "Line l1 p-1 0,0.5 4,0.5", 4},
    {"dashes of a pattern run on from its base",
     "70 0|" + kSquare + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 1|44 2|45 0|46 100|79 2|49 1|49 -1|98 0",
     "Line l1 p-1 1,2 2,2", 2},
    {"pattern that is missing", "70 0|" + kSquare + "75 0|76 1", kFrame, 1},
    {"pattern too fine to draw",
     "70 0|" + kSquare + "75 0|76 1|52 0|41 1|77 0|78 1|53 0|43 0|44 0|45 0|46 0.0001|79 0|98 0", kFrame, 1},
};

} // namespace

class tst_DxfImport : public QObject {
    Q_OBJECT
private slots:
    void layersKeepNumberColourAndState()
    {
        const Imported in(
            Dxf{.tables = "0 TABLE|2 LTYPE|0 LTYPE|2 DASH|70 0|3 |72 65|73 2|40 3|49 2|49 -1|0 ENDTAB|"
                          "0 TABLE|2 LAYER|0 LAYER|2 Kut|70 0|62 5|6 DASH|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|"
                          "0 LAYER|2 off|70 0|62 -3|6 dash|0 LAYER|2 frozen|70 1|62 2|6 CONTINUOUS|"
                          "0 LAYER|2 true|70 0|62 7|420 16711680|6 CONTINUOUS|0 ENDTAB",
                .entities = "0 LINE|8 unlisted|10 0|20 0|11 1|21 0"}
                .bytes());
        QStringList rows;
        for (const ZolWDoc::tLay &l : in.doc->layers().readAll())
            rows << QStringLiteral("%1 %2 c%3 t%4%5").arg(l.gNr).arg(l.Name).arg(l.ScrColor).arg(l.PenStyleId)
                        .arg(l.Visible ? QString() : " off");
        QCOMPARE(rows, (QStringList{"1 Kut c5 t2", "2 0 c7 t1", "3 off c3 t2 off", "4 frozen c2 t1 off",
                                    "5 true c1 t1", "6 unlisted c7 t1"}));
        const ImportReport::Row approximated{QV_DOC_CONTROLS::txt(QV_DOC_CONTROLS::Text{30370}), 1};
        QVERIFY(std::ranges::find(in.report.notes, approximated) != in.report.notes.end());
    }

    void lineTypesHaveTheirLengthsOnPaper()
    {
        const QByteArray tables =
            "0 TABLE|2 LTYPE|0 LTYPE|2 ByLayer|70 0|3 |72 65|73 0|40 0|0 LTYPE|2 Continuous|70 0|3 |"
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
        QCOMPARE(rows, (QStringList{"Continuous ", "GAS 0.25-0.25", "GAS ×2 0.5-0.5"}));
        QCOMPARE(in.elements(), "Line l1 p-1 t3 0,0 0.001,0 | Line l1 p-1 t2 0,0 0.001,0");
    }

    void layerSwitchesAreOnWhereEverythingFollowsTheLayer()
    {
        const Imported in(Dxf{.tables = kStyle,
                .entities = "0 LINE|8 plain|10 0|20 0|11 1|21 0|0 LINE|8 own|62 1|10 0|20 0|11 1|21 0|"
                            "0 LINE|8 own|10 0|20 0|11 1|21 0|0 TEXT|8 own|10 0|20 0|40 1|1 a|"
                            "0 TEXT|8 plain|62 3|10 0|20 0|40 1|1 b"} .bytes());
        QStringList rows;
        for (const ZolWDoc::tLay &l : in.doc->layers().readAll())
            rows << QStringLiteral("%1 %2 %3").arg(l.Name).arg(l.ElByLayer).arg(l.TxByLayer);
        QCOMPARE(rows, (QStringList{"plain 1 0", "own 0 1", "0 1 1"}));
    }

    void shapesAreTakenOver()
    {
        for (const auto &[name, entity, elements] : kShapes)
            same(name, Imported(Dxf{.tables = kLayers, .entities = entity}.bytes()).elements(), elements);
    }

    void hatchesKeepTheirRings()
    {
        for (const auto &[name, rest, first, count] : kHatches) {
            const Imported in(Dxf{.entities = "0 HATCH|8 0|10 0|20 0|30 0|2 P|" + rest}.bytes());
            const QStringList elements = in.elements().split(" | ");
            same(name, int(elements.size()), count);
            same(name, elements.first(), first);
        }
    }

    void aRoundEdgeOfAHatchStaysWithinItsTolerance()
    {
        const Imported in(Dxf{.entities =
                    "0 HATCH|8 0|10 0|20 0|30 0|2 SOLID|70 1|91 1|92 0|93 1|72 2|10 5|20 0|40 2|50 0|51 360|"
                    "73 1|97 0|75 0|76 1"} .bytes());
        const auto ring = in.doc->elements().at(0).vertices;
        double area = 0;
        for (size_t i = 0; i < ring.size(); ++i) {
            const Vertex &a = ring[i], &b = ring[(i + 1) % ring.size()];
            QVERIFY(std::abs(std::hypot(a.x - 5, a.y) - 2) < 1e-9);
            area += (a.x * b.y - b.x * a.y) / 2;
        }
        QVERIFY(std::abs(area - 4 * std::numbers::pi) < 0.03);
    }

    void textsStandWhereTheyStood()
    {
        for (const auto &[name, entity, element] : kTexts)
            same(name, Imported(Dxf{.tables = kLayers + "|" + kStyle, .entities = entity}.bytes()).elements(),
                 element);
    }

    void aTextWiderThanItsStyleGetsATypeOfItsOwn()
    {
        const Imported in(Dxf{.tables = kStyle,
                .entities = "0 TEXT|8 0|10 0|20 0|40 1|1 a|41 0.8|0 TEXT|8 0|10 0|20 0|40 1|1 b|"
                            "0 TEXT|8 0|10 0|20 0|40 1|1 c|41 0.8|0 MTEXT|8 0|10 0|20 0|40 1|71 1|"
                            "1 {\\fTahoma;d}"} .bytes());
        QStringList types;
        for (const ZolWDoc::tTxd &t : in.doc->textTypes().readAll())
            types << QString("%1 %2 %3 %4")
                         .arg(t.Name, t.Facename)
                         .arg(double(t.XwFact), 0, 'f', 1)
                         .arg(t.Weight);
        QCOMPARE(types.first(), "STANDARD Arial 1.0 0");
        QCOMPARE(types.at(1), "STANDARD 2 Arial 0.8 0");
        QCOMPARE(types.at(2), "STANDARD 3 Tahoma 1.0 0");
        const auto all = in.doc->elements();
        QVERIFY(all[0].txdId == all[2].txdId && all[0].txdId != all[1].txdId);
    }

    void namesKeepTheirLetters()
    {
        const Imported in(Dxf{.header = "9 $ACADVER|1 AC1018|9 $DWGCODEPAGE|3 ANSI_1251", .tables =
                    "0 TABLE|2 LAYER|0 LAYER|2 \xCA\xEE\xEB\xEE\xE4\xE5\xF6|70 0|62 1|6 CONTINUOUS|0 ENDTAB",
                .entities = "0 LINE|8 \xEA\xEE\xEB\xEE\xE4\xE5\xF6|10 0|20 0|11 1|21 0"} .bytes());
        QCOMPARE(in.doc->layers().readAll().front().Name, "Колодец");
        QCOMPARE(in.elements(), "Line l1 p-1 0,0 1,0");   // names are found in any case
    }
};

QVDC_TEST(tst_DxfImport)
#include "tst_DxfImport.moc"
