#pragma once

#include "grids/layer/LayerGroups.h"

#include <QUuid>

class QMimeData;

namespace QV_DOC_CONTROLS {

/// What is dragged between the layer grid and the group list of one manager. Layers or groups that another
/// manager, document or program drags are refused: their identifiers mean something else there.
class LayerDrag {
public:
    static constexpr const char *kLayers = "FromZol3GridLayer", *kGroups = "FromZol3GroupLayer"; // published

    explicit LayerDrag(LayerGroups &groups) : m_groups(groups) {}
    QMimeData *layers(const std::vector<qint16> &ids) const;    ///< the caller's
    QMimeData *groups(const std::vector<qint16> &ids) const;    ///< the caller's
    bool canDropOn(qint16 group, const QMimeData &mime) const;
    void dropOn(qint16 group, const QMimeData &mime); ///< layers become members, groups add their layers
    std::optional<qint16> groupIn(const QMimeData &mime) const; ///< empty unless it is one group

private:
    QMimeData *mimeOf(const char *format, const std::vector<qint16> &ids) const;
    std::vector<qint16> idsIn(const QMimeData &mime, const char *format) const;
    LayerGroups &m_groups;
    const QUuid m_origin = QUuid::createUuid();
};

} // namespace QV_DOC_CONTROLS
