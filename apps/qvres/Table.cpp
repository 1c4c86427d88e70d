#include "qvres/Table.h"

#include "facade/services/Text.h"
#include "rules/recordset/RecordsetValues.h"

#include <QRegularExpression>
#include <QSet>

#include <cmath>
#include <tuple>

namespace qvres {

using QV_DOC_CONTROLS::join;
using QV_DOC_CONTROLS::Text;

bool Cell::same(const Cell &other) const
{
    if (kind != other.kind) return false;
    if (text == other.text || kind != Kind::Number) return text == other.text;
    const auto mine = QV_DOC_CONTROLS::numberIn(text), its = QV_DOC_CONTROLS::numberIn(other.text);
    return mine && its && *mine == *its;
}

void checkSize(size_t rows, size_t columns)
{
    constexpr size_t kMostValues = 10'000'000; // half a gigabyte or so
    if (rows && columns > kMostValues / rows)
        throw Failure(join(Text{31131, u"A táblázat túl nagy; a sorok és az oszlopok számának szorzata "
                                       u"legfeljebb ennyi lehet: "},
                           int(kMostValues)));
}

void checkNames(const QStringList &columns)
{
    QSet<QString> taken;
    for (const QString &column : columns) {
        if (taken.contains(column))
            throw Failure(join(Text{31126, u"Egy oszlopnév többször szerepel: "}, column));
        taken.insert(column);
    }
}

bool isNumber(const QString &text)
{
    static const QRegularExpression kWriting(
        QStringLiteral("\\A-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?\\z"));
    const auto parts = kWriting.match(text);
    if (!parts.hasMatch() || !std::isfinite(text.toDouble())) return false;
    if (parts.capturedLength() != parts.capturedEnd(1)) return true;
    bool isSigned = false, isUnsigned = false; // of a longer whole number digits would be lost
    std::ignore = text.toLongLong(&isSigned), std::ignore = text.toULongLong(&isUnsigned);
    return isSigned || isUnsigned;
}

} // namespace qvres
