#include "import/Placing.h"

#include "document/SqliteDoc.h"
#include "import/Curves.h"

#include "facade/services/Text.h"

#include <algorithm>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr size_t kDeepest = 32;
constexpr qint64 kMostElements = 5'000'000;

Element symbolAt(const Affine &map)
{
    Element e;
    e.kind = ElementKind::Symbol;
    e.vertices = {vertexAt({})};
    return mapped(e, map);
}

} // namespace

Placing::Placing(const Drawing &drawing, const BlockSymbols &blocks, const std::vector<bool> &hasSymbol,
                 Sink sink)
    : m_drawing(drawing), m_blocks(blocks), m_hasSymbol(hasSymbol), m_sink(std::move(sink))
{
    for (const DxfBlock &b : drawing.blocks) m_shown.emplace_back(b.content.size(), false);
}

void Placing::run(const std::function<void(double)> &progress)
{
    for (size_t i = 0; i < m_drawing.model.size(); ++i) {
        if (i % 2000 == 0) progress(double(i) / double(m_drawing.model.size()));
        place(m_drawing.model[i], {}, kTopPen);
    }
    // The table of symbols shows named blocks even where they stand nowhere.
    std::vector<bool> seen(m_drawing.blocks.size(), false);
    for (size_t b = 0; b < m_hasSymbol.size(); ++b)
        if (m_hasSymbol[b]) mark(int(b), seen);
}

void Placing::place(const DxfEntity &e, const Affine &map, const Pen &around)
{
    // Blocks without content count too: there are files in which each holds the next one many times.
    if (++m_placed > kMostElements)
        throw DocumentError(join(Text{30308, u"A rajz blokkjai több mint "}, QString::number(kMostElements),
                                 Text{30309, u" rajzelemet adnának; ennyit nem lehet beolvasni."}));
    if (e.block >= 0) return insert(e, map, around);
    if (e.shape.kind == ElementKind::Text && map.determinant() < 0) ++m_mirrored;
    m_sink({mapped(e.shape, map), m_blocks.penOf(e, around), e.textStyle, -1});
}

void Placing::insert(const DxfEntity &e, const Affine &map, const Pen &around)
{
    const size_t block = size_t(e.block);
    const Affine whole = map * e.place;
    const Pen pen = m_blocks.penOf(e, around);
    Pen one;
    if (m_hasSymbol[block] && whole.similar() && m_blocks.onePen(e.block, pen, one)) {
        ++m_symbols;
        m_sink({symbolAt(whole), one, 0, e.block});
        return;
    }
    if (m_way.size() > kDeepest || std::ranges::find(m_way, e.block) != m_way.end()) {
        ++m_endless;
        return;
    }
    ++m_exploded;
    m_way.push_back(e.block);
    const DxfBlock &b = m_drawing.blocks[block];
    for (size_t i = 0; i < b.content.size(); ++i) {
        m_shown[block][i] = true;
        place(b.content[i], whole * shifted(Vec2{} - b.base), pen);
    }
    m_way.pop_back();
}

void Placing::mark(int block, std::vector<bool> &seen)
{
    if (seen[size_t(block)]) return;
    seen[size_t(block)] = true;
    const auto &content = m_drawing.blocks[size_t(block)].content;
    for (size_t i = 0; i < content.size(); ++i) {
        if (content[i].shape.kind != ElementKind::Text) m_shown[size_t(block)][i] = true;
        if (content[i].block >= 0) mark(content[i].block, seen);
    }
}

std::vector<KindTally> Placing::tallies() const
{
    std::vector<KindTally> all = m_drawing.kinds;
    const auto count = [&](const DxfEntity &e, bool shown) {
        if (e.part) return;
        KindTally &t = all[size_t(e.kind)];
        const bool nothing = e.block >= 0 && m_drawing.blocks[size_t(e.block)].content.empty();
        ++(nothing ? t.empty : shown ? t.carried : t.unused);
    };
    for (const DxfEntity &e : m_drawing.model) count(e, true);
    for (size_t b = 0; b < m_shown.size(); ++b)
        for (size_t i = 0; i < m_shown[b].size(); ++i) count(m_drawing.blocks[b].content[i], m_shown[b][i]);
    for (KindTally &t : all) t.lost = t.total - t.carried - t.paper - t.invisible - t.empty - t.unused;
    return all;
}

} // namespace refhost
