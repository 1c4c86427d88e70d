#include "fonts/StrokeFile.h"

extern "C" { // the header is C's alone
#include <hersheyfont.h>
}

#include <QFile>

#include <memory>

namespace refhost {
namespace {

constexpr double kCapital = 21;                 // units that a capital is high in all of these files
constexpr qint32 kBlank = 32, kDelete = 127; // the last sign of a file stands at the latter; it is no letter

ZolWDoc::Glyph glyphOf(const hershey_glyph &drawn)
{
    ZolWDoc::Glyph glyph;
    glyph.advance = drawn.width / kCapital;
    for (const hershey_path *path = drawn.paths; path; path = path->next) {
        auto &stroke = glyph.strokes.emplace_back();
        for (int i = 0; i < path->nverts; ++i)
            stroke.push_back({path->verts[i].x / kCapital, path->verts[i].y / kCapital});
    }
    return glyph;
}

} // namespace

std::map<qint32, ZolWDoc::Glyph> readStrokeFile(const QString &path)
{
    const std::unique_ptr<hershey_font, decltype(&hershey_font_free)> font(
        hershey_jhf_font_load(QFile::encodeName(path).constData()), hershey_font_free);
    std::map<qint32, ZolWDoc::Glyph> all;
    if (!font) return all;
    for (qint32 code = kBlank; code < 256; ++code) {
        const hershey_glyph &drawn = font->glyphs[code];
        if (code != kDelete && (drawn.npaths > 0 || (code == kBlank && drawn.width > 0)))
            all.emplace(code, glyphOf(drawn));
    }
    return all;
}

} // namespace refhost
