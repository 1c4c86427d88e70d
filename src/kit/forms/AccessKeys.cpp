#include "kit/forms/AccessKeys.h"

#include <QSet>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

bool canBeKey(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }
bool startsWord(const QString &s, qsizetype i) { return i == 0 || !s[i - 1].isLetterOrNumber(); }

/// How well a place suits: a number tells most, then the beginning of a word.
int rankOf(const QString &caption, qsizetype i)
{
    return !startsWord(caption, i) ? 2 : caption[i].isDigit() ? 0 : 1;
}

/// Where a key can stand, the best place first.
std::vector<qsizetype> placesIn(const QString &caption)
{
    std::vector<qsizetype> places;
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (canBeKey(caption[i])) places.push_back(i);
    std::ranges::stable_sort(places, {}, [&](qsizetype i) { return rankOf(caption, i); });
    return places;
}

/// Gives keys one after the other; who finds none sends another one to look again.
class Giver {
public:
    explicit Giver(std::span<KeyedCaption> all) : m_all(all), m_place(all.size(), -1) {}
    void give()
    {
        for (size_t i = 0; i < m_all.size(); ++i) {
            QSet<QChar> tried;
            if (accessKeyOf(m_all[i].caption).isNull()) place(i, tried);
        }
        for (size_t i = 0; i < m_all.size(); ++i)
            if (m_place[i] >= 0) m_all[i].caption.insert(m_place[i], u'&');
    }

private:
    QChar keyOf(size_t i) const
    {
        return m_place[i] < 0 ? accessKeyOf(m_all[i].caption) : m_all[i].caption[m_place[i]].toUpper();
    }
    bool meets(size_t i, size_t j) const
    {
        return std::ranges::any_of(m_all[i].menus,
                                   [&](const QByteArray &m) { return m_all[j].menus.contains(m); });
    }
    /// Who else has the key on a menu of `i`.
    std::vector<size_t> holders(size_t i, QChar key) const
    {
        std::vector<size_t> out;
        for (size_t j = 0; j < m_all.size(); ++j)
            if (j != i && keyOf(j) == key && meets(i, j)) out.push_back(j);
        return out;
    }
    bool place(size_t i, QSet<QChar> &tried)
    {
        const std::vector<qsizetype> places = placesIn(m_all[i].caption);
        const auto key = [&](qsizetype at) { return m_all[i].caption[at].toUpper(); };
        for (const qsizetype at : places)
            if (!tried.contains(key(at)) && holders(i, key(at)).empty()) return m_place[i] = at, true;
        for (const qsizetype at : places) {
            const std::vector<size_t> before = holders(i, key(at));
            if (tried.contains(key(at)) || before.size() != 1 || m_place[before[0]] < 0) continue;
            tried.insert(key(at));
            if (place(before[0], tried)) return m_place[i] = at, true;
        }
        return false;
    }

    std::span<KeyedCaption> m_all;
    std::vector<qsizetype> m_place;             ///< of the key; -1 = none given
};

} // namespace

QChar accessKeyOf(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i)
        if (caption[i] == u'&' && caption[++i] != u'&') return caption[i].toUpper();
    return {};
}

void giveAccessKeys(std::span<KeyedCaption> captions) { Giver(captions).give(); }

QStringList withAccessKeys(const QStringList &captions, const QString &taken)
{
    std::vector<KeyedCaption> all;
    for (const QString &c : captions) all.push_back({c, {"window"}});
    for (const QChar key : taken) all.push_back({QStringLiteral("&") + key, {"window"}});
    giveAccessKeys(all);
    QStringList out;
    for (qsizetype i = 0; i < captions.size(); ++i) out << all[size_t(i)].caption;
    return out;
}

} // namespace QV_DOC_CONTROLS
