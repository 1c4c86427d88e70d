#include "document/LateBound.h"

#include "facade/services/Services.h"

#include <cmath>
#include <numbers>

using namespace ZolWDoc;

namespace refhost {
namespace {

constexpr int kHorizontal = 6, kRight = 2, kCentre = 6;     // text-align flags
constexpr int kVertical = 24, kBottom = 8, kTop = 0;
constexpr double kDescent = 0.25;           // of a letter's height, below the base line
constexpr double kUsualAdvance = 0.6;       // of a letter's height; Qt Core knows no font metrics

PointMm turned(PointMm p, double degrees)
{
    const double a = degrees * std::numbers::pi / 180, c = std::cos(a), s = std::sin(a);
    return {p.x * c - p.y * s, p.x * s + p.y * c};
}
PointMm operator+(PointMm a, PointMm b) { return {a.x + b.x, a.y + b.y}; }

double factor(float f) { return f == 0 ? 1 : double(f); }

/// Left end of the base line relative to the place, before turning.
PointMm originOf(const tSid &symbol, double advance)
{
    const double width = advance * symbol.Size_mm * factor(symbol.XwFact);
    const double height = symbol.Size_mm * factor(symbol.YwFact);
    const int across = symbol.Align & kHorizontal, up = symbol.Align & kVertical;
    return {symbol.MoveXmm - (across == kCentre ? width / 2 : across == kRight ? width : 0),
            symbol.MoveYmm + (up == kTop ? -height : up == kBottom ? height * kDescent : 0)};
}

} // namespace

void appendSymbol(DrawingObjects &objects, const tSid &symbol, const Glyph *glyph, const Place &place)
{
    const PointMm origin = originOf(symbol, glyph ? glyph->advance : kUsualAdvance);
    if (!glyph) {
        objects.texts.push_back({place.at + turned(origin, place.angle),
                                 QString(QChar(char16_t(symbol.Code))), symbol.Facename, symbol.Size_mm,
                                 place.angle, 0});
        return;
    }
    const double x = symbol.Size_mm * factor(symbol.XwFact), y = symbol.Size_mm * factor(symbol.YwFact);
    for (const auto &points : glyph->strokes) {
        Stroke stroke{{}, symbol.Weight / 100.0, 0};
        for (const PointMm &p : points)
            stroke.points.push_back(place.at + turned(origin + PointMm{p.x * x, p.y * y}, place.angle));
        objects.strokes.push_back(std::move(stroke));
    }
}

bool LateBound::bGetPenStyle(int iPenStyleId, tPenStyle *style)
{
    const bool fits = iPenStyleId == qint16(iPenStyleId);
    const auto found = fits ? m_tables.lineTypes.find(qint16(iPenStyleId)) : std::nullopt;
    if (style) *style = found.value_or(tPenStyle());
    return found.has_value();
}

DrawingObjects LateBound::ElRec2ObjLst(const LineElement &line)
{
    DrawingObjects objects;
    const auto type = m_tables.lineTypes.find(line.iPenStyleId);
    if (!type) return objects;
    const Polyline points{line.from, line.to};
    if (type->PenDown)
        for (Polyline &dash : dashesOf(points, type->Pattern))
            objects.strokes.push_back({std::move(dash), type->Size, 0});
    for (qint16 nr : type->Slots)
        if (nr != 0) appendSymbolization(objects, points, nr);
    return objects;
}

void LateBound::appendSymbolization(DrawingObjects &objects, const Polyline &line, qint16 nr) const
{
    const auto rule = m_tables.symbolizations.find(nr);
    const auto symbol = rule ? m_tables.symbols.find(rule->SidId) : std::nullopt;
    if (!symbol) return;
    const VectorFont *const font = fontOf(*symbol);
    if (symbol->Type == 1 && !font) return;
    const Glyph glyph = font ? font->glyph(symbol->Code) : Glyph();
    for (const Place &place : placesOf(line, *rule))
        appendSymbol(objects, *symbol, font ? &glyph : nullptr, place);
}

const VectorFont *LateBound::fontOf(const tSid &symbol) const
{
    if (symbol.Type != 1) return nullptr;
    if (const VectorFont *own = m_ownFont.find(symbol.Facename)) return own;
    VectorFontProvider *const fonts = QV_DOC_CONTROLS::vectorFonts(m_doc);
    return fonts ? fonts->find(symbol.Facename) : nullptr;
}

} // namespace refhost
