#pragma once

#include "facade/contract/Records.h"

#include <QSet>
#include <QStringList>

#include <optional>
#include <span>
#include <variant>

namespace QV_DOC_CONTROLS {

constexpr int kHighestCopyNumber = 32000;       ///< no copy gets a higher number
constexpr int kHighestLayerNumber = 32767;      ///< a layer's number has 16 bits

/// The numbers and names that the layers of a document have.
class TakenLayers {
public:
    explicit TakenLayers(std::span<const ZolWDoc::tLay> layers) { for (const auto &l : layers) add(l); }
    void add(const ZolWDoc::tLay &l) { m_numbers.insert(l.gNr), m_names.insert(l.Name); }
    void rename(const QString &from, const QString &to) { m_names.remove(from), m_names.insert(to); }
    bool hasNumber(int nr) const { return m_numbers.contains(nr); }
    bool hasName(const QString &name) const { return m_names.contains(name); }
    QString freeName(const QString &wanted) const;  ///< `wanted`, or with "_2", "_3" ... behind it
private:
    QSet<int> m_numbers;
    QSet<QString> m_names;
};

/// The copy of a layer with its number raised and a name of its own, or the text that says why there is none.
std::variant<ZolWDoc::tLay, QString> copyOf(const ZolWDoc::tLay &lay, int growth, const TakenLayers &taken);

/// The first of 1, 10, 100, 1000, 10000 by which all the layers can be raised to free numbers; 1 when none
/// is.
int proposedGrowth(std::span<const ZolWDoc::tLay> layers, const TakenLayers &taken);

/// The layer that the "new layer" command adds: number after the highest, a free name, all else as in
/// `model`. Empty when the highest number has no successor.
std::optional<ZolWDoc::tLay> newLayer(std::span<const ZolWDoc::tLay> all, const ZolWDoc::tLay &model);

/// The selected layers with the numbers start, start + growth, ... in their order. Empty when a number is
/// below 1 or above 32767, occurs twice, or belongs to a layer that is not selected.
std::optional<ZolWDoc::tLayArr> renumbered(std::span<const ZolWDoc::tLay> selected, int start, int growth,
                                           std::span<const ZolWDoc::tLay> all);

/// What follows the first "-" of a name, trimmed. The name as it is when there is no "-" or nothing before or
/// behind it, or when the part before it is no number and `onlyNumbers` asks for one.
QString withoutPrefix(const QString &name, bool onlyNumbers);

/// Layers that lose the prefix of their names, one after the other.
struct ShorterNames {
    ZolWDoc::tLayArr changed;       ///< with their new names
    QStringList lines;              ///< "'old' ---> 'new'" of each
    int taken = 0;                  ///< layers that keep their names because another one has the new one
};
ShorterNames withoutPrefixes(std::span<const ZolWDoc::tLay> layers, bool onlyNumbers, TakenLayers taken);

enum class LayerMatch { ByNumber, ByName };
struct MatchedLayers {
    ZolWDoc::tLayArr layers;
    int found = 0;                  ///< layers with a saved one
};
/// `all` with the visibility of the saved layers of the same number or name; saved layers without a match
/// play no part.
MatchedLayers withVisibilityOf(std::span<const ZolWDoc::tLay> saved, ZolWDoc::tLayArr all,
                               LayerMatch match);

} // namespace QV_DOC_CONTROLS
