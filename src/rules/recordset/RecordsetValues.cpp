#include "rules/recordset/RecordsetValues.h"

#include <QVarLengthArray>

#include <charconv>
#include <cmath>
#include <limits>

namespace QV_DOC_CONTROLS {
namespace {

using Type = RecordsetField::Type;

template <class Int> constexpr IntegerRange all()
{
    return {std::numeric_limits<Int>::min(), qint64(std::numeric_limits<Int>::max())};
}

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

/// Digits with a sign, decimals and an exponent, and nothing else.
std::optional<double> plainIn(QStringView text)
{
    if (text.startsWith(u'+') && !text.startsWith(u"+-")) text = text.sliced(1);
    QVarLengthArray<char, 64> letters(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (!isDigit(c) && c != u'.' && c != u'-' && c != u'+' && c != u'e' && c != u'E') return {};
        letters[i] = char(c);
    }
    double number = 0;
    const auto [end, error] = std::from_chars(letters.cbegin(), letters.cend(), number);
    return error == std::errc() && end == letters.cend() ? std::optional(number) : std::nullopt;
}

bool isWord(QStringView text, std::u16string_view lowerCase)
{
    return std::equal(text.utf16(), text.utf16() + text.size(), lowerCase.begin(), lowerCase.end(),
                      [](char16_t a, char16_t b) { return (a | 0x20) == b; });
}

/// "&H1F" and "&O17"; empty = neither.
std::optional<double> prefixedIn(QStringView text)
{
    const bool isHex = text.startsWith(u"&H", Qt::CaseInsensitive);
    if (!isHex && !text.startsWith(u"&O", Qt::CaseInsensitive)) return {};
    bool ok = false;
    const qulonglong n = text.sliced(2).toULongLong(&ok, isHex ? 16 : 8);
    return ok && text[2] != u'+' ? std::optional(double(n)) : std::nullopt;
}

} // namespace

IntegerRange rangeOf(Type type)
{
    switch (type) {
    case Type::Int8: return all<qint8>();
    case Type::Int16: return all<qint16>();
    case Type::Int32: return all<qint32>();
    case Type::UInt8: return all<quint8>();
    case Type::UInt16: return all<quint16>();
    case Type::UInt32: return all<quint32>();
    default: return all<qint64>();
    }
}

std::optional<qint64> wholeIn(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+')) text = text.sliced(1);
    if (text.isEmpty() || text.size() > 19) return {};
    quint64 size = 0; // holds any 19 digits
    for (const QChar c : text) {
        if (!isDigit(c.unicode())) return {};
        size = size * 10 + (c.unicode() - u'0');
    }
    if (size > quint64(std::numeric_limits<qint64>::max()) + isNegative) return {};
    return qint64(isNegative ? 0 - size : size);
}

std::optional<double> numberIn(QStringView text)
{
    if (const auto whole = wholeIn(text)) return double(*whole);
    text = text.trimmed();
    if (const auto plain = plainIn(text)) return plain;
    if (text.size() > 2 && text[0] == u'&') return prefixedIn(text);
    return plainIn(text.toString().remove(u',')); // commas are skipped wherever they stand, on purpose
}

std::optional<bool> booleanIn(QStringView text)
{
    const QStringView word = text.trimmed();
    if (isWord(word, u"true")) return true;
    if (isWord(word, u"false")) return false;
    const auto number = numberIn(word);
    return number ? std::optional(*number != 0) : std::nullopt;
}

QString realText(double value, bool isSingle)
{
    if (value == 0) return QStringLiteral("0");
    const int digits = isSingle ? 8 : 17;
    const QString scientific = QString::number(value, 'e', digits - 1); // -d.ddde+dd
    const qsizetype e = scientific.indexOf(u'e');
    const int exponent = scientific.sliced(e + 1).toInt();
    QString mantissa = scientific.first(e);
    while (mantissa.endsWith(u'0')) mantissa.chop(1);
    if (mantissa.endsWith(u'.')) mantissa.chop(1);
    if (exponent < -1 || exponent >= digits)
        return mantissa + u'E' + (exponent < 0 ? u'-' : u'+') + QString::number(std::abs(exponent));
    const qsizetype decimals =
        std::max<qsizetype>(0, mantissa.remove(u'-').remove(u'.').size() - 1 - exponent);
    return QString::number(value, 'f', int(decimals));
}

} // namespace QV_DOC_CONTROLS
