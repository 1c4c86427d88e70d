#include "fonts/TrueTypeGlyph.h"

#include "rules/CharacterSet.h"

#include <QFont>
#include <QRawFont>
#include <QtEndian>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kOutline = 1000;                  // pixels at which outlines are taken, to be scaled
constexpr int kAcross = 6, kCentre = 6, kRight = 2;         // text-align flags
constexpr int kUpright = 24, kBaseline = 24, kBottom = 8;

QFont::StyleHint styleOf(int pitchAndFamily)
{
    switch (pitchAndFamily & 0xf0) {
    case 0x10: return QFont::Serif;
    case 0x20: return QFont::SansSerif;
    case 0x30: return QFont::TypeWriter;
    case 0x40: return QFont::Cursive;
    case 0x50: return QFont::Decorative;
    default: return QFont::AnyStyle;
    }
}

QRawFont faceOf(const ZolWDoc::tSid &symbol)
{
    QFont font(symbol.Facename);
    font.setPixelSize(kOutline);
    font.setStyleHint(styleOf(symbol.PitchAndFamily));
    font.setFixedPitch((symbol.PitchAndFamily & 3) == 1);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

/// Of the cell around every character of the face, in units of its em square.
struct Cell {
    double ascent = 0, descent = 0;
};

/// The face's numbers for text output stand in its table of metrics; those of its line height are others.
Cell cellOf(const QRawFont &face)
{
    constexpr int ascentAt = 74, descentAt = 76;
    const QByteArray table = face.fontTable("OS/2");
    if (table.size() < descentAt + 2 || face.unitsPerEm() <= 0)
        return {face.ascent() / kOutline, face.descent() / kOutline};
    const auto at = [&](int place) { return qFromBigEndian<quint16>(table.constData() + place); };
    return {at(ascentAt) / face.unitsPerEm(), at(descentAt) / face.unitsPerEm()};
}

double leftOf(int align, double width)
{
    switch (align & kAcross) {
    case kCentre: return -std::floor(width / 2);
    case kRight: return -width;
    default: return 0;
    }
}

double baselineOf(int align, const Cell &cell, double em)
{
    switch (align & kUpright) {
    case kBaseline: return 0;
    case kBottom: return -std::nearbyint(cell.descent * em);
    default: return std::nearbyint(cell.ascent * em);
    }
}

} // namespace

QPainterPath trueTypeGlyph(const ZolWDoc::tSid &symbol, int height)
{
    const QChar character = characterOf(symbol.Code, symbol.CharSet);
    if (height == 0 || character.isNull()) return {};
    const QRawFont face = faceOf(symbol);
    const auto glyphs = face.glyphIndexesForString(QString(character));
    if (glyphs.isEmpty()) return {};
    const Cell cell = cellOf(face);
    const double whole = cell.ascent + cell.descent;
    const double em = height < 0 ? -height : whole > 0 ? height / whole : height;
    const double advance = face.advancesForGlyphIndexes(glyphs).value(0).x();
    const double width = std::nearbyint(advance * em / kOutline);

    QPainterPath outline = face.pathForGlyph(glyphs[0]);
    outline.setFillRule(Qt::WindingFill);
    QTransform place;
    place.translate(leftOf(symbol.Align, width), baselineOf(symbol.Align, cell, em));
    place.scale(em / kOutline, em / kOutline);
    return place.map(outline);
}

} // namespace QV_DOC_CONTROLS
