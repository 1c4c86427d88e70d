#include "rules/GroupNames.h"

#include "facade/services/Text.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

bool isGroupNameTaken(const QString &name, qint16 except, std::span<const tGroup> groups)
{
    return name == txt(Text{3235, u"MIND"}) || std::ranges::any_of(groups, [&](const tGroup &g) {
               return g.GroupId != except && g.GroupName == name;
           });
}

QString freeGroupName(const QString &wanted, std::span<const tGroup> groups)
{
    QString name = wanted;
    for (int n = 2; isGroupNameTaken(name, -1, groups); ++n) name = wanted + u'_' + QString::number(n);
    return name;
}

} // namespace QV_DOC_CONTROLS
