#include "import/BlockSymbols.h"

#include "import/Curves.h"

#include <algorithm>

namespace refhost {
namespace {

constexpr size_t kMostPoints = 100'000;         // of one character
constexpr size_t kMostObjects = 1'000'000;      // looked at for one character
constexpr size_t kMostPens = 8;                 // more are not looked through for each insert
constexpr size_t kDeepest = 32;                 // blocks within blocks

} // namespace

double BlockSymbol::extent() const
{
    return strokes.empty() ? 0 : std::max(high.x - low.x, high.y - low.y);
}

/// Walks through one block and the blocks in it.
struct BlockSymbols::Collecting {
    const BlockSymbols &all;
    const Drawing &drawing;
    BlockSymbol &symbol;
    std::vector<int> way;
    size_t points = 0, objects = 0;

    void walk(int block, const Affine &map, const Pen &around)
    {
        if (way.size() > kDeepest || std::ranges::find(way, block) != way.end()) {
            symbol.endless = true, symbol.complete = false;
            return;
        }
        way.push_back(block);
        const DxfBlock &b = drawing.blocks[size_t(block)];
        const Affine toBase = map * shifted(Vec2{} - b.base);
        for (const DxfEntity &e : b.content) {
            if (points > kMostPoints || ++objects > kMostObjects) symbol.complete = false;
            else if (e.block >= 0) walk(e.block, toBase * e.place, all.penOf(e, around));
            else take(e, toBase, around);
        }
        way.pop_back();
    }
    void take(const DxfEntity &e, const Affine &map, const Pen &around)
    {
        const Pen pen = all.penOf(e, around);
        if (symbol.pens.size() < kMostPens && std::ranges::find(symbol.pens, pen) == symbol.pens.end())
            symbol.pens.push_back(pen);
        if (symbol.pens.size() == kMostPens || e.shape.kind == ElementKind::Text
            || e.shape.kind == ElementKind::Fill)
            symbol.complete = false;
        for (auto &stroke : strokesOf(mapped(e.shape, map))) {
            for (Vec2 p : stroke) {
                symbol.low = {std::min(symbol.low.x, p.x), std::min(symbol.low.y, p.y)};
                symbol.high = {std::max(symbol.high.x, p.x), std::max(symbol.high.y, p.y)};
            }
            points += stroke.size();
            if (!stroke.empty()) symbol.strokes.push_back(std::move(stroke));
        }
    }
};

BlockSymbols::BlockSymbols(const Drawing &drawing) : m_drawing(drawing), m_symbols(drawing.blocks.size())
{
    for (size_t i = 0; i < drawing.layers.size(); ++i)
        if (drawing.layers[i].name == u"0") m_layer0 = int(i);
    for (size_t i = 0; i < m_symbols.size(); ++i)
        if (!drawing.blocks[i].anonymous)
            Collecting{*this, drawing, m_symbols[i], {}}.walk(int(i), {}, Pen{});
}

Pen BlockSymbols::penOf(const DxfEntity &e, const Pen &around) const
{
    Pen pen{e.layer == m_layer0 && around != kTopPen ? around.layer : e.layer, e.color, e.lineType,
            e.lineTypeScale};
    // What follows its insert follows the insert's layer, even when it stands on another one itself.
    const bool otherLayer = pen.layer != around.layer && around.layer >= 0;
    if (pen.color == kByBlock)
        pen.color = otherLayer && around.color == kByLayer ? m_drawing.layers[size_t(around.layer)].color
                                                           : around.color;
    if (pen.lineType == kLineByBlock) {
        pen.lineType = otherLayer && around.lineType == kLineByLayer
                           ? m_drawing.layers[size_t(around.layer)].lineType
                           : around.lineType;
        pen.lineTypeScale *= around.lineTypeScale;
    }
    return pen;
}

int BlockSymbols::effectiveColor(const Pen &p) const
{
    return p.color == kByLayer && p.layer >= 0 ? m_drawing.layers[size_t(p.layer)].color : p.color;
}

int BlockSymbols::effectiveLineType(const Pen &p) const
{
    const int type = p.lineType == kLineByLayer && p.layer >= 0 ? m_drawing.layers[size_t(p.layer)].lineType
                                                                : p.lineType;
    return std::max(type, 0);
}

bool BlockSymbols::drawnInDashes(const Pen &p) const
{
    return !m_drawing.lineTypes[size_t(effectiveLineType(p))].dashes.empty();
}

bool BlockSymbols::onePen(int block, const Pen &insert, Pen &pen) const
{
    const BlockSymbol &symbol = of(block);
    if (!symbol.complete || symbol.strokes.empty()) return false;
    bool first = true;
    for (const Pen &p : symbol.pens) {
        Pen actual = p;
        if (actual.layer < 0) actual.layer = insert.layer;
        if (actual.color == kByBlock) actual.color = insert.color;
        if (actual.lineType == kLineByBlock) actual.lineType = insert.lineType;
        if (drawnInDashes(actual)) return false;
        if (first) pen = actual;
        if (actual.layer != pen.layer || effectiveColor(actual) != effectiveColor(pen)) return false;
        first = false;
    }
    return true;
}

} // namespace refhost
