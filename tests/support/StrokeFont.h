#pragma once

#include "facade/services/Services.h"

namespace tests {

/// A host with one vector font, "Strokes": 'N' is a sign with strokes to all four sides.
struct StrokeFontHost final : ZolWDoc::HostServices, ZolWDoc::VectorFontProvider, ZolWDoc::VectorFont {
    StrokeFontHost() { QV_DOC_CONTROLS::setHostServices(this); }
    ~StrokeFontHost() override { QV_DOC_CONTROLS::setHostServices(nullptr); }
    ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *) override { return this; }
    QStringList names() const override { return {name()}; }
    const ZolWDoc::VectorFont *find(const QString &n) const override
    {
        ++asked;
        return n == name() ? this : nullptr;
    }
    QString name() const override { return "Strokes"; }
    std::vector<Entry> entries() const override { return {{'N', "N"}}; }
    ZolWDoc::Glyph glyph(qint32 code) const override
    {
        if (code != 'N') return {};
        return {{{{0, 0}, {0, 1}, {0.5, 0}, {0.5, 1}}, {{-0.25, -0.25}, {0.75, -0.25}}}, 0.75};
    }
    mutable int asked = 0;                      ///< how often a font was looked for
};

} // namespace tests
