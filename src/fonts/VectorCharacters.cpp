#include "fonts/CharacterSource.h"

#include "fonts/GlyphPainter.h"

#include <QHash>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

constexpr char16_t kSample[] = u"AaBb12";
constexpr int kSampleSigns = 6;                 // of a font without these letters
constexpr double kHeightInCell = 0.5, kBaseLine = 0.7;     // in heights of the cell
constexpr double kPen = 0.07;                   // in letter heights
constexpr double kLeastPen = 1.3;               // what is seen well, in units of the painter
constexpr double kLeast = 0.2;                  // distance to the next one, in letter heights

class VectorCharacters final : public CharacterSource {
public:
    explicit VectorCharacters(const ZolWDoc::VectorFont &font) : m_font(font)
    {
        for (const ZolWDoc::VectorFont::Entry &e : font.entries())
            if (e.code >= 0 && e.code < kCodes) m_names.insert(quint16(e.code), e.name);
    }
    bool has(int code) const override { return m_names.contains(quint16(code)); }
    std::vector<quint16> codes() const override
    {
        std::vector<quint16> all(m_names.keyBegin(), m_names.keyEnd());
        std::ranges::sort(all);
        return all;
    }
    QString nameOf(int code) const override { return m_names.value(quint16(code)); }
    int codeOf(QChar c) const override { return c.unicode(); }
    void prepare(std::span<const quint16> codes) override
    {
        for (const quint16 code : codes)
            if (has(code) && !m_glyphs.contains(code)) m_glyphs.insert(code, m_font.glyph(code));
    }
    void prepareSample() override { prepare(sampleCodes()); }
    void draw(QPainter &painter, int code, const QRectF &cell, const QColor &color) const override;
    void drawSample(QPainter &painter, const QRectF &box, const QColor &color) const override;

private:
    std::vector<quint16> sampleCodes() const;
    const ZolWDoc::VectorFont &m_font;
    QHash<quint16, QString> m_names;
    QHash<quint16, ZolWDoc::Glyph> m_glyphs;    ///< those that were prepared
};

void VectorCharacters::draw(QPainter &painter, int code, const QRectF &cell, const QColor &color) const
{
    const auto glyph = m_glyphs.constFind(quint16(code));
    if (glyph == m_glyphs.constEnd()) return;
    const double height = cell.height() * kHeightInCell;
    const double pen = std::max(kLeastPen, height * kPen);
    const QRectF shape = boundsOf(*glyph, {.height = height, .penWidth = pen});
    const CellPlace place = placeInCell(shape, cell.top() + cell.height() * kBaseLine, cell);
    drawGlyph(painter, *glyph, {place.origin, height * place.scale, pen, color});
}

std::vector<quint16> VectorCharacters::sampleCodes() const
{
    const QStringView letters(kSample);
    if (std::ranges::all_of(letters, [&](QChar c) { return has(c.unicode()); }))
        return {letters.utf16(), letters.utf16() + letters.size()};
    std::vector<quint16> first = codes();
    std::erase(first, quint16(u' '));
    if (first.size() > kSampleSigns) first.resize(kSampleSigns);
    return first;
}

/// Side by side, as large as fits; characters that stand around their own middle are not run together.
void VectorCharacters::drawSample(QPainter &painter, const QRectF &box, const QColor &color) const
{
    QRectF all;                                 // at letter height 1
    std::vector<std::pair<quint16, double>> line;
    double x = 0;
    for (const quint16 code : sampleCodes()) {
        const ZolWDoc::Glyph glyph = m_glyphs.value(code);
        const QRectF shape = boundsOf(glyph, {.height = 1, .penWidth = kPen});
        const double left = std::min(0.0, shape.left());
        line.emplace_back(code, x - left);
        all |= shape.translated(x - left, 0);
        x += std::max(glyph.advance, shape.right() + kLeast) - left;
    }
    if (all.isEmpty()) return;
    const double height = std::min({box.height() * kHeightInCell, box.width() / all.width(),
                                    box.height() / all.height()});
    const QPointF origin = box.center() - all.center() * height;
    for (const auto &[code, at] : line)
        drawGlyph(painter, m_glyphs.value(code), {origin + QPointF(at * height, 0), height, height * kPen,
                                                  color});
}

} // namespace

std::shared_ptr<CharacterSource> vectorCharacters(const ZolWDoc::VectorFont &font)
{
    return std::make_shared<VectorCharacters>(font);
}

} // namespace QV_DOC_CONTROLS
