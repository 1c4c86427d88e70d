#pragma once

#include "grids/layer/LayerDesk.h"

namespace QV_DOC_CONTROLS {

/// The commands that make, number and remove layers.
class LayerEdits {
public:
    explicit LayerEdits(LayerDesk &desk) : m_desk(desk) {}
    /// Like the current layer; joins the chosen group. Its identifier; empty = none was made.
    std::optional<qint16> addNew(qint16 currentLayer);
    void copy();                        ///< the selected layers; copies join the groups of their models
    void renumber();                    ///< the selected layers, in grid order
    void remove(bool asksForEach);      ///< the selected layers; the delete key asks for each

private:
    LayerDesk &m_desk;
};

} // namespace QV_DOC_CONTROLS
