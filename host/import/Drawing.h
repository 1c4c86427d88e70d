#pragma once

#include "document/Elements.h"
#include "import/Affine.h"

#include <QHash>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// What a drawing file says, before it becomes a document: plain values in the file's own units and order.
namespace refhost {

constexpr int kByBlock = 0, kByLayer = 256;         ///< colours that are not colours
constexpr int kLineByLayer = -1, kLineByBlock = -2; ///< line types that are none

struct DxfLayer {
    QString name;
    int color = 7;              ///< colour index 1..255
    int lineType = 0;           ///< index in Drawing::lineTypes
    bool visible = true;        ///< neither off nor frozen
};
struct DxfLineType {
    QString name;
    std::vector<double> dashes; ///< as in the file: > 0 dash, < 0 gap, 0 dot; drawing units at scale 1
    bool complex = false;       ///< has texts or shapes in it
};
struct DxfTextStyle {
    QString name;
    QString face;
    double height = 0;          ///< fixed letter height, 0 = as each text has it
    double lastHeight = 0;
    double widthFactor = 1;
    bool italic = false, bold = false, underline = false;
    bool operator==(const DxfTextStyle &) const = default;
};

/// One object, or a part of one.
struct DxfEntity {
    Element shape;              ///< identifiers unset; an insert is a symbol without one
    int layer = 0;              ///< index in Drawing::layers
    int color = kByLayer;
    int lineType = kLineByLayer;
    double lineTypeScale = 1;   ///< on that of the drawing
    int textStyle = 0;          ///< of texts, index in Drawing::textStyles
    int block = -1;             ///< of inserts, index in Drawing::blocks
    Affine place;               ///< of inserts: from the block to its owner
    int kind = 0;               ///< index in Drawing::kinds
    bool part = false;          ///< a further part of the object before; not counted again
};
struct DxfBlock {
    QString name;
    Vec2 base;
    bool anonymous = false;     ///< made by a program, for one place
    std::vector<DxfEntity> content;
};

/// What became of the objects of one kind.
struct KindTally {
    QString kind;               ///< as the file names it, e.g. "LWPOLYLINE"
    int total = 0;              ///< in the file
    int carried = 0;            ///< shown by elements or symbols
    int paper = 0;              ///< in paper space
    int invisible = 0;
    int empty = 0;              ///< nothing to draw, e.g. a blank text
    int unused = 0;             ///< in blocks that stand nowhere
    int lost = 0;               ///< there is no counterpart
    int weighted = 0;           ///< have a line weight of their own, which elements cannot have
    bool operator==(const KindTally &) const = default;
};

/// Where the document says it less exactly than the file; the number is the index of a text.
enum class Loss {
    TrueColors, LineTypeTexts, LineTypePhases, Splines, HatchPatterns, Widths, MixedTexts, MirroredTexts,
    TiltedPlanes, ShapeFonts, Depths, Gradients, LayerWeights, Count
};

struct Drawing {
    QString path;
    QString version;            ///< e.g. "AC1021"
    double lineTypeScale = 1;
    int charSet = 0;            ///< character set number of the file's code page
    std::vector<DxfLayer> layers;
    std::vector<DxfLineType> lineTypes;     ///< [0] is continuous
    std::vector<DxfTextStyle> textStyles;  ///< those of the file first, then the variants that its texts need
    int fileStyles = 0;                     ///< how many of them are the file's
    std::vector<DxfBlock> blocks;
    std::vector<DxfEntity> model;
    std::vector<KindTally> kinds; ///< total, paper, invisible, empty, weighted; the rest comes when written
    int losses[int(Loss::Count)] = {};
    Vec2 low, high;                         ///< extent of the model; low > high when empty
};

} // namespace refhost
