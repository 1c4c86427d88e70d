#pragma once

#include <QMetaType>
#include <QString>

#include <vector>

/// Drawings as data: the host says what to draw, the library draws it. All lengths are millimetres on paper.
namespace ZolWDoc {

struct PointMm {
    double x = 0; ///< to the right
    double y = 0; ///< upwards
    bool operator==(const PointMm &) const = default;
};
/// A stroke of a pen through its points.
struct Stroke {
    std::vector<PointMm> points;
    double width = 0;     ///< millimetres; 0 = as thin as the device can
    quint32 color = 0;    ///< 0xRRGGBB
    bool operator==(const Stroke &) const = default;
};
/// One line of text that stands on its base line.
struct Lettering {
    PointMm position;     ///< left end of the base line
    QString text;
    QString face;
    double height = 0;    ///< letter height
    double rotation = 0;  ///< degrees anticlockwise
    quint32 color = 0;    ///< 0xRRGGBB
    bool operator==(const Lettering &) const = default;
};
struct DrawingObjects {
    std::vector<Stroke> strokes;
    std::vector<Lettering> texts;
    bool operator==(const DrawingObjects &) const = default;
};
/// A straight line drawn with a line type; what samples are made of.
struct LineElement {
    PointMm from, to;
    qint16 iPenStyleId = -1;
};
/// The strokes of one character at letter height 1; the origin is the left end of the base line.
struct Glyph {
    std::vector<std::vector<PointMm>> strokes;
    double advance = 0;   ///< distance to the next character, in letter heights
};

} // namespace ZolWDoc

Q_DECLARE_METATYPE(ZolWDoc::DrawingObjects)
Q_DECLARE_METATYPE(ZolWDoc::LineElement)
