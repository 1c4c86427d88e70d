#pragma once

#include <QString>

#include <vector>

/// The reference host: a small drawing program around the library.
namespace refhost {

struct Vertex {
    double x = 0;         ///< easting, metres
    double y = 0;         ///< northing, metres
    double bulge = 0; ///< of the segment that starts here: tangent of a quarter of its angle; 0 = straight, >
                      ///< 0 = left turn
    bool operator==(const Vertex &) const = default;
};

/// What the drawing consists of. The number is stored in files.
enum class ElementKind : quint8 {
    Point,    ///< vertices[0]
    Line,     ///< a polyline, an arc (one bulged segment) or a circle (two, closed)
    Ellipse,  ///< vertices[0] centre, [1] end of the long axis relative to it; ratio, from, to
    Fill,     ///< a filled polygon; rings stand one after the other, each beginning at an index of `rings`
    Text,     ///< vertices[0] the base point; text, size, rotation
    Symbol,   ///< vertices[0] the insertion point; scale, rotation
};

/// One element of the drawing. Attributes of -1 are the layer's; a layer whose ElByLayer or TxByLayer is on
/// overrides them all: lines take line type and pen colour, texts and symbols take text type and pen colour
/// from it.
struct Element {
    qint64 id = 0;                ///< assigned by the document; 0 = not stored yet
    ElementKind kind = ElementKind::Line;
    qint16 layId = -1;            ///< -1 = on no layer
    qint16 penStyleId = -1;       ///< line type, -1 = the layer's
    qint16 penColorId = -1;       ///< pen 1..255, -1 = the layer's
    qint16 txdId = -1;            ///< text type of a text, -1 = the layer's
    qint16 sidId = -1;            ///< symbol of a symbol element
    std::vector<Vertex> vertices;
    std::vector<int> rings;       ///< of a fill: where each ring begins; empty = one ring
    bool closed = false;          ///< of a line
    double ratio = 1;             ///< of an ellipse: short to long axis
    double from = 0, to = 0;      ///< of an ellipse: parameters, radians; equal = the whole ellipse
    double rotation = 0;          ///< of texts and symbols: degrees anticlockwise
    double size = 0;              ///< of a text: letter height in metres, 0 = by its text type
    double scale = 1; ///< of a symbol: factor on its own size; negative = mirrored across its vertical axis
    int align = 0; ///< of a text: text-align flags as in tTxd (0 left, 6 centre, 2 right; 0 top, 8 bottom, 24
                   ///< baseline)
    QString text;                 ///< of a text; rows are separated by '\n'
    bool operator==(const Element &) const = default;
};

} // namespace refhost
