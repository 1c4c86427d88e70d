#pragma once

#include <QString>

#include <optional>

class QObject;
namespace ZolWDoc { struct ZOLW_Doc; }

namespace QV_DOC_CONTROLS {

/// What fonts are made of; the numbers are those of tSid::Type.
enum class FontKind : quint8 { TrueType = 0, Vector = 1 };

/// A TrueType face and the script that it is used for.
struct ScriptedFace {
    QString face;
    qint32 charSet = 0;         ///< character set number of the script, 238 = Central European
    bool operator==(const ScriptedFace &) const = default;
};
/// One character of a font; the members are those of tSid.
struct FontCharacter {
    FontKind kind = FontKind::TrueType;
    QString face;               ///< TrueType face or vector font
    qint32 charSet = 0;         ///< codes below 256 are read in its code page; TrueType only
    qint32 code = 0;            ///< 0..65535
    bool operator==(const FontCharacter &) const = default;
};

/// The dialogs that choose fonts and characters, for those who need one: commands of the grids, editors.
///
/// What is passed in is current when the dialog opens, also when this machine has no such font. Empty =
/// cancelled. `owner`: a widget of the asking window, null = the active window. Vector fonts are those of the
/// host for `doc`, which may be null; when they cannot be listed the user is told. Throws the host's error.
struct FontPicker {
    virtual ~FontPicker() = default;
    virtual std::optional<ScriptedFace> pickTrueType(const ScriptedFace &first, QObject *owner) = 0;
    virtual std::optional<QString> pickVector(const ZolWDoc::ZOLW_Doc *doc, const QString &first,
                                              QObject *owner) = 0;
    /// In the viewer of that kind of font; the kind stays.
    virtual std::optional<FontCharacter> pickCharacter(const ZolWDoc::ZOLW_Doc *doc,
                                                       const FontCharacter &first, QObject *owner) = 0;
};

FontPicker *fontPicker();                       ///< null = there are no such dialogs
FontPicker *setFontPicker(FontPicker *);        ///< not owned; returns what was set before

} // namespace QV_DOC_CONTROLS
