#include "import/DxfText.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

namespace refhost {
namespace {

struct Page {
    const char *name, *codec;
    int charSet;
};
constexpr Page kPages[] = {
    {"1250", "windows-1250", 238}, {"1251", "windows-1251", 204}, {"1252", "windows-1252", 0},
    {"1253", "windows-1253", 161}, {"1254", "windows-1254", 162}, {"1255", "windows-1255", 177},
    {"1256", "windows-1256", 178}, {"1257", "windows-1257", 186}, {"1258", "windows-1258", 163},
    {"874", "windows-874", 222},   {"932", "Shift_JIS", 128},     {"936", "GBK", 134},
    {"949", "windows-949", 129},   {"950", "Big5", 136},          {"1361", "windows-1361", 130},
    {"437", "IBM437", 255},        {"850", "IBM850", 255},        {"852", "IBM852", 238},
    {"855", "IBM855", 204},        {"857", "IBM857", 162},        {"866", "IBM866", 204},
    {"8859-1", "ISO-8859-1", 0},   {"8859-2", "ISO-8859-2", 238}, {"8859-5", "ISO-8859-5", 204},
};
constexpr const char *kEastern[] = {"",   "Shift_JIS", "Big5", "windows-949", "windows-1361",
                                    "GBK"}; // by n of \M+n

/// The value of `n` digits at `from`, -1 when they are not there.
int digitsAt(const QString &s, qsizetype from, int n, int base)
{
    if (from + n > s.size()) return -1;
    bool ok = false;
    const int v = s.mid(from, n).toInt(&ok, base);
    return ok && s[from] != u'-' && s[from] != u'+' && !s[from].isSpace() ? v : -1;
}

QString easternLetter(int page, int code)
{
    if (page < 1 || page > 5 || code < 0) return {};
    QStringDecoder decoder(kEastern[page]);
    const char bytes[2] = {char(code >> 8), char(code)};
    return decoder.isValid() ? QString(decoder(QByteArrayView(bytes, 2))) : QString();
}

QString withUnicodeCodes(QString s)
{
    for (qsizetype at = s.indexOf(u'\\'); at >= 0; at = s.indexOf(u'\\', at + 1)) {
        if (at + 2 >= s.size() || s[at + 2] != u'+') continue;
        const QChar kind = s[at + 1].toUpper();
        if (kind == u'U') {
            const int code = digitsAt(s, at + 3, 4, 16);
            if (code > 0) s.replace(at, 7, QChar(char16_t(code)));
        } else if (kind == u'M') {
            const QString letter = easternLetter(digitsAt(s, at + 3, 1, 10), digitsAt(s, at + 4, 4, 16));
            if (!letter.isEmpty()) s.replace(at, 8, letter);
        }
    }
    return s;
}

/// Reads a text once, from left to right.
class Reading {
public:
    Reading(const QString &raw, const DxfLetters &letters) : m_raw(raw), m_letters(letters) {}
    PlainText single()
    {
        while (m_at < m_raw.size())
            if (!percent() && !caret()) put(m_raw[m_at++]);
        return m_out;
    }
    PlainText rich()
    {
        while (m_at < m_raw.size())
            if (!percent() && !caret() && !backslash() && !brace()) put(m_raw[m_at++]);
        return m_out;
    }
private:
    void put(const QString &s)
    {
        // A format from an inner pair of braces held for a part of the text only.
        if (m_formatDepth > m_depth) dropFormats();
        m_out.text += s;
    }
    void put(QChar c) { put(QString(c)); }
    void dropFormats()
    {
        const QString text = m_out.text;
        m_out = PlainText();
        m_out.text = text;
        m_out.changes = true;
        m_formatDepth = 0;
    }
    bool opening()      // nothing to be seen yet
    {
        const bool first = m_out.text.trimmed().isEmpty();
        if (!first) m_out.changes = true;
        else m_formatDepth = std::max(m_formatDepth, m_depth);
        return first;
    }
    bool percent()
    {
        if (m_raw[m_at] != u'%' || m_at + 2 >= m_raw.size() || m_raw[m_at + 1] != u'%') return false;
        const int code = digitsAt(m_raw, m_at + 2, 3, 10);
        const QChar c = m_raw[m_at + 2].toLower();
        if (code < 0 && !QStringLiteral("cdpuok%").contains(c)) return false;
        m_at += code >= 0 ? 5 : 3;
        if (code >= 0) put(m_letters.ofCode(code));
        else if (c == u'c') put(u'\u00D8');
        else if (c == u'd') put(u'\u00B0');
        else if (c == u'p') put(u'\u00B1');
        else if (c == u'%') put(u'%');
        else if (c == u'u' && opening()) m_out.underline = true;
        return true;
    }
    bool caret()
    {
        if (m_raw[m_at] != u'^' || m_at + 1 >= m_raw.size()) return false;
        const QChar c = m_raw[m_at + 1];
        if (c != u'I' && c != u'J' && c != u'M' && c != u' ') return false;
        m_at += 2;
        if (c == u'I') put(u' ');
        else if (c == u'J') put(u'\n');
        else if (c == u' ') put(u'^');
        return true;
    }
    bool brace()
    {
        const QChar c = m_raw[m_at];
        if (c != u'{' && c != u'}') return false;
        m_depth += c == u'{' ? 1 : -1;
        ++m_at;
        return true;
    }
    bool backslash()
    {
        if (m_raw[m_at] != u'\\' || m_at + 1 >= m_raw.size()) return false;
        const QChar c = m_raw[m_at + 1];
        m_at += 2;
        switch (c.unicode()) {
        case u'P': case u'N': case u'X': put(u'\n'); break;
        case u'~': put(u'\u00A0'); break;
        case u'\\': case u'{': case u'}': put(c); break;
        case u'L': if (opening()) m_out.underline = true; break;
        case u'l': case u'O': case u'o': case u'K': case u'k': break;
        case u'S': stack(argument()); break;
        case u'f': case u'F': font(argument()); break;
        case u'H': height(argument()); break;
        case u'W': width(argument()); break;
        case u'C': color(argument()); break;
        case u'c': case u'A': case u'T': case u'Q': case u'p': argument(); break;
        default: put(u'\\'); put(c);
        }
        return true;
    }
    QString argument()  // up to the semicolon, which is taken too
    {
        qsizetype end = m_raw.indexOf(u';', m_at);
        if (end < 0) end = m_raw.size();
        const QString s = m_raw.mid(m_at, end - m_at);
        m_at = std::min(end + 1, m_raw.size());
        return s;
    }
    void stack(const QString &s)
    {
        const qsizetype cut =
            std::ranges::find_if(s, [](QChar c) { return c == u'^' || c == u'/' || c == u'#'; }) - s.begin();
        const QString above = s.left(cut).trimmed(), below = s.mid(cut + 1).trimmed();
        if (below.isEmpty() || above.isEmpty()) put(above.isEmpty() ? below : raised(above));
        else put(above + u'/' + below);
    }
    static QString raised(QString s)
    {
        static const QString high = QStringLiteral(
            "\u2070\u00B9\u00B2\u00B3\u2074\u2075\u2076\u2077\u2078\u2079");
        for (QChar &c : s)
            if (c >= u'0' && c <= u'9') c = high[c.unicode() - u'0'];
        return s;
    }
    void font(const QString &s)
    {
        if (!opening()) return;
        const QStringList parts = s.split(u'|');
        m_out.face = parts.front();
        m_out.bold = parts.contains(QStringLiteral("b1"));
        m_out.italic = parts.contains(QStringLiteral("i1"));
    }
    void height(QString s)
    {
        if (!opening()) return;
        const bool factor = s.endsWith(u'x', Qt::CaseInsensitive);
        if (factor) s.chop(1);
        const double v = s.toDouble();
        if (!(v > 0)) return;
        if (factor) m_out.heightFactor *= v;
        else m_out.height = v;
    }
    void width(const QString &s)
    {
        const double v = s.toDouble();
        if (opening() && v > 0) m_out.width = v;
    }
    void color(const QString &s)
    {
        bool ok = false;
        const int n = s.toInt(&ok);
        if (opening() && ok) m_out.color = n;
    }
    const QString m_raw;
    const DxfLetters &m_letters;
    PlainText m_out;
    qsizetype m_at = 0;
    int m_depth = 0, m_formatDepth = 0;
};

/// Of a letter's height as drawings count it, the height of a capital.
double widthOf(QChar c)
{
    if (QStringLiteral("iljtfr.,:;'|!()[]-/\\ ").contains(c)) return 0.42;
    if (QStringLiteral("mwMW%@").contains(c)) return 1.2;
    return c.isUpper() ? 0.95 : 0.76;
}
double widthOf(const QString &s)
{
    double w = 0;
    for (QChar c : s) w += widthOf(c);
    return w;
}

} // namespace

DxfLetters::DxfLetters(const QByteArray &version, const QByteArray &codePage) : m_utf8(version >= "AC1021")
{
    for (const Page &p : kPages)
        if (codePage.toUpper().endsWith(p.name)) {
            m_page = p.codec;
            m_charSet = p.charSet;
            break;
        }
}

QString DxfLetters::operator()(std::string_view bytes) const
{
    const QByteArrayView view(bytes.data(), qsizetype(bytes.size()));
    if (std::ranges::all_of(bytes, [](char c) { return c >= 0 && c != '\\'; }))
        return QString::fromLatin1(view);
    if (m_utf8) {
        QStringDecoder utf8(QStringDecoder::Utf8);
        const QString s = utf8(view);
        if (!utf8.hasError()) return withUnicodeCodes(s);
    }
    QStringDecoder decoder(m_page.constData());
    return withUnicodeCodes(decoder.isValid() ? QString(decoder(view)) : QString::fromLatin1(view));
}

QString DxfLetters::ofCode(int code) const
{
    if (code < 128) return QString(QChar(char16_t(code)));
    QStringDecoder decoder(m_page.constData());
    const char byte = char(code);
    return decoder.isValid() ? QString(decoder(QByteArrayView(&byte, 1))) : QString(QChar(char16_t(code)));
}

PlainText plainOfText(const QString &raw, const DxfLetters &letters)
{
    return Reading(raw, letters).single();
}
PlainText plainOfMText(const QString &raw, const DxfLetters &letters) { return Reading(raw, letters).rich(); }

QString wrapped(const QString &text, double width, double letterHeight)
{
    if (!(width > 0) || !(letterHeight > 0)) return text;
    QStringList rows;
    for (const QString &row : text.split(u'\n')) {
        QString line;
        for (const QString &word : row.split(u' ')) {
            const QString longer = line.isEmpty() ? word : line + u' ' + word;
            if (!line.isEmpty() && widthOf(longer) * letterHeight > width) {
                rows << line;
                line = word;
            } else {
                line = longer;
            }
        }
        rows << line;
    }
    return rows.join(u'\n');
}

} // namespace refhost
