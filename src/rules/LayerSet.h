#pragma once

#include "facade/contract/Records.h"

#include <span>

namespace QV_DOC_CONTROLS {

/// A set of layers in ascending order of their numbers; its key is the identifier.
///
/// Layers that come out of order are put in their places together, at the next reading: any number of them,
/// in any order, costs one sort. For that reason threads do not share a set, not even for reading.
class LayerSet {
public:
    /// Behind the layers of the same number; but a number equal to the last one's goes just before the last
    /// layer, once there are two. False = a layer with this identifier is in, and nothing changes.
    bool add(const ZolWDoc::tLay &lay);

    const ZolWDoc::tLayArr &layers() const { return settle(), m_layers; }  ///< valid until the next add()
    int count() const { return int(m_layers.size()); }
    bool contains(qint16 layId) const;
    const ZolWDoc::tLay *find(qint16 layId) const;  ///< null = not in; valid until the next add()
    bool operator==(const LayerSet &other) const { return layers() == other.layers(); }

private:
    void settle() const;
    mutable ZolWDoc::tLayArr m_layers;      ///< in order up to m_settled, then as they came
    mutable size_t m_settled = 0;
    mutable std::vector<quint64> m_places;  ///< of those that came since: what they are sorted by
    qint16 m_highest = 0;                   ///< number of the last layer
    std::vector<bool> m_known;              ///< by identifier, as far as needed; negative ones at the far end
};

/// A run of layer numbers; none when `from` is above `to`.
struct LayerNumbers {
    qint16 from = 0, to = 0;
    bool operator==(const LayerNumbers &) const = default;
};

/// What a layer set text such as "1-3,7" names, item by item. An item is a number, or two numbers around its
/// first "-"; one that is neither, or beyond 16 bits, is passed over. Runs of commas in `text` become one.
std::vector<LayerNumbers> layerNumbersIn(QString &text);

/// The layers of the table that have these numbers.
LayerSet layersNumbered(std::span<const LayerNumbers> numbers, std::span<const ZolWDoc::tLay> table);

/// The text that names these layers, in order of number: 1, 2, 3, 5, 7 and 8 are "1-3,5,7-8".
QString layerSetText(std::span<const ZolWDoc::tLay> layers);

} // namespace QV_DOC_CONTROLS

Q_DECLARE_METATYPE(QV_DOC_CONTROLS::LayerSet)
