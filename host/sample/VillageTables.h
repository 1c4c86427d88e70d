#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <span>

/// The tables of the sample drawing. Names are data of the drawing, in its language.
namespace refhost::village {

struct PenRow {
    quint32 screen, print;         ///< 0xRRGGBB; the nearest palette colour is taken
};
struct LayerRow {
    qint16 nr;
    const char16_t *name;
    int group;                     ///< index into kLayerGroups
    qint16 lineType;               ///< number of the line type
    qint16 pen;
    qint16 textType;
    bool visible = true;
};
struct LineTypeRow {
    qint16 nr;
    const char16_t *name;
    float size;                    ///< millimetres
    std::vector<double> pattern;   ///< millimetres
    qint16 slot = 0;               ///< number of a line symbolization, 0 = none
};
struct SymbolizationRow {
    qint16 nr;
    const char16_t *name;
    qint16 symbol;
    ZolWDoc::Placement placement;
    double length = 0;             ///< millimetres, for DistrByLength
    double offsetX = 0, offsetY = 0; ///< millimetres
    double rotation = 0;           ///< degrees
};
struct SymbolRow {
    qint16 nr;
    const char16_t *name, *fullName;
    int group;                     ///< index into kSymbolGroups
    float size;                    ///< millimetres
    qint16 weight;                 ///< hundredths of a millimetre
    qint16 layer;                  ///< number of the layer
    const char *strokes;           ///< see glyphFrom()
};
struct TextTypeRow {
    qint16 nr;
    const char16_t *name;
    int group;                     ///< index into kTextGroups
    const char16_t *face;
    float size;                    ///< millimetres
    qint16 weight;
    bool italic;
    quint8 align;
    qint16 layer;                  ///< number of the layer
};

std::span<const PenRow> pens();                     ///< pens 1, 2, ...
std::span<const char16_t *const> layerGroups();
std::span<const char16_t *const> symbolGroups();
std::span<const char16_t *const> textGroups();
std::span<const LayerRow> layers();
std::span<const LineTypeRow> lineTypes();
std::span<const SymbolizationRow> symbolizations();
std::span<const SymbolRow> symbols();
std::span<const TextTypeRow> textTypes();

/// Strokes in hundredths of the letter height about the insertion point: "x,y x,y ..." separated by ';', and
/// "c x,y r" for a circle.
ZolWDoc::Glyph glyphFrom(const char *strokes);

} // namespace refhost::village
