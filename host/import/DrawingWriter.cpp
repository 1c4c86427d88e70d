#include "import/DrawingWriter.h"

#include "import/Curves.h"

#include <QFileInfo>

#include <algorithm>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace refhost {
namespace {

constexpr size_t kAtOnce = 4000;
constexpr float kThickness = 0.18f; // of line types, millimetres; files give weights to objects, not to types
constexpr int kLastCode = 0xFFFF;

void check(const DxfImport::Progress &progress, double done)
{
    if (progress && !progress(done)) throw ImportCancelled();
}

} // namespace

DrawingWriter::DrawingWriter(const Drawing &drawing, SqliteDoc &doc, const ImportOptions &options)
    : m_drawing(drawing), m_doc(doc), m_options(options), m_paper(options), m_blocks(drawing),
      m_uses(drawing.layers.size())
{
    std::ranges::copy(drawing.losses, m_losses);
}

void DrawingWriter::run(const DxfImport::Progress &progress)
{
    writeLineTypes();
    writeTextTypes();
    writeLayers();
    writeSymbols();
    check(progress, 0.1);
    Placing placing(m_drawing, m_blocks, m_hasSymbol, [this](Placed &&p) { take(std::move(p)); });
    placing.run([&](double done) { check(progress, 0.1 + 0.85 * done); });
    flush();
    finishLayers();
    m_doc.setInfo({.scale = m_options.scale, .importedFrom = QFileInfo(m_drawing.path).fileName()});
    finishReport(placing);
    check(progress, 1);
}

void DrawingWriter::writeLineTypes()
{
    std::vector<tPenStyle> rows;
    for (const DxfLineType &type : m_drawing.lineTypes) {
        bool shifted = false;
        tPenStyle row{.PenStyleNr = qint16(rows.size() + 1),
                      .Name = m_lineTypeNames.unique(type.name),
                      .Size = kThickness};
        row.Pattern = patternOf(type.dashes, m_paper.mmPerUnit * m_drawing.lineTypeScale, shifted);
        if (shifted) ++m_losses[int(Loss::LineTypePhases)];
        rows.push_back(std::move(row));
    }
    // The line type that every new document has becomes the file's continuous one.
    rows.front().iPenStyleId = m_doc.lineTypes().readAll().front().iPenStyleId;
    m_doc.lineTypes().update(rows.front());
    m_doc.lineTypes().addAll(std::span(rows).subspan(1), m_lineTypes);
    m_lineTypes.insert(m_lineTypes.begin(), rows.front().iPenStyleId);
}

void DrawingWriter::writeTextTypes()
{
    tTxd first = m_doc.textTypes().readAll().front();
    std::vector<tTxd> rows;
    FreeNames names(255);
    for (const DxfTextStyle &style : m_drawing.textStyles) {
        bool replaced = false;
        rows.push_back(textTypeOf(style, m_paper, m_drawing.charSet, replaced));
        rows.back().Name = names.unique(style.name);
        rows.back().GroupId = first.GroupId;
        rows.back().GroupName = first.GroupName;
        rows.back().LayId = first.LayId;
        if (replaced) ++m_losses[int(Loss::ShapeFonts)];
    }
    rows.front().TxdId = first.TxdId;
    m_doc.textTypes().update(rows.front());
    m_doc.textTypes().addAll(std::span(rows).subspan(1), m_textTypes);
    m_textTypes.insert(m_textTypes.begin(), rows.front().TxdId);
}

void DrawingWriter::writeLayers()
{
    std::vector<tLay> rows;
    FreeNames names(255);
    for (const DxfLayer &layer : m_drawing.layers) {
        const qint16 pen = qint16(layer.color);
        rows.push_back({.gNr = qint16(rows.size() + 1),
                        .Name = names.unique(layer.name),
                        .Visible = layer.visible,
                        .PenStyleId = m_lineTypes[size_t(std::max(layer.lineType, 0))],
                        .ScrColor = pen,
                        .PrnColor = pen,
                        .PenColorId = pen,
                        .TxdId = m_textTypes.front()});
    }
    rows.front().LayId = m_doc.layers().readAll().front().LayId;
    m_doc.layers().update(rows.front());
    m_doc.layers().addAll(std::span(rows).subspan(1), m_layers);
    m_layers.insert(m_layers.begin(), rows.front().LayId);
}

void DrawingWriter::writeSymbols()
{
    m_symbols.assign(m_drawing.blocks.size(), -1);
    m_hasSymbol.assign(m_drawing.blocks.size(), false);
    FreeNames names(50);
    for (const tSid &s : m_doc.symbols().readAll()) names.take(s.ShortName);
    const QString group = QFileInfo(m_drawing.path).completeBaseName();
    for (size_t b = 0; b < m_drawing.blocks.size(); ++b)
        m_hasSymbol[b] = !m_drawing.blocks[b].anonymous && writeSymbol(int(b), group, names);
}

bool DrawingWriter::writeSymbol(int block, const QString &group, FreeNames &names)
{
    const BlockSymbol &symbol = m_blocks.of(block);
    const int code = 33 + m_report.symbols;
    if (symbol.strokes.empty() || code > kLastCode) return false;
    const double extent = symbol.extent() * m_paper.mmPerUnit;
    tSid row;
    row.Size_mm = extent > 1e-6 && extent < 1e30 ? float(extent) : 1;
    const double unitsPerLetter = double(row.Size_mm) / m_paper.mmPerUnit;
    Glyph glyph;
    for (const auto &stroke : symbol.strokes) {
        glyph.strokes.emplace_back();
        for (Vec2 p : stroke) glyph.strokes.back().push_back({p.x / unitsPerLetter, p.y / unitsPerLetter});
    }
    glyph.advance = std::max(symbol.high.x, symbol.high.x - symbol.low.x) / unitsPerLetter;
    const auto groups = m_doc.symbols().groups().readAll();
    const auto known = std::ranges::find(groups, group, &tGroup::GroupName);
    row.GroupId = known != groups.end() ? known->GroupId : m_doc.symbols().groups().add(group);
    row.GroupName = group;
    row.Code = code;
    row.FullName = m_drawing.blocks[size_t(block)].name;
    row.ShortName = names.unique(row.FullName);
    row.Align = 24;
    row.YwFact = row.XwFact = 1;
    row.Facename = m_doc.ownFontName();
    row.Weight = qint16(std::lround(kThickness * 100));
    row.CharSet = m_drawing.charSet;
    row.DspZoom = quint8(std::clamp(int(30 / row.Size_mm), 1, 100));
    row.LayId = m_layers.front();
    row.Type = 1;
    m_doc.addGlyph(code, row.ShortName, glyph);
    m_symbols[size_t(block)] = m_doc.symbols().add(row);
    ++m_report.symbols;
    return true;
}

qint16 DrawingWriter::lineTypeId(int type, double scale)
{
    const DxfLineType &base = m_drawing.lineTypes[size_t(type)];
    if (scale == 1 || base.dashes.empty()) return m_lineTypes[size_t(type)];
    const auto [at, fresh] = m_scaledTypes.try_emplace({type, scale}, qint16(-1));
    if (!fresh) return at->second;
    bool shifted = false;
    tPenStyle row{
        .PenStyleNr = qint16(m_drawing.lineTypes.size() + m_scaledTypes.size()),
        .Name = m_lineTypeNames.unique(base.name + QStringLiteral(" \u00D7") + QString::number(scale)),
        .Size = kThickness};
    row.Pattern = patternOf(base.dashes, m_paper.mmPerUnit * m_drawing.lineTypeScale * scale, shifted);
    return at->second = m_doc.lineTypes().add(row);
}

/// -1 where the layer's own line type does.
qint16 DrawingWriter::lineTypeOf(const Pen &pen)
{
    const int type = m_blocks.effectiveLineType(pen);
    const bool own = pen.lineType != kLineByLayer
                     || (pen.lineTypeScale != 1 && !m_drawing.lineTypes[size_t(type)].dashes.empty());
    return own ? lineTypeId(type, pen.lineTypeScale) : qint16(-1);
}

Element DrawingWriter::elementOf(Placed &&p)
{
    Element e = std::move(p.shape);
    const bool mark = e.kind == ElementKind::Text || e.kind == ElementKind::Symbol;
    e.layId = m_layers[size_t(p.pen.layer)];
    e.penColorId = p.pen.color == kByLayer ? qint16(-1) : qint16(std::clamp(p.pen.color, 1, 255));
    e.penStyleId = mark ? qint16(-1) : lineTypeOf(p.pen);
    if (e.kind == ElementKind::Text) e.txdId = m_textTypes[size_t(p.textStyle)];
    if (e.kind == ElementKind::Symbol) e.sidId = m_symbols[size_t(p.block)];
    for (size_t i = 0; i < e.vertices.size(); ++i) {
        e.vertices[i].x *= m_options.unitInMetres;
        e.vertices[i].y *= m_options.unitInMetres;
    }
    e.size *= m_options.unitInMetres;
    return e;
}

void DrawingWriter::noteUse(const Placed &p, const Element &e)
{
    LayerUse &use = m_uses[size_t(p.pen.layer)];
    const bool mark = e.kind == ElementKind::Text || e.kind == ElementKind::Symbol;
    if (mark) use.textsFollow = use.textsFollow && e.penColorId == -1;
    else use.linesFollow = use.linesFollow && e.penColorId == -1 && e.penStyleId == -1;
    if (e.kind == ElementKind::Text) ++use.textTypes[p.textStyle];
    ++m_report.elements[int(e.kind)];
}

void DrawingWriter::take(Placed &&p)
{
    Placed facts{{}, p.pen, p.textStyle, p.block};
    m_waiting.push_back(elementOf(std::move(p)));
    noteUse(facts, m_waiting.back());
    if (m_waiting.size() >= kAtOnce) flush();
}

void DrawingWriter::flush()
{
    m_doc.addElements(m_waiting);
    m_waiting.clear();
}

/// A layer's switches are on only where every element of it follows the layer anyway.
void DrawingWriter::finishLayers()
{
    std::vector<tLay> rows = m_doc.layers().readAll();
    for (size_t i = 0; i < m_uses.size(); ++i) {
        const auto row = std::ranges::find(rows, m_layers[i], &tLay::LayId);
        const LayerUse &use = m_uses[i];
        const auto most = std::ranges::max_element(use.textTypes, {}, &std::pair<const int, int>::second);
        if (most != use.textTypes.end()) row->TxdId = m_textTypes[size_t(most->first)];
        row->ElByLayer = use.linesFollow;
        row->TxByLayer = use.textsFollow && use.textTypes.size() <= 1;
    }
    int written = 0;
    m_doc.layers().updateAll(rows, written);
}

void DrawingWriter::finishReport(const Placing &placing)
{
    m_report.layers = int(m_drawing.layers.size());
    m_report.lineTypes = int(m_drawing.lineTypes.size() + m_scaledTypes.size());
    m_report.textTypes = int(m_drawing.textStyles.size());
    m_report.inserts = placing.symbols();
    m_report.explodedInserts = placing.exploded();
    m_report.endlessInserts = placing.endless();
    m_report.kinds = placing.tallies();
    m_losses[int(Loss::MirroredTexts)] += placing.mirroredTexts();
    nameRows(m_report, m_losses);
}

} // namespace refhost
