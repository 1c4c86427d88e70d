#pragma once

#include <QHash>

#include <functional>
#include <vector>

namespace QV_DOC_CONTROLS {

/// The records of `those` as they are in `all`, in the order of `those`; what is gone is left out. `id`: of a
/// record.
template <class Records, class Id> Records asNow(const Records &those, const Records &all, Id id)
{
    QHash<qint16, const typename Records::value_type *> byId;
    byId.reserve(qsizetype(all.size()));
    for (const auto &r : all) byId.insert(std::invoke(id, r), &r);
    Records now;
    now.reserve(those.size());
    for (const auto &r : those)
        if (const auto *const found = byId.value(std::invoke(id, r))) now.push_back(*found);
    return now;
}

} // namespace QV_DOC_CONTROLS
