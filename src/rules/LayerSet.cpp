#include "rules/LayerSet.h"

#include "rules/Numeric.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr int kNumbers = 65536;                 // as many as 16 bits have
constexpr int kLowest = std::numeric_limits<qint16>::min();

/// Number, then whether it stands behind those already there, then the order of coming. Identifiers have 16
/// bits and occur once, so the order of coming has 16 bits too.
quint64 placeOf(qint16 number, bool behind, size_t order)
{
    return quint64(number - kLowest) << 17 | quint64(behind) << 16 | quint64(order);
}

/// Tells a table's layers by number, in table order, without sorting it.
class NumberIndex {
public:
    explicit NumberIndex(std::span<const tLay> table)
        : m_table(table), m_first(kNumbers, -1), m_next(table.size(), -1)
    {
        for (int i = int(table.size()); i-- > 0;) { // backwards, so that the first stands first
            int &first = m_first[size_t(table[size_t(i)].gNr - kLowest)];
            m_next[size_t(i)] = first;
            first = i;
        }
    }
    void addTo(LayerSet &set, int number) const
    {
        for (int i = m_first[size_t(number - kLowest)]; i >= 0; i = m_next[size_t(i)])
            set.add(m_table[size_t(i)]);
    }
private:
    std::span<const tLay> m_table;
    std::vector<int> m_first, m_next;           ///< rows; -1 = none
};

void collapseCommas(QString &text)
{
    const auto repeated = [](QChar a, QChar b) { return a == u',' && b == u','; };
    if (std::adjacent_find(text.cbegin(), text.cend(), repeated) == text.cend()) return;
    text.erase(std::unique(text.begin(), text.end(), repeated), text.end());
}

std::optional<LayerNumbers> numbersOf(QStringView item)
{
    const qsizetype dash = item.indexOf(u'-');
    if (dash < 0 || isNumeric(item)) {          // a sign first: "-5" is a number
        const auto number = shortValue(item);
        return number ? std::optional(LayerNumbers{*number, *number}) : std::nullopt;
    }
    const auto from = shortValue(item.left(dash)), to = shortValue(item.mid(dash + 1));
    if (!from || !to) return {};
    return LayerNumbers{*from, *to};
}

void append(QString &text, const char *separator, int number)
{
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    text += QLatin1String(separator);
    text += QLatin1String(digits.data(), int(end - digits.data()));
}

} // namespace

bool LayerSet::add(const tLay &lay)
{
    const size_t id = quint16(lay.LayId);
    if (id >= m_known.size()) m_known.resize(id + 1);
    if (m_known[id]) return false;
    m_known[id] = true;
    const bool settled = m_settled == m_layers.size();
    if (m_layers.size() < 2) {                  // of two equal ones the second stands behind
        m_layers.insert(std::ranges::upper_bound(m_layers, lay.gNr, {}, &tLay::gNr), lay);
        m_settled = m_layers.size();
    } else if (settled && lay.gNr > m_highest) {
        m_layers.push_back(lay);
        ++m_settled;
    } else {
        // equal to the last one's number: just before the last layer, on purpose
        m_places.push_back(placeOf(lay.gNr, lay.gNr != m_highest, m_layers.size()));
        m_layers.push_back(lay);
    }
    m_highest = m_layers.size() == 1 ? lay.gNr : std::max(m_highest, lay.gNr);
    return true;
}

void LayerSet::settle() const
{
    if (m_settled == m_layers.size()) return;
    std::vector<quint64> places(m_layers.size());
    for (size_t i = 0; i < m_settled; ++i) // the last one stays behind those that came before it
        places[i] = placeOf(m_layers[i].gNr, i + 1 == m_settled, i);
    const auto added = places.begin() + qsizetype(m_settled);
    std::ranges::copy(m_places, added);
    m_places = {};
    std::sort(added, places.end());
    std::inplace_merge(places.begin(), added, places.end());
    tLayArr sorted;
    sorted.reserve(m_layers.size());
    for (const quint64 place : places) sorted.push_back(std::move(m_layers[place & 0xffff]));
    m_layers = std::move(sorted);
    m_settled = m_layers.size();
}

bool LayerSet::contains(qint16 layId) const
{
    const size_t id = quint16(layId);
    return id < m_known.size() && m_known[id];
}

const tLay *LayerSet::find(qint16 layId) const
{
    if (!contains(layId)) return nullptr;
    return &*std::ranges::find(layers(), layId, &tLay::LayId);
}

std::vector<LayerNumbers> layerNumbersIn(QString &text)
{
    collapseCommas(text);                       // in the caller's string too, on purpose
    std::vector<LayerNumbers> all;
    // Neither line breaks nor blanks separate, on purpose: "1 2" is one item, and no number.
    for (const QStringView item : QStringView(text).tokenize(u','))
        if (const auto numbers = numbersOf(item)) all.push_back(*numbers);
    return all;
}

LayerSet layersNumbered(std::span<const LayerNumbers> numbers, std::span<const tLay> table)
{
    LayerSet set;
    const NumberIndex index(table);
    for (const auto &[from, to] : numbers)
        for (int n = from; n <= to; ++n) index.addTo(set, n);
    return set;
}

QString layerSetText(std::span<const tLay> layers)
{
    QString text;
    bool run = false;
    for (size_t i = 0; i < layers.size(); ++i) {
        const bool follows = i > 0 && layers[i].gNr == layers[i - 1].gNr + 1;
        if (run && !follows) append(text, "-", layers[i - 1].gNr);
        if (!follows) append(text, i > 0 ? "," : "", layers[i].gNr);
        run = follows;
    }
    if (run) append(text, "-", layers.back().gNr); // a run of two is written as one too, on purpose
    return text;
}

} // namespace QV_DOC_CONTROLS
