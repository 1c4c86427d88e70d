#pragma once

#include "grids/layer/LayerDesk.h"

namespace QV_DOC_CONTROLS {

/// The commands that change values of layers: the current one's, those of all selected ones, or of all there
/// are.
class LayerValues {
public:
    explicit LayerValues(LayerDesk &desk) : m_desk(desk) {}
    void rename();                      ///< the current layer; asks again after a refusal
    void number();                      ///< the current layer; asks again after a refusal
    void trimNames();                   ///< cuts a prefix from the selected layers' names; lists what changed
    void setFlag(bool ZolWDoc::tLay::*flag, bool on);   ///< of the selected layers
    void setAllVisible(bool on);                        ///< of the whole table
    void setGroupVisible(bool on);                      ///< of the layers of the chosen group
    /// Text type, line type or pen colour of the selected layers, from its selection dialog.
    void pick(ZolWDoc::TableKind kind);

private:
    LayerDesk &m_desk;
};

} // namespace QV_DOC_CONTROLS
