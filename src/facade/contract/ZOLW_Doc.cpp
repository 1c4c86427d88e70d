#include "facade/contract/ZOLW_Doc.h"

#include <algorithm>

namespace ZolWDoc {

ZOLW_Doc::~ZOLW_Doc() = default;

QString DocumentList::name(int index) const { return QString::number(index + 1) + u'.'; }

void LayerRole::removeAll(std::span<const qint16> ids, bool alsoOrphans, int &done)
{
    done = 0;
    for (qint16 id : ids) remove(id, alsoOrphans), ++done;
}

qint16 LayerRole::groupOf(qint16 layId) const
{
    const auto all = members();
    const auto m = std::ranges::find(all, layId, &tLayMember::LayId);
    return m == all.end() ? qint16(-1) : m->GroupId;
}

bool SymbolRole::nameExists(const QString &shortName) const
{
    const auto all = readAll();
    return std::ranges::any_of(all, [&](const tSid &s) { return s.ShortName == shortName; });
}

qint16 SymbolRole::highestId() const
{
    qint16 highest = 0;
    for (const tSid &s : readAll()) highest = std::max(highest, s.SidId);
    return highest;
}

} // namespace ZolWDoc
