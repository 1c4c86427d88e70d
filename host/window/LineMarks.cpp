#include "window/LineMarks.h"

#include "document/LinePattern.h"
#include "window/Lettering.h"
#include "window/SceneBuilder.h"

#include <cmath>
#include <numeric>

namespace refhost {
namespace {

constexpr double kDotMm = 0.15;                     // a dash without length still shows

Polyline polylineOf(const QPolygonF &line)
{
    Polyline out;
    out.reserve(size_t(line.size()));
    for (const QPointF &p : line) out.push_back({p.x(), p.y()});
    return out;
}

QPolygonF dashOf(const Polyline &points, double dot)
{
    QPolygonF line;
    for (const ZolWDoc::PointMm &p : points) line.append({p.x, p.y});
    const QPointF span = line.back() - line.front();
    if (line.size() == 2 && std::hypot(span.x(), span.y()) < dot)
        line = {line.front(), line.front() + QPointF(dot, 0)};
    return line;
}

/// Adds to the last part unless it is another kind, another line, or long enough that a view may want to
/// leave it out.
void addTo(Pattern &to, const PatternPart &kind, const QPainterPath &path, bool startsLine)
{
    constexpr int most = 16; // points
    if (startsLine || to.empty() || to.back().path.elementCount() > most) {
        to.push_back(kind);
        to.back().path.setFillRule(Qt::WindingFill);
    }
    to.back().path.addPath(path);
}

void addDashes(Pattern &to, const QPolygonF &line, std::span<const double> pattern, double dot)
{
    bool first = true;
    for (const Polyline &dash : dashesOf(polylineOf(line), pattern)) {
        if (dash.size() < 2) continue;
        QPainterPath path;
        path.addPolygon(dashOf(dash, dot));
        addTo(to, {}, path, std::exchange(first, false));
    }
}

/// The rule with its lengths in metres, as the lines are.
ZolWDoc::tPenStyleSi inMetres(ZolWDoc::tPenStyleSi rule, double metresPerMm)
{
    for (double *length : {&rule.DistrLength, &rule.MultiDist, &rule.OffsetX, &rule.OffsetY})
        *length *= metresPerMm;
    return rule;
}

void addMarks(Pattern &to, const std::vector<QPolygonF> &lines, const ZolWDoc::tPenStyleSi &rule,
              const Resources &r)
{
    const ZolWDoc::tSid *symbol = r.symbols.find(rule.SidId);
    if (!symbol) return;
    const SymbolShape shape = shapeOf(*symbol, r.glyphs.value(symbol->SidId));
    PatternPart kind{.isDashes = false, .filled = !shape.stroked, .extent = shape.extent * r.metresPerMm};
    kind.width = shape.stroked ? shape.width * r.metresPerMm : 0;
    const ZolWDoc::tPenStyleSi metric = inMetres(rule, r.metresPerMm);
    for (const QPolygonF &line : lines) {
        bool first = true;
        for (const Place &p : placesOf(polylineOf(line), metric)) {
            const QTransform at = placed({p.at.x, p.at.y}, p.angle, r.metresPerMm, r.metresPerMm);
            addTo(to, kind, at.map(shape.path), std::exchange(first, false));
        }
    }
}

} // namespace

Pattern madePattern(const std::vector<QPolygonF> &lines, const ZolWDoc::tPenStyle &type, const Resources &r)
{
    Pattern made;
    std::vector<double> pattern = type.Pattern;
    for (double &length : pattern) length *= r.metresPerMm;
    for (const QPolygonF &line : lines)
        if (!pattern.empty()) addDashes(made, line, pattern, kDotMm * r.metresPerMm);
    for (qint16 nr : type.Slots)
        if (const ZolWDoc::tPenStyleSi *rule = nr ? r.symbolizations.find(nr) : nullptr)
            addMarks(made, lines, *rule, r);
    for (PatternPart &part : made) {
        const double reach =
            std::max({part.width, double(type.Size) * r.metresPerMm, 1e-6}); // no empty boxes
        part.box = part.path.controlPointRect().adjusted(-reach, -reach, reach, reach);
    }
    return made;
}

double meanDashMm(const ZolWDoc::tPenStyle &type)
{
    if (type.Pattern.empty()) return 0;
    return std::accumulate(type.Pattern.begin(), type.Pattern.end(), 0.0) / double(type.Pattern.size());
}

double reachOf(const ZolWDoc::tPenStyle &type, const Resources &r)
{
    double reach = 0;
    for (qint16 nr : type.Slots) {
        const ZolWDoc::tPenStyleSi *rule = nr ? r.symbolizations.find(nr) : nullptr;
        const ZolWDoc::tSid *symbol = rule ? r.symbols.find(rule->SidId) : nullptr;
        if (!symbol) continue;
        const double copies = std::max<double>(rule->Multi - 1, 0) * std::abs(rule->MultiDist);
        const double glyph = 2.0 * double(symbol->Size_mm) + std::abs(double(symbol->MoveXmm)) +
                             std::abs(double(symbol->MoveYmm));
        reach = std::max(reach, glyph + copies + std::hypot(rule->OffsetX, rule->OffsetY));
    }
    return reach * r.metresPerMm;
}

} // namespace refhost
