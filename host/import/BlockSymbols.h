#pragma once

#include "import/Drawing.h"

#include <vector>

namespace refhost {

/// What an object is drawn with. Layer -1, colour kByBlock and line type kLineByBlock follow the insert.
struct Pen {
    int layer = -1;
    int color = kByBlock;
    int lineType = kLineByBlock;
    double lineTypeScale = 1;
    bool operator==(const Pen &) const = default;
};
constexpr Pen kTopPen{-1, 7, 0, 1};             ///< for what follows an insert and stands in none

/// What a block shows as one character.
struct BlockSymbol {
    std::vector<std::vector<Vec2>> strokes; ///< from the base point, in drawing units; of fills the outlines
    std::vector<Pen> pens;                      ///< all that it is drawn with
    bool complete = true;                       ///< strokes show all of it: no texts, no fills
    bool endless = false;                       ///< contains itself
    Vec2 low{1e300, 1e300}, high{-1e300, -1e300};
    double extent() const;                      ///< the longer side of the strokes; 0 without any
};

/// Looks at the blocks of a drawing. Keeps a note of all content that it showed.
class BlockSymbols {
public:
    explicit BlockSymbols(const Drawing &);
    const BlockSymbol &of(int block) const { return m_symbols[size_t(block)]; }
    Pen penOf(const DxfEntity &, const Pen &around) const;

    /// The one pen that shows all of the symbol when `insert` is the pen of its insert. False: there is
    /// none.
    bool onePen(int block, const Pen &insert, Pen &pen) const;
    bool drawnInDashes(const Pen &) const;
    int effectiveColor(const Pen &) const;
    int effectiveLineType(const Pen &) const;
private:
    struct Collecting;
    const Drawing &m_drawing;
    int m_layer0 = -1;
    std::vector<BlockSymbol> m_symbols;
};

} // namespace refhost
