#include "rules/recordset/RecordsetValues.h"

#include <cmath>
#include <limits>

namespace QV_DOC_CONTROLS {
namespace {

using Type = RecordsetField::Type;

template <class Int> constexpr IntegerRange all()
{
    return {std::numeric_limits<Int>::min(), qint64(std::numeric_limits<Int>::max())};
}

bool isPlain(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e' || c == u'E';
    });
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

std::optional<double> numberIn(QStringView text)
{
    text = text.trimmed();
    bool ok = false;
    if (isPlain(text)) {
        const double n = text.toDouble(&ok);
        return ok ? std::optional(n) : std::nullopt;
    }
    if (text.size() > 2 && text[0] == u'&') return prefixedIn(text);
    const QString bare = text.toString().remove(u','); // commas are skipped wherever they stand, on purpose
    if (!isPlain(bare)) return {};
    const double n = bare.toDouble(&ok);
    return ok ? std::optional(n) : std::nullopt;
}

std::optional<bool> booleanIn(QStringView text)
{
    const QStringView word = text.trimmed();
    if (word.compare(u"true", Qt::CaseInsensitive) == 0) return true;
    if (word.compare(u"false", Qt::CaseInsensitive) == 0) return false;
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
