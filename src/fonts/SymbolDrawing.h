#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"
#include "fonts/DeviceScale.h"

#include <QColor>
#include <QPixmap>

#include <optional>

class QPainter;
namespace ZolWDoc { struct ZOLW_Doc; }

namespace QV_DOC_CONTROLS {

/// One point symbol enlarged on a surface, its insertion point in the middle. Everything is at hand before it
/// is painted: painting asks neither a document nor a font provider.
///
/// Pixels are those that widgets count; a scaled screen shows the same drawing sharper. Whole pixels are
/// rounded to the nearest, halves to even.
struct SymbolDrawing {
    std::optional<ZolWDoc::tSid> record;        ///< nothing = the surface is left cleared
    /// Of a record of a vector font, by vectorGlyphOf(); nothing = no such font, the surface is left cleared.
    std::optional<ZolWDoc::Glyph> glyph;
    double zoom = 3;                            ///< millimetres on the screen for one of the symbol's
    double pixelsPerMm = screenPixelsPerMm();
    QColor background = Qt::black, color = Qt::white;
    bool grid = false;                          ///< lines every 1, 5 and 10 mm around the insertion point
    bool marker = false;                        ///< of the insertion point
    bool frame = false;                         ///< the outermost pixels of the surface

    void paint(QPainter &painter, QSize surface) const;     ///< from the painter's origin on
    QPixmap picture(QSize surface, double ratio) const;     ///< ratio: device pixels per pixel

private:
    double scale() const { return pixelsPerMm * zoom; }
    bool isComplete() const;
    void paintGrid(QPainter &painter, QSize surface) const;
    void paintTrueType(QPainter &painter, QSize surface) const;
    void paintStrokes(QPainter &painter, QSize surface) const;
    void paintMarker(QPainter &painter, QSize surface) const;
};

/// The strokes of a symbol's character from the vector fonts of the document; nothing when it is of another
/// kind or there is no such font. Throws the host's error.
std::optional<ZolWDoc::Glyph> vectorGlyphOf(const ZolWDoc::tSid &symbol, const ZolWDoc::ZOLW_Doc *doc);

} // namespace QV_DOC_CONTROLS
