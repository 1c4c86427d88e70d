#pragma once

#include "import/BlockSymbols.h"

#include <functional>

namespace refhost {

/// One element to be, still in drawing units.
struct Placed {
    Element shape;              ///< of a symbol: its place, turn and scale
    Pen pen;                    ///< layer always set, nothing follows an insert any more
    int textStyle = 0;
    int block = -1;             ///< of a symbol
};

/// Goes through the model and puts blocks in their places, as symbols where a character can show them, else
/// as plain elements.
class Placing {
public:
    using Sink = std::function<void(Placed &&)>;
    Placing(const Drawing &, const BlockSymbols &, const std::vector<bool> &hasSymbol, Sink);
    void run(const std::function<void(double done)> &progress);

    int symbols() const { return m_symbols; }
    int exploded() const { return m_exploded; }
    int mirroredTexts() const { return m_mirrored; }
    int endless() const { return m_endless; }
    std::vector<KindTally> tallies() const;     ///< carried, unused and lost are known now

private:
    void place(const DxfEntity &, const Affine &, const Pen &around);
    void insert(const DxfEntity &, const Affine &, const Pen &around);
    void mark(int block, std::vector<bool> &seen);
    const Drawing &m_drawing;
    const BlockSymbols &m_blocks;
    const std::vector<bool> &m_hasSymbol;
    Sink m_sink;
    std::vector<int> m_way;                     // blocks that are being exploded, the outermost first
    std::vector<std::vector<bool>> m_shown;     // of each block, per object
    std::vector<bool> m_outlined;               // blocks whose characters show what strokes can
    int m_symbols = 0, m_exploded = 0, m_mirrored = 0, m_endless = 0;
    qint64 m_placed = 0;
};

} // namespace refhost
