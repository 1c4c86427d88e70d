#pragma once

#include "grids/layer/LayerDesk.h"

namespace QV_DOC_CONTROLS {

/// The commands that make, change and remove layers. Each runs inside the desk's relay.
class LayerEdits {
public:
    explicit LayerEdits(LayerDesk &desk) : m_desk(desk) {}
    void addNew();                              ///< like the current layer, with the next number; becomes current

private:
    LayerDesk &m_desk;
};

} // namespace QV_DOC_CONTROLS
