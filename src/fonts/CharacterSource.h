#pragma once

#include "facade/contract/FontPicker.h"
#include "facade/contract/HostServices.h"

#include <QColor>
#include <QRectF>

#include <memory>
#include <span>

class QPainter;

namespace QV_DOC_CONTROLS {

inline constexpr int kCodes = 65536;            ///< codes are 0..65535

/// The characters of one font by their codes, whatever the font is made of.
struct CharacterSource {
    virtual ~CharacterSource() = default;
    virtual bool has(int code) const = 0;
    virtual std::vector<quint16> codes() const = 0;         ///< that the font has, ascending
    virtual QString nameOf(int code) const = 0;             ///< the character or its name; may be empty
    virtual int codeOf(QChar c) const = 0;                  ///< -1 = none
    /// What draws asks for nothing: a font of the host gives the characters here. Throws the host's error.
    virtual void prepare(std::span<const quint16>) {}
    /// In the middle of the cell, made smaller when it is too large for it. What was not prepared is missing.
    virtual void draw(QPainter &painter, int code, const QRectF &cell, const QColor &color) const = 0;
    virtual void prepareSample() {}                         ///< as prepare()
    virtual void drawSample(QPainter &painter, const QRectF &box, const QColor &color) const = 0;
};

std::shared_ptr<CharacterSource> trueTypeCharacters(const ScriptedFace &face);
std::shared_ptr<CharacterSource>
vectorCharacters(const ZolWDoc::VectorFont &font); ///< the host's, outlives it

/// Where a character goes that fills `shape` when it is drawn at the origin: scaled down, never up, until it
/// is inside the cell, centred across; the base line stays where it belongs while there is room.
struct CellPlace {
    QPointF origin;
    double scale = 1;
};
CellPlace placeInCell(const QRectF &shape, double baseLine, const QRectF &cell);

QString codeText(int code);                     ///< "U+0151"

} // namespace QV_DOC_CONTROLS
