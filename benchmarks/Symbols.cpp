#include "Figures.h"

#include "fonts/SymbolDrawing.h"
#include "support/StrokeFont.h"

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

namespace {

/// A page of samples as a symbol manager shows it: every one another character.
double millisecondsOfPreviews(ZolWDoc::tSid symbol)
{
    constexpr int count = 1000;
    constexpr QSize cell(64, 64);
    SymbolDrawing drawing;
    drawing.marker = true;
    drawing.zoom = 2;
    const auto draw = [&] {
        for (int i = 0; i < count; ++i) {
            if (symbol.Type == 0) symbol.Code = 33 + i;
            drawing.glyph = vectorGlyphOf(symbol, nullptr);
            drawing.record = symbol;
            keep(drawing.picture(cell, 1).isNull());
        }
    };
    return nanosecondsOf(draw) / 1e6;
}

ZolWDoc::tSid symbolOf(quint8 type, const QString &face)
{
    return {.Code = 'N',
            .Align = 30,
            .Size_mm = 4,
            .YwFact = 1,
            .Facename = face,
            .Weight = 30,
            .CharSet = 238,
            .ProtXmm = 1,
            .ProtType = 1,
            .Type = type};
}

} // namespace

// A thousand samples are more than any window shows at once; filling them must not be felt as a wait.
static const bool s_trueType = figure("symbol.preview.truetype.1000", "ms", atMost(300), [] {
    return millisecondsOfPreviews(symbolOf(0, QStringLiteral("DejaVu Sans")));
});
static const bool s_strokes = figure("symbol.preview.strokes.1000", "ms", atMost(300), [] {
    const tests::StrokeFontHost fonts;
    return millisecondsOfPreviews(symbolOf(1, fonts.name()));
});
