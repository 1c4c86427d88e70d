#pragma once

#include "document/Database.h"

namespace refhost {

/// The characters that the drawing itself brings, as a vector font of one name.
class OwnFont : public ZolWDoc::VectorFontProvider, private ZolWDoc::VectorFont {
public:
    explicit OwnFont(Database &db) : m_db(db) {}
    static QString faceName();
    void add(qint32 code, const QString &name,
             const ZolWDoc::Glyph &); ///< replaces the character of that code

    QStringList names() const override;                 ///< empty while the drawing has no characters
    const ZolWDoc::VectorFont *find(const QString &name) const override;
private:
    QString name() const override { return faceName(); }
    std::vector<Entry> entries() const override;
    ZolWDoc::Glyph glyph(qint32 code) const override;
    Database &m_db;
};

} // namespace refhost
