#include "import/DxfReader.h"

#include "import/DxfImport.h"
#include "import/DxfObjects.h"

#include "facade/services/Text.h"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <clocale>
#include <cstdio>
#include <locale>
#include <memory>
#include <numbers>
#include <optional>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// Takes what the reader delivers. An object's groups come first, one by one; its call comes when the next
/// object begins. What the reader has no call for is taken from the groups.
class Receiver final : public DL_CreationAdapter {
public:
    Receiver(const DxfScan &scan, DrawingBuilder &builder)
        : m_scan(scan), m_builder(builder), m_objects(builder)
    {}

    void processCodeValuePair(unsigned int code, const std::string &value) override
    {
        if (code != 0) {
            const bool coordinate = code >= 10 && code < 40;
            if (m_wholeWanted || !coordinate) m_next.push_back({int(code), value});
            return;
        }
        m_object.swap(m_next);
        m_next.clear();
        m_next.push_back({0, value});
        m_wholeWanted = !coordinatesDelivered(value);
        if (!m_object.empty()) readyByGroups(m_object.front().value);
    }

    // --- tables
    void addLayer(const DL_LayerData &d) override { m_builder.addLayer(text(d.name), head(), d.flags); }
    void addLinetype(const DL_LinetypeData &d) override
    {
        DxfLineType type{text(d.name), {}, false};
        for (const DxfPair &p : m_object) {
            if (p.code == 49) type.dashes.push_back(numberOfText(p.value));
            type.complex = type.complex || (p.code == 74 && numberOfText(p.value) != 0);
        }
        m_builder.addLineType(std::move(type));
    }
    void addTextStyle(const DL_StyleData &d) override
    {
        DxfTextStyle s{.name = text(d.name), .face = text(d.primaryFontFile), .height = d.fixedTextHeight,
                       .lastHeight = d.lastHeightUsed, .widthFactor = d.widthFactor > 0 ? d.widthFactor : 1,
                       .italic = d.obliqueAngle != 0};
        trueTypeFace(s);
        m_builder.addTextStyle(std::move(s));
    }
    void addBlock(const DL_BlockData &d) override
    {
        m_builder.beginBlock(text(d.name), {d.bpx, d.bpy}, d.flags);
    }
    void endBlock() override { m_builder.endBlock(); }

    // --- objects
    void addPoint(const DL_PointData &d) override
    {
        Element e = line({{d.x, d.y}});
        e.kind = ElementKind::Point;
        object([&] { m_builder.add(std::move(e)); });
    }
    void addLine(const DL_LineData &d) override
    {
        object([&] { m_builder.add(line({{d.x1, d.y1}, {d.x2, d.y2}})); });
    }
    void addArc(const DL_ArcData &d) override
    {
        object([&] { m_objects.arc({d.cx, d.cy, d.cz}, d.radius, d.angle1 * kDegree, d.angle2 * kDegree); });
    }
    void addCircle(const DL_CircleData &d) override
    {
        object([&] { m_objects.circle({d.cx, d.cy, d.cz}, d.radius); });
    }
    void addEllipse(const DL_EllipseData &d) override
    {
        object([&] {
            m_objects.ellipse({d.cx, d.cy, d.cz}, {d.mx, d.my, d.mz}, d.ratio, d.angle1, d.angle2);
        });
    }
    void addSolid(const DL_SolidData &d) override { addTrace(d); }
    void addTrace(const DL_TraceData &d) override { object([&] { m_objects.corners(Corners(d).at); }); }
    void add3dFace(const DL_3dFaceData &d) override
    {
        object([&] { m_objects.face(Corners(d).at, wholeOf(numberAt(m_object, 70))); });
    }
    void addInsert(const DL_InsertData &d) override
    {
        object([&] {
            m_objects.insert(text(d.name), {d.ipx, d.ipy, d.ipz}, {d.sx, d.sy}, d.angle * kDegree, d.cols,
                             d.rows, {d.colSp, d.rowSp});
        });
    }
    void addText(const DL_TextData &d) override { object([&] { m_objects.text(rowText(d)); }); }
    void addAttribute(const DL_AttributeData &d) override
    {
        if (wholeOf(numberAt(m_object, 70)) & 1) return m_builder.hide(head());
        object([&] { m_objects.text(rowText(d)); });
    }
    void addMTextChunk(const std::string &chunk) override { m_chunks += std::string(m_scan.whole(chunk)); }
    void addMText(const DL_MTextData &d) override
    {
        BlockText t{.insertion = {d.ipx, d.ipy, d.ipz},
                    .height = d.height,
                    .width = d.width,
                    .lineSpacing = d.lineSpacingFactor,
                    .attachment = d.attachmentPoint,
                    .text = std::exchange(m_chunks, {}) + std::string(m_scan.whole(d.text)),
                    .style = d.style};
        // The reader's own angle is wrong for texts that run to the left.
        const double angle = numberAt(m_object, 50) * kDegree;
        t.along = valueAt(m_object, 11) ? Vec2{d.dirx, d.diry} : Vec2{std::cos(angle), std::sin(angle)};
        if (length(t.along) == 0) t.along = {1, 0};
        object([&] { m_objects.text(t); });
    }

    void addPolyline(const DL_PolylineData &d) override
    {
        begin();
        m_polyline = {.flags = d.flags, .m = int(d.m), .n = int(d.n), .light = kindIs("LWPOLYLINE"),
                      .elevation = d.elevation};
        m_polyline.wide = numberAt(m_object, m_polyline.light ? 43 : 40) != 0 || numberAt(m_object, 41) != 0;
        m_polyline.vertices = m_scan.verticesOf(wholeOf(numberAt(m_object, DxfScan::kVertices)));
        finish();
    }
    void addSpline(const DL_SplineData &d) override
    {
        begin();
        m_spline = {.degree = int(d.degree), .closed = (d.flags & 1) != 0};
    }
    void addControlPoint(const DL_ControlPointData &d) override
    {
        m_spline.control.push_back({d.x, d.y});
        m_spline.weights.push_back(d.w);
    }
    void addFitPoint(const DL_FitPointData &d) override { m_spline.fit.push_back({d.x, d.y}); }
    void addKnot(const DL_KnotData &d) override { m_spline.knots.push_back(d.k); }
    void addLeader(const DL_LeaderData &) override
    {
        begin();
        m_leader.clear();
    }
    void addLeaderVertex(const DL_LeaderVertexData &d) override { m_leader.push_back({d.x, d.y}); }
    void endEntity() override { finish(); }

    void addDimAlign(const DL_DimensionData &, const DL_DimAlignedData &) override { dimension(); }
    void addDimLinear(const DL_DimensionData &, const DL_DimLinearData &) override { dimension(); }
    void addDimRadial(const DL_DimensionData &, const DL_DimRadialData &) override { dimension(); }
    void addDimDiametric(const DL_DimensionData &, const DL_DimDiametricData &) override { dimension(); }
    void addDimAngular(const DL_DimensionData &, const DL_DimAngular2LData &) override { dimension(); }
    void addDimAngular3P(const DL_DimensionData &, const DL_DimAngular3PData &) override { dimension(); }
    void addDimOrdinate(const DL_DimensionData &, const DL_DimOrdinateData &) override { dimension(); }

private:
    /// Everything the groups of these say about places comes in the reader's calls.
    static bool coordinatesDelivered(std::string_view kind)
    {
        static constexpr std::string_view kKinds[] = {"LINE",   "POINT",  "LWPOLYLINE", "POLYLINE",
                                                      "SPLINE", "CIRCLE", "ARC",        "ELLIPSE",
                                                      "INSERT", "SOLID",  "TRACE",      "LEADER"};
        return std::ranges::find(kKinds, kind) != std::end(kKinds);
    }
    struct Corners {
        Vec3 at[4];
        explicit Corners(const DL_TraceData &d)
        {
            for (int i = 0; i < 4; ++i) at[i] = {d.x[i], d.y[i], d.z[i]};
        }
    };
    QString text(const std::string &raw) const { return m_builder.text(raw); }
    bool kindIs(const char *kind) const { return !m_object.empty() && m_object.front().value == kind; }

    EntityHead head() const
    {
        return {.layer = attributes.getLayer(),
                .lineType = attributes.getLinetype(),
                .color = attributes.getColor(),
                .trueColor = attributes.getColor24(),
                .lineTypeScale = attributes.getLinetypeScale(),
                .weighted = valueAt(m_object, 370) != nullptr,
                .paper = attributes.isInPaperSpace(),
                .invisible = numberAt(m_object, 60) == 1,
                .kind = m_object.empty() ? std::string() : m_object.front().value};
    }
    EntityHead headOfGroups() const
    {
        const auto name = [&](int code, const char *fallback) {
            const std::string *const v = valueAt(m_object, code);
            return v ? *v : std::string(fallback);
        };
        return {.layer = name(8, "0"),
                .lineType = name(6, "BYLAYER"),
                .color = wholeOf(numberAt(m_object, 62, kByLayer)),
                .trueColor = wholeOf(numberAt(m_object, 420, -1)),
                .lineTypeScale = numberAt(m_object, 48, 1),
                .weighted = valueAt(m_object, 370) != nullptr,
                .paper = numberAt(m_object, 67) == 1,
                .invisible = numberAt(m_object, 60) == 1,
                .kind = m_object.front().value};
    }
    template <class Act> void object(Act act)
    {
        finish();
        if (!m_builder.open(head())) return;
        notePlane();
        act();
        m_builder.close();
    }
    void notePlane()
    {
        const Vec3 n{numberAt(m_object, 210), numberAt(m_object, 220), numberAt(m_object, 230, 1)};
        m_objects.setPlane(n);
        static const std::string kSpatial[] = {"LINE", "POINT", "3DFACE"};
        if (std::ranges::find(kSpatial, m_object.front().value) == std::end(kSpatial)
            && std::abs(n.x) + std::abs(n.y) > 1e-3)
            m_builder.note(Loss::TiltedPlanes);
    }
    /// Objects whose points come in calls of their own.
    void begin()
    {
        finish();
        m_polyline = {}, m_spline = {}, m_leader.clear();
        m_open = m_object.front().value;
        m_shown = m_builder.open(head());
        if (m_shown) notePlane();
    }
    void finish()
    {
        const std::string kind = std::exchange(m_open, {});
        if (kind.empty() || !m_shown) return;
        if (kind == "SPLINE") m_objects.spline(m_spline);
        else if (kind == "LEADER" && m_leader.size() > 1) m_builder.add(line(m_leader));
        else if (kind != "LEADER") m_objects.polyline(m_polyline);
        m_builder.close();
    }
    void dimension()
    {
        const std::string *const block = valueAt(m_object, 2);
        if (block) object([&] { m_builder.insert(text(*block), {}); });
    }
    RowText rowText(const DL_TextData &d) const
    {
        return {.insertion = {d.ipx, d.ipy, d.ipz},
                .alignment = {d.apx, d.apy, d.apz},
                .aligned = valueAt(m_object, 11) != nullptr,
                .height = d.height,
                .widthFactor = d.xScaleFactor,
                .angle = d.angle,
                .generation = d.textGenerationFlags,
                .horizontal = d.hJustification,
                .vertical = d.vJustification,
                .text = d.text,
                .style = d.style};
    }
    /// The family that a program noted beside the font file; the flags are its bold and italic.
    void trueTypeFace(DxfTextStyle &s) const
    {
        bool own = false;
        for (const DxfPair &p : m_object) {
            if (p.code == 1001) own = p.value == "ACAD";
            if (own && p.code == 1000 && !p.value.empty()) s.face = text(p.value);
            if (!own || p.code != 1071) continue;
            const int flags = wholeOf(numberOfText(p.value));
            s.bold = flags & 0x2000000, s.italic = s.italic || (flags & 0x1000000);
        }
    }
    /// Before the reader's call, and instead of it for what it has none.
    void readyByGroups(const std::string &kind)
    {
        const bool known = kind == "HATCH" || kind == "MLINE" || kind == "MULTILEADER" || kind == "ACAD_TABLE"
                           || (kind == "ATTDEF" && (wholeOf(numberAt(m_object, 70)) & 3) == 2);
        if (!known || !m_builder.open(headOfGroups())) return;
        notePlane();
        if (kind == "HATCH") m_objects.hatch(m_object);
        else if (kind == "MLINE") m_objects.addAll(multilineShapes(m_object));
        else if (kind == "MULTILEADER") leaderText();
        else if (kind == "ACAD_TABLE") table();
        else m_objects.text(constantText());
        m_builder.close();
    }
    void leaderText()
    {
        for (DxfPair &p : m_object) p.value = std::string(m_scan.whole(p.value));
        m_objects.leaderText(m_object);
    }
    void table()
    {
        const std::string *const block = valueAt(m_object, 2);
        const Vec2 along{numberAt(m_object, 11, 1), numberAt(m_object, 21)};
        if (block)
            m_objects.insert(text(*block),
                             {numberAt(m_object, 10), numberAt(m_object, 20), numberAt(m_object, 30)}, {1, 1},
                             std::atan2(along.y, along.x), 1, 1, {});
    }
    /// An attribute that is the same in every insert has no text of its own there.
    RowText constantText() const
    {
        const std::string *const value = valueAt(m_object, 1), *const style = valueAt(m_object, 7);
        return {.insertion = {numberAt(m_object, 10), numberAt(m_object, 20), numberAt(m_object, 30)},
                .alignment = {numberAt(m_object, 11), numberAt(m_object, 21), 0},
                .aligned = valueAt(m_object, 11) != nullptr, .height = numberAt(m_object, 40, 2.5),
                .widthFactor = numberAt(m_object, 41, 1), .angle = numberAt(m_object, 50) * kDegree,
                .generation = wholeOf(numberAt(m_object, 71)), .horizontal = wholeOf(numberAt(m_object, 72)),
                .vertical = wholeOf(numberAt(m_object, 74)), .text = value ? *value : std::string(),
                .style = style ? *style : std::string()};
    }

    const DxfScan &m_scan;
    DrawingBuilder &m_builder;
    DxfObjects m_objects;
    DxfPairs m_object, m_next;              // the finished object and the one that is coming in
    std::string m_chunks, m_open;
    bool m_shown = false, m_wholeWanted = true;
    PolylineFacts m_polyline;
    Spline m_spline;
    std::vector<Vec2> m_leader;
};

} // namespace

namespace {

/// The reader takes numbers by the program's C++ locale; a decimal comma would cut all fractions off.
class PlainNumbers {
public:
    PlainNumbers()
    {
        if (m_before == std::locale::classic()) return;
        m_cLocale = std::setlocale(LC_ALL, nullptr);
        std::locale::global(std::locale::classic());
    }
    ~PlainNumbers()
    {
        if (m_cLocale.empty()) return;
        std::locale::global(m_before);
        std::setlocale(LC_ALL, m_cLocale.c_str());
    }
    PlainNumbers(const PlainNumbers &) = delete;
    PlainNumbers &operator=(const PlainNumbers &) = delete;
private:
    std::locale m_before;
    std::string m_cLocale;
};

} // namespace

Drawing readDrawing(const DxfScan &scan, const DxfScan::Progress &progress)
{
    DrawingBuilder builder(scan);
    Receiver receiver(scan, builder);
    const std::string &bytes = scan.clean();
    const std::unique_ptr<FILE, int (*)(FILE *)> file(
        fmemopen(const_cast<char *>(bytes.data()), bytes.size(), "r"), &fclose);
    if (!file) throw DocumentError(txt(Text{30307, u"Nincs elég memória a rajz beolvasásához."}));
    const PlainNumbers plain;
    DL_Dxf reader;
    for (int n = 0; reader.readDxfGroups(file.get(), &receiver); ++n)
        if (n % 20000 == 0 && progress && !progress(double(ftell(file.get())) / double(bytes.size())))
            throw ImportCancelled();
    return builder.finished();
}

} // namespace refhost
