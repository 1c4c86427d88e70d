#include "window/Resources.h"

#include "document/SqliteDoc.h"

#include "facade/services/Services.h"

namespace refhost {
namespace {

QHash<qint16, ZolWDoc::Glyph> glyphsOf(SqliteDoc &doc, const std::vector<ZolWDoc::tSid> &symbols)
{
    QHash<qint16, ZolWDoc::Glyph> all;
    for (const ZolWDoc::tSid &s : symbols) {
        if (s.Type != 1) continue;
        const ZolWDoc::VectorFont *font = doc.ownFont().find(s.Facename);
        ZolWDoc::VectorFontProvider *others = QV_DOC_CONTROLS::vectorFonts(&doc);
        if (!font && others) font = others->find(s.Facename);
        if (font) all.insert(s.SidId, font->glyph(s.Code));
    }
    return all;
}

} // namespace

Look Resources::lookOf(const Element &e) const
{
    Look look{e.penStyleId, e.penColorId, e.txdId};
    const ZolWDoc::tLay *lay = layers.find(e.layId);
    if (!lay) {
        look.pen = std::max<qint16>(look.pen, 0);
        return look;
    }
    const bool lettered = e.kind == ElementKind::Text || e.kind == ElementKind::Symbol;
    const bool forced = lettered ? lay->TxByLayer : lay->ElByLayer;
    // A layer without a pen colour of its own still has the pen of its screen colour.
    const qint16 layerPen = lay->PenColorId > 0 ? lay->PenColorId : lay->ScrColor;
    if (forced || look.pen < 0) look.pen = layerPen;
    if (forced || look.penStyleId < 0) look.penStyleId = lay->PenStyleId;
    if (forced || look.txdId < 0) look.txdId = lay->TxdId;
    return look;
}

Resources resourcesOf(SqliteDoc &doc)
{
    Resources r;
    std::vector<ZolWDoc::tLay> layers = doc.layers().readAll();
    std::ranges::stable_sort(layers, {}, &ZolWDoc::tLay::gNr);
    r.layers = std::move(layers);
    r.symbols = doc.symbols().readAll();
    r.textTypes = doc.textTypes().readAll();
    r.lineTypes = doc.lineTypes().readAll();
    r.symbolizations = doc.lineSymbolizations().readAll();
    r.glyphs = glyphsOf(doc, r.symbols.rows());
    r.currentLayer = doc.layers().currentId();
    r.pens = doc.penColors().read();
    r.palette = doc.penColors().palette();
    r.metresPerMm = doc.info().scale / 1000;
    return r;
}

} // namespace refhost
