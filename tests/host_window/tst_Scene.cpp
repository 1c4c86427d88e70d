#include "SmallScene.h"

#include "window/Outlines.h"

#include "support/Registry.h"

using namespace refhost;
using namespace tests;

class tst_Scene : public QObject {
    Q_OBJECT
private:
    static Scene sceneOf(std::vector<Element> elements, Resources r = smallTables())
    {
        return {std::move(r), std::move(elements)};
    }

private slots:
    void byLayerRules()
    {
        const auto l = ElementKind::Line, t = ElementKind::Text, s = ElementKind::Symbol;
        using Ids = QList<int>;                 // line type, pen, text type
        const std::tuple<const char *, ElementKind, int, Ids, Ids> rows[] = {
            {"nothing of its own: the layer's", l, 1, {-1, -1, -1}, {5, 2, 3}},
            {"its own", l, 1, {6, 1, 4}, {6, 1, 4}},
            {"pen 0 is the foreground, not the layer's", l, 1, {-1, 0, -1}, {5, 0, 3}},
            {"a line on a by-layer layer; pen of the screen colour", l, 2, {5, 1, 3}, {6, 4, 4}},
            {"a text on a by-layer layer", t, 2, {5, 1, 3}, {6, 4, 4}},
            {"a symbol on a by-layer layer", s, 2, {-1, 1, -1}, {6, 4, 4}},
            {"on no layer", l, -1, {-1, -1, -1}, {-1, 0, -1}},
            {"on a layer that is not there", l, 77, {5, 3, -1}, {5, 3, -1}}};
        const auto pick = [](const Ids &ids, int i) { return qint16(ids[i]); };
        Resources r = smallTables();
        for (const auto &[name, kind, layer, own, drawn] : rows) {
            const Look look = r.lookOf({.kind = kind, .layId = qint16(layer), .penStyleId = pick(own, 0),
                                        .penColorId = pick(own, 1), .txdId = pick(own, 2)});
            same(name, Ids{look.penStyleId, look.pen, look.txdId}, drawn);
        }
        auto layers = r.layers.rows();
        layers[1].TxByLayer = false;            // the other switch forces only its kind
        r.layers = layers;
        QCOMPARE(r.lookOf({.kind = t, .layId = 2, .penColorId = 1, .txdId = 3}).pen, qint16(1));
        QCOMPARE(r.lookOf({.kind = l, .layId = 2, .penColorId = 1}).pen, qint16(4));
    }

    void hiddenLayersAreNeitherDrawnNorHit()
    {
        const Scene scene = sceneOf({line(-50, 0, 50, 0, 2)}, smallTables(false));
        QCOMPARE(inked(imageOf(scene, {100, 41}, -scene.origin(), 1), 20), 0);
        QCOMPARE(scene.elementAt(-scene.origin(), 5), -1);
        QVERIFY(scene.elementsIn(QRectF(-200, -200, 400, 400), false).empty());
    }

    void whiteAndBlackChangePlacesWithTheBackground()
    {
        const QColor dark(0x1E, 0x1E, 0x22), white(Qt::white), nearBlack(0x20, 0x20, 0x20);
        const std::tuple<const char *, size_t, QColor, QColor> rows[] = {
            {"white on white", 1, white, Qt::black},    {"white on dark", 1, dark, white},
            {"near black on dark", 3, dark, white},     {"near black on white", 3, white, nearBlack},
            {"red on dark", 2, dark, Qt::red},          {"grey on white", 4, white, QColor(0x80, 0x80, 0x80)},
            {"no pen on dark", 0, dark, white}};
        const Resources r = smallTables();
        for (const auto &[name, pen, background, seen] : rows)
            same(name, screenColorsOn(background, r.pens, r.palette, Colors::Screen)[pen], seen);
        QCOMPARE(screenColorsOn(white, r.pens, r.palette, Colors::Print)[2], nearBlack); // the pen's own
    }

    void dashesAppearWhenTheyAreLargeEnough()
    {
        const Scene scene = sceneOf({line(-500, 0, 500, 0, 2)}); // 3 metres on, 2 off
        const auto &chunk = scene.batches().front().chunks.front();
        QCOMPARE(inked(imageOf(scene, {200, 41}, -scene.origin(), 0.5), 20), 200);
        QVERIFY(chunk.pattern == nullptr);      // not made for a far view
        const int on = inked(imageOf(scene, {200, 41}, -scene.origin(), 4), 20);
        QVERIFY2(on > 110 && on < 150, qPrintable(QString::number(on))); // three fifths of 200, ends are soft
        QVERIFY(chunk.pattern != nullptr);
    }

    void symbolsReachOnlyAsFarAsTheirStrokes()
    {
        Resources r = smallTables();
        r.symbols = {{{.SidId = 9, .Size_mm = 2, .Type = 1}}};
        r.glyphs.insert(9, {.strokes = {{{100, 0}, {101, 0}}}, .advance = 1}); // far from its insertion point
        const Scene scene = sceneOf(
            {{.kind = ElementKind::Symbol, .layId = 1, .sidId = 9, .vertices = {{0, 0}}, .scale = -1}}, r);
        const QRectF box = scene.bounds().translated(scene.origin());
        QVERIFY2(std::abs(box.left() + 202) < 0.01 && std::abs(box.right() + 200) < 0.01,
                 "mirrored, 2 mm a letter height");
        QVERIFY(box.height() < 0.1);
    }

    void pointsHaveOneSizeOnTheScreen()
    {
        const Scene scene = sceneOf({{.kind = ElementKind::Point, .layId = 1, .vertices = {{0, 0}}}});
        for (double zoom : {0.01, 1.0, 300.0})
            QCOMPARE(inked(imageOf(scene, {41, 41}, -scene.origin(), zoom), 20), 7);
    }

    void largeCoordinatesKeepTheirHundredths()
    {
        const double e = 650000, n = 240000;
        const Scene scene = sceneOf({line(e, n, e + 0.01, n), line(e, n + 0.01, e + 0.01, n + 0.01),
                                     line(e + 800, n, e + 900, n + 500)});
        const QPointF at = scene.toLocal(e + 0.005, n + 0.005);
        const QImage image = imageOf(scene, {100, 100}, at, 5000); // a hundredth of a metre is 50 pixels
        QVERIFY(inked(image, 75) > 40 && inked(image, 25) > 40);
        QCOMPARE(inked(image, 50), 0);
        QCOMPARE(scene.toWorld(scene.toLocal(e + 0.01, n)), QPointF(e + 0.01, n));
    }

    void aDrawingWithARunawayOpensOnItsBulk()
    {
        std::vector<Element> all;
        for (int i = 0; i < 100; ++i) all.push_back(line(650000 + i, 240000, 650001 + i, 240060));
        const Scene tidy = sceneOf(all);
        QCOMPARE(tidy.mainBounds(), tidy.bounds());
        all.push_back(line(0, 0, 1, 1));
        const Scene scene = sceneOf(all);
        QVERIFY(scene.bounds().width() > 640000 && scene.mainBounds().width() < 150);
        QVERIFY(scene.mainBounds().contains(scene.toLocal(650050, 240030)));
        all.push_back(line(1e15, 1e15, 1e15 + 10, 1e15));
        QVERIFY(QLineF(sceneOf(all).origin(), {650000, 240000}).length() < 150);
    }

    void whatIsNoNumberIsLeftOut()
    {
        const Scene scene = sceneOf(
            {line(qQNaN(), 0, 1, 1), line(0, 0, qInf(), 5), {.kind = ElementKind::Line}, line(0, 0, 10, 0)});
        QCOMPARE(scene.elementsIn(QRectF(-1000, -1000, 2000, 2000), false), std::vector<int>{3});
        QVERIFY(scene.bounds().width() < 11);
    }

    void curvesAreCutFinely()
    {
        const std::pair<double, double> rows[] = { // bulges, and lengths from (0,0) to (10,0)
            {0, 10}, {1, 5 * M_PI},
            {-std::tan(M_PI / 8), 10 / std::sqrt(2.0) * M_PI / 2}}; // a quarter, clockwise
        for (const auto &[bulge, length] : rows) {
            const Element e{.kind = ElementKind::Line, .vertices = {{0, 0, bulge}, {10, 0}}};
            const QPolygonF path = outlinesOf(e, {}).front();
            double sum = 0;
            for (qsizetype i = 1; i < path.size(); ++i) sum += QLineF(path[i - 1], path[i]).length();
            QVERIFY(std::abs(sum - length) < 0.01 * length / 10);
            const QPointF middle = path[path.size() / 2]; // a left turn bends to the right of the chord
            QVERIFY(bulge == 0 || (middle.y() < 0) == (bulge > 0));
        }
    }

    void overlappingFillsDoNotCutEachOtherOut()
    {
        const auto square = [](double x, double size) {
            return Element{.kind = ElementKind::Fill, .layId = 1,
                           .vertices = {{x, 0}, {x + size, 0}, {x + size, size}, {x, size}}};
        };
        Element holed = square(100, 40); // with a hole, wound the same way
        holed.rings = {0, 4};
        for (const Element &hole = square(110, 20); const Vertex &v : hole.vertices)
            holed.vertices.push_back({v.x, v.y + 10});
        const Scene scene = sceneOf({square(0, 40), square(20, 40), holed});
        const QImage image = imageOf(scene, {200, 60}, QPointF(100, 20) - scene.origin(), 1);
        const auto at = [&image](int x) { return image.pixelColor(x, 30) != Qt::white; };
        QVERIFY(at(30) && !at(120) && at(105)); // where both squares lie, the hole, beside it
    }

    void textsAreHitAndTooSmallOnesNotDrawn()
    {
        const Scene scene = sceneOf({{.kind = ElementKind::Text, .layId = 1, .vertices = {{0, 0}},
                                      .rotation = 90, .size = 10, .align = 24, .text = "HHHH"}});
        QCOMPARE(scene.elementAt(QPointF(-5, 15) - scene.origin(), 0.5), 0); // runs upwards
        QCOMPARE(scene.elementAt(QPointF(15, 5) - scene.origin(), 0.5), -1);
        const QImage large = imageOf(scene, {80, 80}, -scene.origin(), 1),
                     small = imageOf(scene, {80, 80}, -scene.origin(), 0.1);
        QVERIFY(inked(large, 20) > 0);
        for (int row = 0; row < 80; ++row) QCOMPARE(inked(small, row), 0);
    }

};

QVDC_TEST(tst_Scene)
#include "tst_Scene.moc"
