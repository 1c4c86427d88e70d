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

void appendDash(QPainterPath &to, const Polyline &dash, double dot)
{
    QPolygonF line;
    for (const ZolWDoc::PointMm &p : dash) line.append({p.x, p.y});
    const QPointF span = line.back() - line.front();
    if (line.size() == 2 && std::hypot(span.x(), span.y()) < dot) line = {line.front(), line.front() + QPointF(dot, 0)};
    to.addPolygon(line);
}

/// The rule with its lengths in metres, as the lines are.
ZolWDoc::tPenStyleSi inMetres(ZolWDoc::tPenStyleSi rule, double metresPerMm)
{
    for (double *length : {&rule.DistrLength, &rule.MultiDist, &rule.OffsetX, &rule.OffsetY}) *length *= metresPerMm;
    return rule;
}

Marks marksOf(const std::vector<QPolygonF> &lines, const ZolWDoc::tPenStyleSi &rule, const Resources &r)
{
    Marks marks;
    const ZolWDoc::tSid *symbol = r.symbols.find(rule.SidId);
    if (!symbol) return marks;
    const SymbolShape shape = shapeOf(*symbol, r.glyphs.value(symbol->SidId));
    marks.filled = !shape.stroked;
    marks.width = shape.stroked ? shape.width * r.metresPerMm : 0;
    marks.extent = shape.extent * r.metresPerMm;
    marks.path.setFillRule(Qt::WindingFill);
    const ZolWDoc::tPenStyleSi metric = inMetres(rule, r.metresPerMm);
    for (const QPolygonF &line : lines)
        for (const Place &p : placesOf(polylineOf(line), metric))
            marks.path.addPath(placed({p.at.x, p.at.y}, p.angle, r.metresPerMm, r.metresPerMm).map(shape.path));
    return marks;
}

} // namespace

Pattern madePattern(const std::vector<QPolygonF> &lines, const ZolWDoc::tPenStyle &type, const Resources &r)
{
    Pattern made;
    std::vector<double> pattern = type.Pattern;
    for (double &length : pattern) length *= r.metresPerMm;
    for (const QPolygonF &line : lines)
        for (const Polyline &dash : dashesOf(polylineOf(line), pattern))
            if (dash.size() > 1) appendDash(made.dashes, dash, kDotMm * r.metresPerMm);
    for (qint16 nr : type.Slots)
        if (const ZolWDoc::tPenStyleSi *rule = nr ? r.symbolizations.find(nr) : nullptr) {
            Marks marks = marksOf(lines, *rule, r);
            if (!marks.path.isEmpty()) made.marks.push_back(std::move(marks));
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
        const double glyph = 2.0 * double(symbol->Size_mm) + std::abs(double(symbol->MoveXmm)) + std::abs(double(symbol->MoveYmm));
        reach = std::max(reach, glyph + copies + std::hypot(rule->OffsetX, rule->OffsetY));
    }
    return reach * r.metresPerMm;
}

} // namespace refhost
