#pragma once

#include <QMetaType>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

/// The host's side: what the library and the drawing program exchange. Plain values, copied freely.
namespace ZolWDoc {

/// The tables of a document; the first six are also the modes of the selection dialog and the pages of the
/// setup dialog.
enum class TableKind { Layers, TextTypes, LineTypes, Symbols, PenColors, LineSymbolizations, Points };

/// One layer. Member order is the field order of ".z3l" files.
struct tLay {
    qint16 LayId = -1;       ///< assigned by the host; -1 = not stored yet
    qint16 gNr = 0;          ///< the number the user sees; unique
    QString Name;            ///< unique
    bool Visible = true;     ///< whether the layer is drawn
    qint16 PenStyleId = 0;   ///< line type, tPenStyle::iPenStyleId
    qint16 ScrColor = 0;     ///< screen colour: a pen, 0..255 (0 = none)
    qint16 PrnColor = 0;     ///< print colour: a pen, 0..255 (0 = none)
    qint16 PenColorId = 0;   ///< pen colour, 0..255 (0 = none)
    qint16 TxdId = 0;        ///< text type, tTxd::TxdId
    bool ElByLayer = false;  ///< lines take their attributes from the layer
    bool TxByLayer = false;  ///< texts and symbols take their attributes from the layer
    bool operator==(const tLay &) const = default;
};
using tLayArr = std::vector<tLay>; ///< a selection of layers

/// A named group of a table's records.
struct tGroup {
    qint16 GroupId = -1; ///< assigned by the host; -1 = not stored yet
    QString GroupName;   ///< unique within its table
    bool operator==(const tGroup &) const = default;
};
/// One layer belongs to one group; a layer may belong to several.
struct tLayMember {
    qint16 GroupId = -1;
    qint16 LayId = -1;
    bool operator==(const tLayMember &) const = default;
};

/// One point symbol: a glyph of a font with its size and insertion point. Member order is the published field
/// order.
struct tSid {
    qint16 SidId = -1;       ///< number the user sees and identifier in one; unique
    QString GroupName;       ///< name of GroupId's group
    qint16 GroupId = -1;
    qint32 Code = 0;         ///< character code of the glyph, 0..65535
    QString ShortName;       ///< unique
    QString FullName;
    quint8 Align = 0;        ///< text-align flags: 0 left, 6 centre, 2 right; + 0 top, 8 bottom, 24 baseline
    float Size_mm = 0;       ///< letter height, millimetres
    float YwFact = 0;        ///< vertical stretch, 1 = none
    float XwFact = 0;        ///< horizontal stretch, 1 = none; always 1 for vector fonts
    QString Facename;        ///< TrueType face or vector font
    qint16 Weight = 0;       ///< line thickness, hundredths of a millimetre; vector fonts only
    bool Italic = false;
    bool Underline = false;
    bool StrikeThrough = false;
    qint32 CharSet = 0;      ///< character set number of the face, 238 = Central European
    quint8 PitchAndFamily = 0;
    double ProtXmm = 0;      ///< insertion-point marker: radius or width, millimetres
    double ProtYmm = 0;      ///< insertion-point marker: height in millimetres, or the ratio of an ellipse
    quint8 ProtType = 0;     ///< 0 none, 1 circle, 2 rectangle, 3 ellipse
    float MoveXmm = 0;       ///< shift of the glyph, millimetres to the right
    float MoveYmm = 0;       ///< shift of the glyph, millimetres upwards
    quint8 DspZoom = 0;      ///< zoom of previews
    qint16 LayId = 0;        ///< layer onto which the symbol is placed
    quint8 Type = 0;         ///< 0 TrueType, 1 vector font
    bool Checked = false;    ///< check mark of selection lists
    bool operator==(const tSid &) const = default;
};

/// One text type: font and layout of labels. Member order is the published field order.
struct tTxd {
    qint16 TxdId = -1;       ///< number the user sees and identifier in one; unique
    QString GroupName;       ///< name of GroupId's group
    qint16 GroupId = -1;
    QString Name;            ///< unique
    qint16 Weight = 0;       ///< font weight, 0 (default) to 1000
    bool Italic = false;
    bool Underline = false;
    bool StrikeThrough = false;
    quint8 Align = 0;        ///< text-align flags as in tSid
    quint8 BaseRow = 0;      ///< the row that stands on the base line
    float Size_mm = 0;       ///< letter height, millimetres
    float YwFact = 0;        ///< vertical stretch, 0 or 1 = none
    float XwFact = 0;        ///< horizontal stretch, 0 or 1 = none
    float RowDist = 0;       ///< distance between rows, in letter heights
    qint32 CharSet = 0;
    quint8 PitchAndFamily = 0;
    QString Facename;
    quint8 DspZoom = 0;
    qint16 LayId = 0;        ///< layer onto which the label is placed
    bool Checked = false;
    bool operator==(const tTxd &) const = default;
};

/// One pen. The declared order differs from the grid's column order on purpose.
struct tPenColor {
    qint16 PenColorId = 0;   ///< 1..255
    qint16 PrnColor = 0;     ///< printing colour, palette index 0..255
    qint16 ScrColor = 0;     ///< screen colour, palette index 0..255
    bool operator==(const tPenColor &) const = default;
};
/// The two colours of one pen as the host stores them: screen first.
struct PenColorPair {
    qint16 ScrColor = 0;     ///< palette index 0..255
    qint16 PrnColor = 0;     ///< palette index 0..255
    bool operator==(const PenColorPair &) const = default;
};
/// All 255 pens of a document; pen n stands at index n - 1, use pen() to count from 1.
struct PenColorTable {
    std::array<PenColorPair, 255> pairs{};
    PenColorPair &pen(int n) { return pairs[size_t(n - 1)]; }             ///< n: 1..255
    const PenColorPair &pen(int n) const { return pairs[size_t(n - 1)]; } ///< n: 1..255
    bool operator==(const PenColorTable &) const = default;
};
using Palette = std::array<quint32, 256>; ///< colour values 0xRRGGBB, indexed by palette index

/// One line type.
struct tPenStyle {
    qint16 iPenStyleId = -1;      ///< assigned by the host; -1 = not stored yet
    qint16 PenStyleNr = 0;        ///< the number the user sees; unique
    QString Name;                 ///< unique
    float Size = 0;               ///< thickness, millimetres
    bool PenDown = true;          ///< false: the line is not drawn
    std::vector<double>
        Pattern; ///< dash and gap lengths in turn, millimetres, dash first; empty = continuous
    std::vector<qint16> Slots;    ///< numbers of the attached line symbolizations; 0 = empty slot
    bool operator==(const tPenStyle &) const = default;
};
using tPenStyles = std::vector<tPenStyle>;

/// Where the symbols of a line symbolization stand; the codes are stored.
enum class Placement : qint16 { DistrByLength, DistrByNr, MidPoint, EndPoints, EndPointSrc, EndPointDst };

/// A rule that places one symbol along a line.
struct tPenStyleSi {
    qint16 Nr = -1;          ///< number and identifier in one; stands in the slots of line types
    QString Name;            ///< never empty
    qint16 SidId = 0;        ///< the symbol placed
    qint16 Align = 0;        ///< a Placement code; others can be stored and are shown as wrong
    double DistrLength = 0;  ///< segment length, millimetres; 0 unless DistrByLength
    qint16 DistrNr = 0;      ///< number of segments; 0 unless DistrByNr
    double MultiDist = 0;    ///< distance between the copies at one place, millimetres
    qint16 Multi = 0;        ///< copies at one place; 0 counts as 1
    double Rotation = 0;     ///< extra turn, degrees anticlockwise from the line's direction
    double OffsetY = 0;      ///< shift across the line, millimetres to the left
    double OffsetX = 0;      ///< shift along the line, millimetres forwards
    bool operator==(const tPenStyleSi &) const = default;
};

/// One point of the drawing.
struct tPt {
    qint16 PtId = -1;        ///< assigned by the host; -1 = not stored yet
    QString Name;            ///< point number as surveyors write it, e.g. "1203/2"
    double X = 0;            ///< easting, metres
    double Y = 0;            ///< northing, metres
    double Z = 0;            ///< height, metres
    qint16 LayId = -1;       ///< -1 = on no layer
    bool operator==(const tPt &) const = default;
};
using tPtArr = std::vector<tPt>;

/// One item of the host's own choice list.
struct tKh {
    qint16 KhId = -1;
    QString Text;            ///< as shown in the list
    bool operator==(const tKh &) const = default;
};

} // namespace ZolWDoc

Q_DECLARE_METATYPE(ZolWDoc::tLay)
Q_DECLARE_METATYPE(ZolWDoc::tSid)
Q_DECLARE_METATYPE(ZolWDoc::tTxd)
Q_DECLARE_METATYPE(ZolWDoc::tPenColor)
Q_DECLARE_METATYPE(ZolWDoc::tPenStyle)
Q_DECLARE_METATYPE(ZolWDoc::tPenStyleSi)
