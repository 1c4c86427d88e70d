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

bool isBreak(QChar c) { return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator; }

} // namespace

PaperFont::PaperFont(QFont font, double points) : m_font(onPaper(std::move(font), points)), m_advances(0x10000, -1.f)
{
    const QFontMetricsF letters(m_font);
    m_lineHeight = letters.height();
    m_ascent = letters.ascent();
}

double PaperFont::advanceOf(QChar letter) const
{
    float &known = m_advances[letter.unicode()];
    if (known < 0)
        known = letter.isSurrogate() ? float(m_font.pixelSize()) / 2 : float(QFontMetricsF(m_font).horizontalAdvance(letter));
    return known;
}

double PaperFont::width(QStringView text) const
{
    double sum = 0;
    for (QChar c : text) sum += advanceOf(c);
    return sum;
}

double PaperFont::widestWord(QStringView text) const
{
    double widest = 0, word = 0;
    for (QChar c : text) {
        word = c.isSpace() ? 0 : word + advanceOf(c);
        widest = std::max(widest, word);
    }
    return widest;
}

bool PaperFont::fits(QStringView text, double room) const
{
    for (QChar c : text) {
        if (isBreak(c)) return false;
        room -= advanceOf(c);
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
