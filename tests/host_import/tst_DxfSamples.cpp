#include "DxfSource.h"

#include "support/Registry.h"

#include <QFileInfo>
#include <QtTest/QTest>

#include <map>

using namespace refhost;

namespace {

using Counts = std::map<QByteArray, int>;

/// What stands in a file, counted without the import: objects by kind, table entries as "TABLES/kind".
Counts countedIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    Counts counts;
    QByteArray section, kind;
    while (!file.atEnd()) {
        const QByteArray code = file.readLine().trimmed(), value = file.readLine().trimmed();
        if (code == "2" && kind == "SECTION") section = value;
        if (code != "0") continue;
        kind = value;
        if (section == "TABLES") ++counts["TABLES/" + kind];
        if (section == "ENTITIES" || section == "BLOCKS") ++counts[kind];
    }
    for (const char *frame : {"SECTION", "ENDSEC", "EOF", "BLOCK", "ENDBLK", "VERTEX", "SEQEND"})
        counts.erase(frame);
    return counts;
}

} // namespace

/// Real drawings of several programs and ages. They are not part of the project.
class tst_DxfSamples : public QObject {
    Q_OBJECT
private slots:
    void everyObjectIsCarriedOverOrReported_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("shapeFiles");            // text styles that are none
        QTest::addColumn<QStringList>("lost");          // kinds without a counterpart
        QTest::addColumn<QString>("layer");             // one of the names
        QTest::addColumn<QString>("symbol");
        const auto row = [](const char *file, int shapeFiles, const QStringList &lost, const char *layer,
                            const char *symbol) {
            QTest::newRow(file) << QString::fromLatin1(file) << shapeFiles << lost << QString::fromUtf8(layer)
                                << QString::fromUtf8(symbol);
        };
        row("industrial_site_survey_r2010", 1, {"3DSOLID 5"}, "_Осветленная вода_Точки",
            "XYZDifferences - Наклон");
        row("cad_sample_r12", 2, {"ATTDEF 4", "SHAPE 1"}, "LAYER_COLOR_80___1", "MY_BLOCK_V2");
        row("cad_sample_r2007", 2,
            {"3DSOLID 2", "ATTDEF 4", "IMAGE 1", "MESH 2", "PDFUNDERLAY 1", "RAY 1", "REGION 1", "SHAPE 1",
             "TOLERANCE 3", "WIPEOUT 1", "XLINE 1"},
            "Layer_color_80 @ 1", "my_block_v2");
        row("house_floorplan_r2004", 2, {"ATTDEF 2"}, "xref-Bishop-Overland-08$0$A-FIXTURE", "_Open30");
        row("swiss_cadastre_r12", 0, {}, "HausnummerPos", "");
        row("orienteering_map_r12", 0, {}, "899.0.2_Red_for_logos", "");
    }
    void everyObjectIsCarriedOverOrReported()
    {
        QFETCH(QString, file);
        QFETCH(int, shapeFiles);
        QFETCH(QString, layer);
        QFETCH(QString, symbol);
        const QString folder = qEnvironmentVariable("QVDC_SAMPLES");
        if (folder.isEmpty()) QSKIP("QVDC_SAMPLES does not name a folder of drawings");
        const QString path = folder + QStringLiteral("/dxf/") + file + QStringLiteral(".dxf");
        QVERIFY2(QFileInfo::exists(path), qPrintable(path));
        Counts counts = countedIn(path);
        const Drawing drawing = DxfImport::parse(path);
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        const ImportReport report = DxfImport::write(drawing, *doc, DxfImport::guessOf(path).options());

        QCOMPARE(int(drawing.layers.size()), counts["TABLES/LAYER"]);
        QCOMPARE(doc->layers().count(), counts["TABLES/LAYER"]);
        const int none = counts["TABLES/LTYPE"] > 6 && drawing.version > QStringLiteral("AC1009")
                             ? 2
                             : 0; // by layer, by block
        QCOMPARE(int(drawing.lineTypes.size()), counts["TABLES/LTYPE"] - none);
        QCOMPARE(drawing.fileStyles, counts["TABLES/STYLE"] - shapeFiles);

        QStringList lost;
        int objects = 0;
        for (const KindTally &t : report.kinds) {
            QCOMPARE(t.total, counts[t.kind.toLatin1()]);
            QCOMPARE(t.carried + t.paper + t.invisible + t.empty + t.unused + t.lost, t.total);
            QVERIFY(std::min({t.carried, t.paper, t.invisible, t.empty, t.unused, t.lost}) >= 0);
            if (t.lost > 0) lost << QStringLiteral("%1 %2").arg(t.kind).arg(t.lost);
            objects += t.total;
        }
        lost.sort();
        QTEST(lost, "lost");
        for (const auto &[kind, n] : counts) objects -= kind.startsWith("TABLES/") ? 0 : n;
        QCOMPARE(objects, 0);                           // no kind is missing in the report
        QCOMPARE(doc->elementCount(), report.elementCount());

        const auto layers = doc->layers().readAll();
        QVERIFY(std::ranges::find(layers, layer, &ZolWDoc::tLay::Name) != layers.end());
        QVERIFY(symbol.isEmpty() || doc->symbols().nameExists(symbol));
    }

    void theUnitIsGuessed_data()
    {
        QTest::addColumn<double>("metres");
        QTest::addColumn<double>("scale");
        QTest::addColumn<bool>("noted");
        const auto row = [](const char *file, double metres, double scale, bool noted) {
            QTest::newRow(file) << metres << scale << noted;
        };
        row("industrial_site_survey_r2010", 1, 10000, true);    // says millimetres, has map coordinates
        row("cad_sample_r12", 0.0254, 200, false);              // says nothing; the same drawing says inches
        row("cad_sample_r2007", 0.0254, 200, false);
        row("house_floorplan_r2004", 0.0254, 100, true);        // says millimetres, its lengths are 58'-0"
        row("swiss_cadastre_r12", 1, 25000, false);             // a whole district, forty kilometres wide
        row("orienteering_map_r12", 0.001, 1, true);            // says nothing and is as large as an A4 sheet
    }
    void theUnitIsGuessed()
    {
        QFETCH(double, scale);
        QFETCH(bool, noted);
        const QString folder = qEnvironmentVariable("QVDC_SAMPLES");
        if (folder.isEmpty()) QSKIP("QVDC_SAMPLES does not name a folder of drawings");
        const ImportGuess guess =
            DxfImport::guessOf(folder + QStringLiteral("/dxf/") + QLatin1String(QTest::currentDataTag()) +
                               QStringLiteral(".dxf"));
        QTEST(lengthUnits()[size_t(guess.unit)].metres, "metres");
        QCOMPARE(guess.scale, scale);
        QCOMPARE(!guess.note.isEmpty(), noted);
    }

    void aSurveyWithoutBlocksKeepsEveryVertex_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("cadastre") << "swiss_cadastre_r12";
        QTest::newRow("orienteering") << "orienteering_map_r12";
    }
    void aSurveyWithoutBlocksKeepsEveryVertex()
    {
        QFETCH(QString, file);
        const QString folder = qEnvironmentVariable("QVDC_SAMPLES");
        if (folder.isEmpty()) QSKIP("QVDC_SAMPLES does not name a folder of drawings");
        QFile source(folder + QStringLiteral("/dxf/") + file + QStringLiteral(".dxf"));
        QVERIFY2(source.open(QIODevice::ReadOnly), qPrintable(source.fileName()));
        double sum = 0;
        int vertices = 0;
        QByteArray kind;
        while (!source.atEnd()) {
            const QByteArray code = source.readLine().trimmed(), value = source.readLine().trimmed();
            if (code == "0") kind = value;
            if (kind == "VERTEX" && code == "10") sum += value.toDouble(), ++vertices;
            if (kind == "VERTEX" && code == "20") sum += value.toDouble();
        }
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        DxfImport::write(DxfImport::parse(source.fileName()), *doc, {1, 1000});
        for (const Element &e : doc->elements()) {
            if (e.kind != ElementKind::Line) continue;
            vertices -= int(e.vertices.size());
            for (const Vertex &v : e.vertices) sum -= v.x + v.y;
        }
        QCOMPARE(vertices, 0);
        QVERIFY2(std::abs(sum) < 0.01, qPrintable(QString::number(sum)));
    }
};

QVDC_TEST(tst_DxfSamples)
#include "tst_DxfSamples.moc"
