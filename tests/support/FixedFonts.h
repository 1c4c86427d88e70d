#pragma once

#include "facade/contract/FontPicker.h"

namespace tests {

/// The choosers of fonts while it stands: each answers at once.
struct FixedFonts final : QV_DOC_CONTROLS::FontPicker {
    using Character = QV_DOC_CONTROLS::FontCharacter;
    using Face = QV_DOC_CONTROLS::ScriptedFace;
    FontPicker *before = QV_DOC_CONTROLS::setFontPicker(this);
    QString strokes = QStringLiteral("Strokes");
    std::optional<Character> character;
    Character asked; ///< the character that the viewer began with
    ~FixedFonts() override { QV_DOC_CONTROLS::setFontPicker(before); }

    std::optional<Face> pickTrueType(const Face &, QObject *) override
    {
        return Face{QStringLiteral("DejaVu Sans"), 204};
    }
    std::optional<QString> pickVector(const ZolWDoc::ZOLW_Doc *, const QString &, QObject *) override
    {
        return strokes;
    }
    std::optional<Character> pickCharacter(const ZolWDoc::ZOLW_Doc *, const Character &first,
                                           QObject *) override
    {
        asked = first;
        return character;
    }
};

} // namespace tests
