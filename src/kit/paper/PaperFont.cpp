#include "kit/paper/PaperFont.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

QFont onPaper(QFont font, double points)
{
    font.setPixelSize(int(std::lround(points * kUnitsPerPoint)));
    font.setHintingPreference(QFont::PreferNoHinting);  // widths grow with the size, as on the printer
    return font;
}

bool isBreak(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// Letters of scripts that are written one after the other as they come; marks upon them need shaping.
bool standsAlone(QChar c)
{
    constexpr char16_t kFirstOther = 0x0590; // Hebrew; Latin, Greek and Cyrillic are below it
    const bool plain = c < kFirstOther || (c >= QChar(0x1E00) && c <= QChar(0x1EFF))
                       || (c >= QChar(0x2010) && c <= QChar(0x22FF));
    return plain && !c.isMark() && (c.isPrint() || c == u' ') && c.category() != QChar::Other_Format;
}

} // namespace

PaperFont::PaperFont(QFont font, double points)
    : m_font(onPaper(std::move(font), points)), m_raw(QRawFont::fromFont(m_font)), m_letters(0x10000)
{
    const QFontMetricsF letters(m_font);
    m_lineHeight = letters.height();
    m_ascent = letters.ascent();
}

const PaperFont::Letter &PaperFont::letterOf(QChar letter) const
{
    Letter &known = m_letters[letter.unicode()];
    if (known.advance >= 0) return known;
    known.advance = letter.isSurrogate() ? float(m_font.pixelSize()) / 2
                                         : float(QFontMetricsF(m_font).horizontalAdvance(letter));
    quint32 glyph = 0;
    int found = 1;
    if (standsAlone(letter) && m_raw.glyphIndexesForChars(&letter, 1, &glyph, &found) && found == 1)
        known.glyph = glyph;
    return known;
}

bool PaperFont::addGlyphs(const QString &text, QPointF at, Glyphs &to) const
{
    for (QChar c : text)
        if (letterOf(c).glyph == 0) return false;
    double x = at.x();
    for (QChar c : text) {
        const Letter &letter = letterOf(c);
        to.indexes << letter.glyph;
        to.places << QPointF(std::round(x), std::round(at.y()));
        x += letter.advance;
    }
    return true;
}

double PaperFont::width(QStringView text) const
{
    double sum = 0;
    for (QChar c : text) sum += letterOf(c).advance;
    return sum;
}

double PaperFont::widestWord(QStringView text) const
{
    double widest = 0, word = 0;
    for (QChar c : text) {
        word = c.isSpace() ? 0 : word + letterOf(c).advance;
        widest = std::max(widest, word);
    }
    return widest;
}

bool PaperFont::fits(QStringView text, double room) const
{
    for (QChar c : text) {
        if (isBreak(c)) return false;
        room -= letterOf(c).advance;
        if (room < 0) return false;
    }
    return true;
}

QStringList PaperFont::lines(const QString &text, double room, int most) const
{
    if (fits(text, room)) return {text};
    QString whole = text;
    for (QChar &c : whole)
        if (isBreak(c)) c = QChar::LineSeparator;
    QTextLayout layout(whole, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList out;
    qsizetype at = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (out.size() == most - 1) break;
        line.setLineWidth(room);
        out << whole.mid(at, line.textLength()).remove(QChar::LineSeparator).trimmed();
        at += line.textLength();
    }
    layout.endLayout();
    if (at >= whole.size()) return out;
    const QString rest = whole.mid(at).replace(QChar::LineSeparator, u' ').trimmed();
    return out << QFontMetricsF(m_font).elidedText(rest, Qt::ElideRight, room);
}

} // namespace QV_DOC_CONTROLS
