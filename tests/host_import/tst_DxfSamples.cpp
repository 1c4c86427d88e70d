#include "DxfSource.h"

#include "support/Registry.h"

#include <map>

using namespace refhost;
using tests::same;

namespace {

/// What stands in a file, counted without the import: objects by kind, table entries as "TABLES/kind".
struct Counted {
    std::map<QByteArray, int> counts;
    double coordinates = 0;                     ///< sum of those of all vertices

    explicit Counted(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) qFatal("%s", qPrintable(path));
        QByteArray section, kind;
        while (!file.atEnd()) {
            const QByteArray code = file.readLine().trimmed(), value = file.readLine().trimmed();
            if (code == "2" && kind == "SECTION") section = value;
            if (kind == "VERTEX" && (code == "10" || code == "20")) coordinates += value.toDouble();
            if (code != "0") continue;
            kind = value;
            if (section == "TABLES") ++counts["TABLES/" + kind];
            if (section == "ENTITIES" || section == "BLOCKS") ++counts[kind];
        }
    }
    int objects() const
    {
        int n = 0;
        for (const auto &[kind, count] : counts)
            if (!kind.startsWith("TABLES/") && !QList<QByteArray>{"SECTION", "ENDSEC", "EOF", "BLOCK",
                                                                  "ENDBLK", "VERTEX", "SEQEND"}
                                                    .contains(kind))
                n += count;
        return n;
    }
};

struct Sample {
    const char *file;
    double metres, scale;                       ///< as they are guessed
    bool noted;
    int shapeFiles;                             ///< text styles that are none
    QStringList lost;                           ///< kinds without a counterpart
    const char *layer, *symbol;                 ///< one of the names
};
const Sample kSamples[] = {
    // says millimetres, has map coordinates
    {"industrial_site_survey_r2010", 1, 10000, true, 1, {"3DSOLID 5"}, "_Осветленная вода_Точки",
     "XYZDifferences - Наклон"},
    // says nothing; the same drawing says inches
    {"cad_sample_r12", 0.0254, 200, false, 2, {"ATTDEF 4", "SHAPE 1"}, "LAYER_COLOR_80___1", "MY_BLOCK_V2"},
    {"cad_sample_r2007", 0.0254, 200, false, 2,
     {"3DSOLID 2", "ATTDEF 4", "IMAGE 1", "MESH 2", "PDFUNDERLAY 1", "RAY 1", "REGION 1", "SHAPE 1",
      "TOLERANCE 3", "WIPEOUT 1", "XLINE 1"},
     "Layer_color_80 @ 1", "my_block_v2"},
    // says millimetres, its lengths are 58'-0"
    {"house_floorplan_r2004", 0.0254, 100, true, 2, {"ATTDEF 2"}, "xref-Bishop-Overland-08$0$A-FIXTURE",
     "_Open30"},
    // a whole district, forty kilometres wide
    {"swiss_cadastre_r12", 1, 25000, false, 0, {}, "HausnummerPos", nullptr},
    // says nothing and is as large as an A4 sheet
    {"orienteering_map_r12", 0.001, 1, true, 0, {}, "899.0.2_Red_for_logos", nullptr},
};

} // namespace

/// Real drawings of several programs and ages. They are not part of the project.
class tst_DxfSamples : public QObject {
    Q_OBJECT
private:
    static QString pathOf(const Sample &sample)
    {
        return qEnvironmentVariable("QVDC_SAMPLES") + "/dxf/" + sample.file + ".dxf";
    }
    /// A file without blocks comes over to the last vertex.
    static void compareVertices(const Sample &of, const Drawing &drawing, Counted in)
    {
        const auto doc = SqliteDoc::create(":memory:");
        DxfImport::write(drawing, *doc, {1, 1000});
        for (const Element &e : doc->elements()) {
            if (e.kind != ElementKind::Line) continue;
            in.counts["VERTEX"] -= int(e.vertices.size());
            for (const Vertex &v : e.vertices) in.coordinates -= v.x + v.y;
        }
        same(of.file, in.counts["VERTEX"], 0);
        QVERIFY2(std::abs(in.coordinates) < 0.01, of.file);
    }
private slots:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("QVDC_SAMPLES"))
            QSKIP("QVDC_SAMPLES does not name a folder of drawings");
    }
    void everyObjectIsCarriedOverOrReported()
    {
        for (const Sample &sample : kSamples) {
            Counted in(pathOf(sample));
            const Drawing drawing = DxfImport::parse(pathOf(sample));
            const ImportGuess guess = DxfImport::guessOf(pathOf(sample));
            same(sample.file, lengthUnits()[size_t(guess.unit)].metres, sample.metres);
            same(sample.file, guess.scale, sample.scale);
            same(sample.file, !guess.note.isEmpty(), sample.noted);

            const auto doc = SqliteDoc::create(":memory:");
            const ImportReport report = DxfImport::write(drawing, *doc, guess.options());
            const int types = in.counts["TABLES/LTYPE"];
            const int none = types > 6 && drawing.version > "AC1009" ? 2 : 0; // by layer, by block
            same(sample.file, int(drawing.lineTypes.size()), types - none);
            same(sample.file, doc->layers().count(), in.counts["TABLES/LAYER"]);
            same(sample.file, drawing.fileStyles, in.counts["TABLES/STYLE"] - sample.shapeFiles);
            QStringList lost;
            int objects = 0;
            for (const KindTally &t : report.kinds) {
                same(sample.file, t.total, in.counts[t.kind.toLatin1()]);
                same(sample.file, t.carried + t.paper + t.invisible + t.empty + t.unused + t.lost, t.total);
                QVERIFY(std::min({t.carried, t.paper, t.invisible, t.empty, t.unused, t.lost}) >= 0);
                if (t.lost > 0) lost << QString("%1 %2").arg(t.kind).arg(t.lost);
                objects += t.total;
            }
            lost.sort();
            same(sample.file, lost, sample.lost);
            same(sample.file, objects, in.objects()); // no kind is missing in the report
            same(sample.file, doc->elementCount(), report.elementCount());
            const auto layers = doc->layers().readAll();
            QVERIFY(std::ranges::find(layers, QString(sample.layer), &ZolWDoc::tLay::Name) != layers.end());
            if (sample.symbol) QVERIFY2(doc->symbols().nameExists(sample.symbol), sample.symbol);
            else compareVertices(sample, drawing, in);
        }
    }
};

QVDC_TEST(tst_DxfSamples)
#include "tst_DxfSamples.moc"
