#include "kit/forms/AccessKeys.h"

namespace QV_DOC_CONTROLS {
namespace {

bool canBeKey(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }
bool startsWord(const QString &s, qsizetype i) { return i == 0 || !s[i - 1].isLetterOrNumber(); }

/// How well a place suits: a number tells most, then the beginning of a word; 3 = not at all.
int rankOf(const QString &caption, qsizetype i, const QString &taken)
{
    if (!canBeKey(caption[i]) || taken.contains(caption[i].toUpper())) return 3;
    return !startsWord(caption, i) ? 2 : caption[i].isDigit() ? 0 : 1;
}

/// Where the caption's key stands best among the keys that are free; -1 = nowhere.
qsizetype placeOfKey(const QString &caption, const QString &taken)
{
    qsizetype best = -1;
    int bestRank = 3;
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (const int rank = rankOf(caption, i, taken); rank < bestRank) best = i, bestRank = rank;
    return best;
}

} // namespace

QChar accessKeyOf(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i)
        if (caption[i] == u'&' && caption[++i] != u'&') return caption[i].toUpper();
    return {};
}

QStringList withAccessKeys(const QStringList &captions, const QString &taken)
{
    QString keys = taken.toUpper();
    for (const QString &c : captions)
        if (const QChar key = accessKeyOf(c); !key.isNull()) keys += key;
    QStringList out = captions;
    for (QString &caption : out) {
        if (!accessKeyOf(caption).isNull()) continue;
        const qsizetype place = placeOfKey(caption, keys);
        if (place < 0) continue;
        keys += caption[place].toUpper();
        caption.insert(place, u'&');
    }
    return out;
}

} // namespace QV_DOC_CONTROLS
