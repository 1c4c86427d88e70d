#include "fonts/CharacterSource.h"

#include "fonts/FontCatalogue.h"
#include "rules/CharacterSet.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <array>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kBytes = 256;                     // codes that go through a code page
constexpr double kHeightInCell = 0.62, kHeightInSample = 0.6;
constexpr int kSampleSigns = 8;                 // of a set without letters

class TrueTypeCharacters final : public CharacterSource {
public:
    explicit TrueTypeCharacters(const ScriptedFace &face)
        : m_face(face), m_raw(QRawFont::fromFont(plainFont(face.face)))
    {
        for (int code = 0; code < kBytes; ++code) m_low[size_t(code)] = characterOf(code, face.charSet);
    }
    bool has(int code) const override { return glyphOf(m_raw, code) != 0; }
    std::vector<quint16> codes() const override
    {
        std::vector<quint16> all;
        for (int code = 0; code < kCodes; ++code)
            if (has(code)) all.push_back(quint16(code));
        return all;
    }
    QString nameOf(int code) const override
    {
        const QChar c = at(code);
        return c.isNull() || c.category() == QChar::Other_PrivateUse ? QString() : QString(c);
    }
    int codeOf(QChar c) const override;
    void draw(QPainter &painter, int code, const QRectF &cell, const QColor &color) const override;
    void drawSample(QPainter &painter, const QRectF &box, const QColor &color) const override;

private:
    QChar at(int code) const
    {
        return code < kBytes ? m_low[size_t(code)] : characterOf(code, m_face.charSet);
    }
    quint32 glyphOf(const QRawFont &font, int code) const;
    const QRawFont &sized(double pixels) const;
    QString sampleText() const;

    ScriptedFace m_face;
    QRawFont m_raw;
    std::array<QChar, kBytes> m_low;
    mutable QRawFont m_sized;                   ///< of the size drawn last
};

quint32 TrueTypeCharacters::glyphOf(const QRawFont &font, int code) const
{
    const QChar c = at(code);
    if (c.isNull() || !font.isValid()) return 0;
    quint32 glyph = 0;
    int count = 1;
    return font.glyphIndexesForChars(&c, 1, &glyph, &count) && count == 1 ? glyph : 0;
}

const QRawFont &TrueTypeCharacters::sized(double pixels) const
{
    if (!m_sized.isValid()) m_sized = m_raw;
    if (m_sized.pixelSize() != pixels) m_sized.setPixelSize(pixels);
    return m_sized;
}

/// Wide characters are their own codes in every script; the others are where the code page has them. A symbol
/// set is typed by the keys whose codes its characters have.
int TrueTypeCharacters::codeOf(QChar c) const
{
    if (m_face.charSet == kSymbolCharSet && c.unicode() > 0x20 && c.unicode() < 0x7f) return c.unicode();
    if (c.unicode() >= kBytes || m_low[c.unicode()] == c) return c.unicode();
    const auto at = std::ranges::find(m_low, c);
    return at == m_low.end() ? -1 : int(at - m_low.begin());
}

void TrueTypeCharacters::draw(QPainter &painter, int code, const QRectF &cell, const QColor &color) const
{
    const QRawFont &font = sized(cell.height() * kHeightInCell);
    const quint32 glyph = glyphOf(font, code);
    if (glyph == 0) return;
    const double baseLine = cell.center().y() + (font.ascent() - font.descent()) / 2;
    const CellPlace place = placeInCell(font.boundingRect(glyph), baseLine, cell);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF()});
    painter.save();
    painter.setPen(color);
    painter.translate(place.origin);
    if (place.scale < 1) painter.scale(place.scale, place.scale);
    painter.drawGlyphRun(QPointF(), run);
    painter.restore();
}

QString TrueTypeCharacters::sampleText() const
{
    const Script *const script = scriptOf(m_face.charSet);
    QString text = script ? QString::fromUtf16(script->letters) : QString();
    if (!text.isEmpty() && std::ranges::all_of(text, [&](QChar c) { return m_raw.supportsCharacter(c); }))
        return text + QStringLiteral(" 123");
    text.clear();
    for (int code = 33; code < kCodes && text.size() < kSampleSigns; ++code)
        if (has(code)) text += at(code);
    return text;
}

void TrueTypeCharacters::drawSample(QPainter &painter, const QRectF &box, const QColor &color) const
{
    QFont font = plainFont(m_face.face);
    font.setPixelSize(std::max(1, int(box.height() * kHeightInSample)));
    const QString text = sampleText();
    const double wide = QFontMetricsF(font).horizontalAdvance(text);
    if (wide > box.width()) font.setPixelSize(std::max(1, int(font.pixelSize() * box.width() / wide)));
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(box, int(Qt::AlignCenter) | Qt::TextSingleLine, text);
}

} // namespace

std::shared_ptr<CharacterSource> trueTypeCharacters(const ScriptedFace &face)
{
    return std::make_shared<TrueTypeCharacters>(face);
}

} // namespace QV_DOC_CONTROLS
