#include "document/OwnFont.h"

#include "document/ShapeCodec.h"

namespace refhost {

// Symbols refer to it by this name in files: it is never translated.
QString OwnFont::faceName() { return QStringLiteral("QVD_DRAWING"); }

void OwnFont::add(qint32 code, const QString &name, const ZolWDoc::Glyph &glyph)
{
    Write write(m_db);
    change(m_db,
           QStringLiteral("INSERT OR REPLACE INTO glyphs(code, name, strokes, advance) VALUES(?, ?, ?, ?)"),
           code, name, strokeBytes(glyph), glyph.advance);
    write.keep();
}

QStringList OwnFont::names() const
{
    const bool any = numberOf(m_db, QStringLiteral("SELECT EXISTS(SELECT 1 FROM glyphs)"), 0) != 0;
    return any ? QStringList{faceName()} : QStringList();
}

const ZolWDoc::VectorFont *OwnFont::find(const QString &name) const
{
    return name == faceName() ? this : nullptr;
}

std::vector<ZolWDoc::VectorFont::Entry> OwnFont::entries() const
{
    std::vector<Entry> all;
    Statement s(m_db, QStringLiteral("SELECT code, name FROM glyphs ORDER BY code"));
    for (s.exec(); s.next();) all.push_back({s.number(0), s.value(1).toString()});
    return all;
}

ZolWDoc::Glyph OwnFont::glyph(qint32 code) const
{
    ZolWDoc::Glyph glyph;
    Statement s(m_db, QStringLiteral("SELECT strokes, advance FROM glyphs WHERE code=?"));
    s.exec(code);
    if (!s.next() || !readStrokes(s.value(0).toByteArray(), glyph)) return {};
    glyph.advance = s.value(1).toDouble();
    return glyph;
}

} // namespace refhost
