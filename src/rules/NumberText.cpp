#include "rules/NumberText.h"

#include "rules/NumberFormat.h"

#include <vector>

namespace QV_DOC_CONTROLS {
namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool isBlank(QChar c) { return c.isSpace(); }       // those that no line is broken at included

/// How a text may write a number.
struct Marks {
    QChar point;
    QChar group{};                              ///< null = digits are not grouped
    bool byThousands = false;                   ///< a group has three digits
    bool exponent = true;
    bool isGroup(QChar c) const { return !group.isNull() && (c == group || (isBlank(group) && isBlank(c))); }
};
constexpr Marks kPlain{u'.'};
Marks marksOf(const QLocale &locale, bool byThousands)
{
    const QString group = locale.groupSeparator();
    return {decimalSeparator(locale), group.isEmpty() ? QChar() : group.front(), byThousands};
}

/// Reads a number off the front of a text.
class Scanner {
public:
    Scanner(QStringView text, Marks marks) : m_rest(text), m_marks(marks) {}
    QStringView rest() const { return m_rest; }
    /// In the notation of C, with as many characters as can go on; empty when there are no digits.
    QByteArray number()
    {
        skipBlanks();
        QByteArray out;
        if (nextIs(u'-') || nextIs(QChar(0x2212))) out = "-", skip(1);
        else if (nextIs(u'+')) skip(1);
        const qsizetype before = out.size();
        readWhole(out);
        qsizetype digits = out.size() - before;
        if (nextIs(m_marks.point)) {
            skip(1), out += '.';
            digits += readDigits(out);
        }
        if (digits == 0) return {};
        readExponent(out);
        return out;
    }
    void skipBlanks()
    {
        while (!m_rest.isEmpty() && isBlank(m_rest.front())) skip(1);
    }
private:
    bool nextIs(QChar c) const { return m_rest.startsWith(c); }
    bool digitAt(qsizetype i) const { return i < m_rest.size() && isDigit(m_rest[i]); }
    void skip(qsizetype n) { m_rest = m_rest.mid(n); }
    qsizetype readDigits(QByteArray &out)
    {
        qsizetype n = 0;
        for (; digitAt(n); ++n) out += char(m_rest[n].unicode());
        skip(n);
        return n;
    }
    void readWhole(QByteArray &out)
    {
        if (readDigits(out) == 0) return;
        while (startsGroup()) skip(1), readDigits(out);
    }
    bool startsGroup() const
    {
        if (m_rest.isEmpty() || !m_marks.isGroup(m_rest.front()) || !digitAt(1)) return false;
        return !m_marks.byThousands || (digitAt(2) && digitAt(3) && !digitAt(4));
    }
    void readExponent(QByteArray &out)
    {
        if (!m_marks.exponent || (!nextIs(u'e') && !nextIs(u'E'))) return;
        const bool sign = m_rest.size() > 1 && (m_rest[1] == u'+' || m_rest[1] == u'-');
        if (!digitAt(sign ? 2 : 1)) return;
        out += 'e';
        if (sign) out += char(m_rest[1].unicode());
        skip(sign ? 2 : 1);
        readDigits(out);
    }
    QStringView m_rest;
    Marks m_marks;
};

/// The whole text as a number in the notation of C; empty when it is none.
QByteArray numberIn(QStringView text, Marks marks)
{
    Scanner scanner(text, marks);
    const QByteArray number = scanner.number();
    scanner.skipBlanks();
    return scanner.rest().isEmpty() ? number : QByteArray();
}

/// Too large a number is infinite.
double valueOf(const QByteArray &number) { return QLocale::c().toDouble(QString::fromLatin1(number)); }

/// The value of a number that is shown with its point moved by so many places; exact, as no factor is.
double valueOf(const QByteArray &number, int shift)
{
    const qsizetype mark = number.indexOf('e');
    bool fits = true;
    const qint64 exponent = mark < 0 ? 0 : number.mid(mark + 1).toInt(&fits);
    if (!fits || shift == 0) return valueOf(number);
    return valueOf(number.left(mark < 0 ? number.size() : mark) + 'e' + QByteArray::number(exponent - shift));
}

/// Takes the pattern's text off both ends, where it stands; blanks are as good as no blanks.
QStringView inside(QStringView text, const NumberFormat::Outside &outside)
{
    const QString before = outside.before.trimmed(), after = outside.after.trimmed();
    text = text.trimmed();
    if (!before.isEmpty() && text.startsWith(before, Qt::CaseInsensitive)) text = text.mid(before.size());
    if (!after.isEmpty() && text.endsWith(after, Qt::CaseInsensitive)) text.chop(after.size());
    return text;
}

/// Where digits are shown in groups, the user who puts one in or takes one out leaves the marks where they
/// are.
QByteArray numberMeantBy(QStringView text, const QLocale &locale, bool exponent, bool regrouped)
{
    Marks marks = marksOf(locale, true);
    marks.exponent = exponent;
    QByteArray number = numberIn(text, marks);
    if (number.isEmpty() && regrouped) {
        QString digits = text.toString();
        number = numberIn(digits.removeIf([&](QChar c) { return marks.isGroup(c); }), marks);
    }
    if (!number.isEmpty()) return number;
    return numberIn(text, {.point = marks.point == u',' ? u'.' : u',', .exponent = exponent});
}

} // namespace

bool isNumeric(QStringView text, const QLocale &locale)
{
    return !numberIn(text, marksOf(locale, false)).isEmpty() || !numberIn(text, kPlain).isEmpty();
}

double leadingNumber(QStringView text)
{
    const QByteArray number = Scanner(text, kPlain).number();
    return number.isEmpty() ? 0 : valueOf(number);
}

std::optional<double> numberMeant(QStringView text, QStringView pattern, const QLocale &locale)
{
    const NumberFormat format(pattern);
    std::vector<NumberFormat::Outside> forms = format.outsides();
    forms.insert(forms.begin(), NumberFormat::Outside{});
    for (const NumberFormat::Outside &form : forms) {
        QByteArray number = numberMeantBy(inside(text, form), locale, format.scientific(), format.grouped());
        if (number.isEmpty()) continue;
        if (form.negative && !number.startsWith('-')) number.prepend('-');
        return valueOf(number, format.shift());
    }
    return {};
}

QString typedNumber(const QString &text, const QLocale &locale)
{
    const QByteArray number = numberMeantBy(text, locale, true, false);
    if (number.isEmpty()) return text;
    return QString::fromLatin1(number).replace(u'.', decimalSeparator(locale));
}

} // namespace QV_DOC_CONTROLS
