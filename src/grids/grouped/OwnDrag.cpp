#include "grids/grouped/OwnDrag.h"

#include <QMimeData>

namespace QV_DOC_CONTROLS {
namespace {

QString originFormat(const char *token) { return QLatin1String(token) + QStringLiteral("/origin"); }

} // namespace

QMimeData *OwnDrag::data(const std::vector<qint16> &ids) const
{
    QStringList words{QLatin1String(m_token)};
    for (const qint16 id : ids) words << QString::number(id);
    auto *const mime = new QMimeData;
    mime->setText(words.join(u' '));
    mime->setData(originFormat(m_token), m_origin);
    return mime;
}

std::optional<std::vector<qint16>> OwnDrag::idsIn(const QMimeData &mime) const
{
    const QStringList words = mime.text().split(u' ');
    const QString origin = originFormat(m_token);
    if (words.front() != QLatin1String(m_token)) return {};
    if (mime.hasFormat(origin) && mime.data(origin) != m_origin) return {};
    std::vector<qint16> ids;
    for (const QString &word : words.mid(1)) {
        bool isNumber = false;
        const qint16 id = word.toShort(&isNumber);
        if (isNumber) ids.push_back(id);
    }
    return ids;
}

} // namespace QV_DOC_CONTROLS
