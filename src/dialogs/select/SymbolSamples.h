#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <QHash>
#include <QPixmap>

#include <optional>
#include <span>

class QWidget;
namespace ZolWDoc { struct ZOLW_Doc; }

namespace QV_DOC_CONTROLS {

/// The sample pictures of symbols, drawn as the preview draws them. The strokes of vector symbols are fetched
/// ahead, because what paints asks no host.
class SymbolSamples {
public:
    static constexpr double kStep = 0.2, kLeast = 0.2, kMost = 100;     ///< of the zoom

    /// Fetches what drawing these symbols takes, each character once. Throws the host's error.
    void prepare(std::span<const ZolWDoc::tSid> symbols, const ZolWDoc::ZOLW_Doc *doc);
    QPixmap picture(const ZolWDoc::tSid &symbol, QSize size, const QWidget &on) const;
    double zoom() const { return m_zoom; }      ///< millimetres on the screen for one of the symbol's
    void zoomBy(double step);

private:
    QHash<std::pair<QString, qint32>, std::optional<ZolWDoc::Glyph>> m_glyphs; ///< by face and code
    double m_zoom = 1;
};

} // namespace QV_DOC_CONTROLS
