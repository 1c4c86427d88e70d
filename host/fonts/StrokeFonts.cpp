#include "fonts/StrokeFonts.h"

#include "fonts/Accents.h"
#include "fonts/StrokeFile.h"

#include <QStandardPaths>

#include <algorithm>

namespace refhost {
namespace {

enum class Has { Letters, Signs };

struct FontRow {
    const char *name, *file;
    Has has = Has::Letters;
};
/// Names stand in drawings: they are never translated or changed.
constexpr FontRow kFonts[] = {
    {"Hershey Roman Simplex", "rowmans"},
    {"Hershey Roman Duplex", "rowmand"},
    {"Hershey Roman Triplex", "rowmant"},
    {"Hershey Sans", "futural"},
    {"Hershey Sans Bold", "futuram"},
    {"Hershey Times", "timesr"},
    {"Hershey Times Bold", "timesrb"},
    {"Hershey Times Italic", "timesi"},
    {"Hershey Times Bold Italic", "timesib"},
    {"Hershey Script Simplex", "scripts"},
    {"Hershey Script Complex", "scriptc"},
    {"Hershey Cursive", "cursive"},
    {"Hershey Gothic English", "gothiceng"},
    {"Hershey Gothic German", "gothicger"},
    {"Hershey Gothic Italian", "gothicita"},
    {"Hershey Cyrillic", "cyrillic", Has::Signs},
    {"Hershey Greek Simplex", "greeks", Has::Signs},
    {"Hershey Greek Complex", "greekc", Has::Signs},
    {"Hershey Japanese", "japanese", Has::Signs},
    {"Hershey Markers", "markers", Has::Signs},
    {"Hershey Symbols", "symbolic", Has::Signs},
    {"Hershey Meteorology", "meteorology", Has::Signs},
    {"Hershey Mathematics", "mathupp", Has::Signs},
    {"Hershey Astrology", "astrology", Has::Signs},
    {"Hershey Music", "music", Has::Signs},
};

QString pathOf(const FontRow &row)
{
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                  QStringLiteral("hershey-fonts/%1.jhf").arg(QLatin1String(row.file)));
}

} // namespace

class StrokeFonts::Font final : public ZolWDoc::VectorFont {
public:
    Font(const FontRow &row, const QString &path) : m_row(row), m_path(path) {}
    QString name() const override { return QLatin1String(m_row.name); }
    std::vector<Entry> entries() const override
    {
        std::vector<Entry> all;
        for (const auto &[code, glyph] : glyphs()) all.push_back({code, nameOf(code)});
        return all;
    }
    ZolWDoc::Glyph glyph(qint32 code) const override
    {
        const auto at = glyphs().find(code);
        return at == glyphs().end() ? ZolWDoc::Glyph() : at->second;
    }

private:
    QString nameOf(qint32 code) const
    {
        if (m_row.has == Has::Letters) return QString(QChar(char16_t(code)));
        return name() + u' ' + QString::number(code);
    }
    const std::map<qint32, ZolWDoc::Glyph> &glyphs() const
    {
        if (m_isRead) return m_glyphs;
        m_glyphs = readStrokeFile(m_path);
        if (m_row.has == Has::Letters) addAccented(m_glyphs);
        m_isRead = true;
        return m_glyphs;
    }
    const FontRow &m_row;
    QString m_path;
    mutable std::map<qint32, ZolWDoc::Glyph> m_glyphs;
    mutable bool m_isRead = false;
};

StrokeFonts::StrokeFonts()
{
    for (const FontRow &row : kFonts)
        if (const QString path = pathOf(row); !path.isEmpty())
            m_fonts.push_back(std::make_unique<Font>(row, path));
}

StrokeFonts::~StrokeFonts() = default;

QStringList StrokeFonts::names() const
{
    QStringList all;
    for (const auto &font : m_fonts) all << font->name();
    return all;
}

const ZolWDoc::VectorFont *StrokeFonts::find(const QString &name) const
{
    const auto at = std::ranges::find_if(m_fonts, [&](const auto &font) { return font->name() == name; });
    return at == m_fonts.end() ? nullptr : at->get();
}

} // namespace refhost
