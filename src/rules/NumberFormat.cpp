#include "rules/NumberFormat.h"

#include "rules/Decimal.h"

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {

/// Takes a pattern apart, section by section.
class NumberFormat::Reader {
public:
    explicit Reader(QStringView pattern) : m_rest(pattern) {}
    bool atEnd() const { return m_rest.isEmpty(); }
    Section section()
    {
        m_section = {};
        m_commas = 0;
        while (!atEnd()) {
            const QChar c = taken();
            if (c == u';') break;
            read(c);
        }
        settleCommas(false);
        return std::move(m_section);
    }
private:
    QChar taken()
    {
        const QChar c = m_rest.front();
        m_rest = m_rest.mid(1);
        return c;
    }
    bool nextIs(const char *set, qsizetype at = 0) const
    {
        return at < m_rest.size() && QLatin1String(set).contains(m_rest[at]);
    }

    void read(QChar c)
    {
        const bool digit = (c == u'0' || c == u'#') && !m_section.scientific;
        if (c == u',' && (m_commas > 0 || afterDigit()) && !m_section.scientific) return void(++m_commas);
        settleCommas(digit);
        if (digit) return addDigit(c == u'0');
        if (c == u'.' && !m_section.hasPoint && !m_section.scientific) return addPoint();
        if ((c == u'E' || c == u'e') && startsExponent()) return addExponent(c);
        if (c == u'"') return addQuoted();
        if (c == u'%') m_section.shift += 2;
        if (c == u'\\' && !atEnd()) c = taken();
        addLiteral(c);
    }
    bool afterDigit() const
    {
        return !m_section.pieces.empty() && m_section.pieces.back().kind == Kind::Digit;
    }

    /// Commas group when a digit follows in the whole part, and scale when no digit follows.
    void settleCommas(bool beforeDigit)
    {
        if (m_commas > 0 && !beforeDigit) m_section.shift -= 3 * m_commas;
        else if (m_commas > 0 && !m_section.hasPoint) m_section.grouped = true;
        m_commas = 0;
    }
    void addDigit(bool always)
    {
        Section &s = m_section;
        s.pieces.push_back({Kind::Digit, {}});
        if (s.hasPoint) {
            ++s.decimals;
            if (always) s.leastDecimals = s.decimals;
        } else {
            ++s.whole;
            if (always || s.leastWhole > 0) ++s.leastWhole; // a zero keeps all digits behind it
        }
    }
    void addPoint()
    {
        m_section.hasPoint = true;
        m_section.pieces.push_back({Kind::Point, {}});
    }
    bool startsExponent() const
    {
        return !m_section.scientific && m_section.whole + m_section.decimals > 0 && nextIs("+-")
            && nextIs("0#", 1);
    }
    void addExponent(QChar letter)
    {
        m_section.scientific = true;
        m_section.pieces.push_back({Kind::Exponent, QString(letter) + taken()});
        while (nextIs("0#"))
            if (taken() == u'0' || m_section.leastExponent > 0) ++m_section.leastExponent;
    }
    void addQuoted()
    {
        while (!atEnd()) {
            const QChar c = taken();
            if (c == u'"') return;
            addLiteral(c);
        }
    }
    void addLiteral(QChar c)
    {
        if (m_section.pieces.empty() || m_section.pieces.back().kind != Kind::Literal)
            m_section.pieces.push_back({Kind::Literal, {}});
        m_section.pieces.back().text += c;
    }

    QStringView m_rest;
    Section m_section;
    int m_commas = 0;                           ///< behind the last digit, not settled yet
};

/// Puts the digits of one number into a section.
class NumberFormat::Writer {
public:
    Writer(const Section &section, Decimal number, const QLocale &locale)
        : m_section(section), m_locale(locale)
    {
        if (!number.isZero()) number.point += section.shift;
        if (section.scientific && !number.isZero()) {
            m_exponent = number.point - section.whole;
            number.point = section.whole;
        }
        number.roundTo(section.decimals);
        if (section.scientific && number.point > section.whole) // 9.99 became 10
            --number.point, ++m_exponent;
        m_zero = number.isZero();
        m_whole = number.whole();
        if (int(m_whole.size()) < section.leastWhole)
            m_whole.insert(0, size_t(section.leastWhole) - m_whole.size(), '0');
        m_fraction = number.fraction();
        if (int(m_fraction.size()) < section.leastDecimals)
            m_fraction.resize(size_t(section.leastDecimals), '0');
    }
    bool showsZero() const { return m_zero; }

    QString text()
    {
        for (const Piece &piece : m_section.pieces) {
            switch (piece.kind) {
            case Kind::Literal: m_out += piece.text; break;
            case Kind::Digit: writeDigit(); break;
            case Kind::Point: writePoint(); break;
            case Kind::Exponent: writeExponent(piece.text); break;
            }
        }
        return m_out;
    }
private:
    void writeDigit()
    {
        const int place = m_place++;
        if (place >= m_section.whole) {
            const size_t decimal = size_t(place - m_section.whole);
            if (decimal < m_fraction.size()) m_out += QLatin1Char(m_fraction[decimal]);
        } else if (place == 0) {
            writeWhole(m_section.whole - 1);    // the first place takes what has no place of its own
        } else {
            writeWholeDigit(m_section.whole - 1 - place);
        }
    }
    void writeWhole(int lowest)
    {
        for (int power = int(m_whole.size()) - 1; power >= lowest; --power) writeWholeDigit(power);
    }
    /// The digit that stands for ten to that power, if the number has it.
    void writeWholeDigit(int power)
    {
        if (power >= int(m_whole.size())) return;
        m_out += QLatin1Char(m_whole[m_whole.size() - 1 - size_t(power)]);
        if (m_section.grouped && power > 0 && power % 3 == 0) m_out += m_locale.groupSeparator();
    }
    void writePoint()
    {
        if (m_section.whole == 0) writeWhole(0);
        if (m_section.decimals == 0 || !m_fraction.empty()) m_out += m_locale.decimalPoint();
    }
    void writeExponent(const QString &mark)
    {
        m_out += mark[0];
        if (m_exponent < 0) m_out += u'-';
        else if (mark[1] == u'+') m_out += u'+';
        const QString digits = m_exponent == 0 ? QString() : QString::number(std::abs(m_exponent));
        m_out += digits.rightJustified(std::max(m_section.leastExponent, 1), u'0');
    }

    const Section &m_section;
    const QLocale &m_locale;
    std::string m_whole, m_fraction;
    int m_exponent = 0;
    int m_place = 0;                            ///< how many digits of the pattern are written
    bool m_zero = false;
    QString m_out;
};

NumberFormat::NumberFormat(QStringView pattern)
{
    Reader reader(pattern);
    do m_sections.push_back(reader.section());
    while (!reader.atEnd() && m_sections.size() < 3);
}

const NumberFormat::Section &NumberFormat::sectionFor(int sign) const
{
    const size_t wanted = sign < 0 ? 1 : sign > 0 ? 0 : 2;
    return wanted < m_sections.size() && !m_sections[wanted].pieces.empty() ? m_sections[wanted]
                                                                           : m_sections.front();
}

QString NumberFormat::text(double value, const QLocale &locale) const
{
    if (!std::isfinite(value)) return QString::number(value);
    const Decimal number(value);
    const Section &section = sectionFor(number.isZero() ? 0 : value < 0 ? -1 : 1);
    if (section.pieces.empty()) return shortest(value, locale);
    Writer writer(section, number, locale);
    if (writer.showsZero() && !number.isZero()) return text(0, locale);
    const bool minus = value < 0 && &section == &m_sections.front() && !number.isZero();
    return (minus ? QStringLiteral("-") : QString()) + writer.text();
}

QString NumberFormat::shortest(double value, const QLocale &locale)
{
    const bool plain = value == 0 || (std::abs(value) >= 1e-5 && std::abs(value) < 1e15);
    return NumberFormat(plain ? u"0.######################" : u"0.################E+0").text(value, locale);
}

std::vector<NumberFormat::Outside> NumberFormat::outsides() const
{
    std::vector<Outside> out;
    for (size_t i = 0; i < m_sections.size(); ++i) {
        const std::vector<Piece> &pieces = m_sections[i].pieces;
        const auto isLiteral = [](const Piece &p) { return p.kind == Kind::Literal; };
        if (std::ranges::all_of(pieces, isLiteral)) continue;
        const auto text = [&](const Piece &p) { return isLiteral(p) ? p.text : QString(); };
        out.push_back({text(pieces.front()), text(pieces.back()), i == 1});
    }
    return out;
}

int NumberFormat::shift() const { return m_sections.front().shift; }
bool NumberFormat::scientific() const
{
    return std::ranges::any_of(m_sections, [](const Section &s) { return s.scientific || s.pieces.empty(); });
}
bool NumberFormat::grouped() const { return std::ranges::any_of(m_sections, &Section::grouped); }

QString formatted(double value, QStringView pattern, const QLocale &locale)
{
    return NumberFormat(pattern).text(value, locale);
}

QChar decimalSeparator(const QLocale &locale) { return formatted(1.1, u"0.0", locale).at(1); }

} // namespace QV_DOC_CONTROLS
