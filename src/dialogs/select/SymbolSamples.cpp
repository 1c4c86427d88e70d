#include "dialogs/select/SymbolSamples.h"

#include "fonts/SymbolDrawing.h"
#include "rules/SymbolRules.h"

#include <QWidget>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

std::pair<QString, qint32> characterOf(const tSid &symbol) { return {symbol.Facename, symbol.Code}; }

} // namespace

void SymbolSamples::prepare(std::span<const tSid> symbols, const ZOLW_Doc *doc)
{
    for (const tSid &s : symbols)
        if (s.Type == kVectorFont && !m_glyphs.contains(characterOf(s)))
            m_glyphs.insert(characterOf(s), vectorGlyphOf(s, doc));
}

QPixmap SymbolSamples::picture(const tSid &symbol, QSize size, const QWidget &on) const
{
    SymbolDrawing drawing;
    drawing.record = symbol;
    if (symbol.Type == kVectorFont) drawing.glyph = m_glyphs.value(characterOf(symbol));
    drawing.zoom = m_zoom;
    drawing.background = on.palette().color(QPalette::Base);
    drawing.color = on.palette().color(QPalette::Text);
    return drawing.picture(size, on.devicePixelRatioF());
}

void SymbolSamples::zoomBy(double step)
{
    m_zoom = std::clamp(std::round((m_zoom + step) / kStep) * kStep, kLeast, kMost);
}

} // namespace QV_DOC_CONTROLS
