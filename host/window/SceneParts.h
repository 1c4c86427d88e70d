#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <limits>
#include <memory>

namespace refhost {

/// What is drawn first lies below.
enum class Pass { Fills, Lines, Symbols };

/// Everything that is drawn with the same pen on the same layer.
struct BatchKey {
    Pass pass = Pass::Lines;
    int layer = -1;          ///< index into the layers by number; -1 = on no layer
    int pen = 0;             ///< index into the pen colours, 0 = the foreground
    double width = 0;        ///< metres; 0 = as thin as the device can
    int lineType = -1;       ///< identifier of a line type with a pattern or with symbols, -1 = plain
    bool filled = false;     ///< the path is filled, else stroked
    auto operator<=>(const BatchKey &) const = default;
};

/// Some neighbouring dashes, or symbols along lines that are all of one symbol.
struct PatternPart {
    QRectF box;
    QPainterPath path;
    bool isDashes = true;    ///< stroked with the line's own width
    bool filled = false;     ///< of symbols: filled, else stroked
    double width = 0;        ///< of a symbol's strokes, metres
    double extent = 0;       ///< of one symbol, metres
};
/// The dashes and symbols of a chunk's lines; made when they are first large enough to be seen.
using Pattern = std::vector<PatternPart>;

/// One element of a chunk, or a part of a long line.
struct Item {
    QRectF box;
    QPainterPath path;
};
/// The part of a batch that lies in one tile of the drawing. Local metres.
struct Chunk {
    QRectF box;
    QPainterPath path;                       ///< of all items, for thin lines: one call draws them all
    std::vector<Item> items;                 ///< for wide lines, which are dear: only what is seen is drawn
    QList<QPointF> points;                   ///< drawn as crosses of one size on the screen
    double largest = 0;                      ///< extent of the largest element, metres
    std::vector<QPolygonF> lines;            ///< of line types with a pattern or symbols
    mutable std::unique_ptr<Pattern> pattern;///< cache; the geometry does not depend on the magnification
};
struct Batch {
    BatchKey key;
    std::vector<Chunk> chunks;
};

struct TextItem {
    QPointF at;
    double rotation = 0;     ///< degrees anticlockwise
    double height = 0;       ///< of a capital, metres
    int layer = -1;
    int pen = 0;
    qint16 txdId = -1;
    int align = 0;
    int element = -1;        ///< index of the element: the text itself
    double reach = 0;        ///< no letter is farther from `at`, metres; a safe estimate
    mutable QPainterPath path; ///< cache: in place, local metres
    mutable QRectF inked;    ///< cache: the box of the path
};
struct TextTile {
    QRectF box;
    std::vector<TextItem> items;
};

} // namespace refhost
