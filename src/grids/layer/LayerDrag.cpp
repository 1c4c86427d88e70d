#include "grids/layer/LayerDrag.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

namespace QV_DOC_CONTROLS {

QMimeData *LayerDrag::mimeOf(const char *format, const std::vector<qint16> &ids) const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << m_origin << QList<qint16>(ids.begin(), ids.end());
    auto *const mime = new QMimeData;
    mime->setData(QLatin1String(format), bytes);
    return mime;
}

QMimeData *LayerDrag::layers(const std::vector<qint16> &ids) const { return mimeOf(kLayers, ids); }
QMimeData *LayerDrag::groups(const std::vector<qint16> &ids) const { return mimeOf(kGroups, ids); }

/// Nothing when the data has another format or comes from elsewhere.
std::vector<qint16> LayerDrag::idsIn(const QMimeData &mime, const char *format) const
{
    QDataStream in(mime.data(QLatin1String(format)));
    QUuid origin;
    in >> origin;
    if (origin != m_origin) return {};
    QList<qint16> ids;
    in >> ids;
    return {ids.begin(), ids.end()};
}

bool LayerDrag::canDropOn(qint16 group, const QMimeData &mime) const
{
    const std::vector<qint16> groups = idsIn(mime, kGroups);
    return std::ranges::any_of(groups, [group](qint16 g) { return g != group; }) ||
           !idsIn(mime, kLayers).empty();
}

void LayerDrag::dropOn(qint16 group, const QMimeData &mime)
{
    if (const auto groups = idsIn(mime, kGroups); !groups.empty()) m_groups.addLayersOf(groups, group);
    else m_groups.addLayers(idsIn(mime, kLayers), group);
}

std::optional<qint16> LayerDrag::groupIn(const QMimeData &mime) const
{
    const std::vector<qint16> groups = idsIn(mime, kGroups);
    return groups.size() == 1 ? std::optional(groups.front()) : std::nullopt;
}

} // namespace QV_DOC_CONTROLS
