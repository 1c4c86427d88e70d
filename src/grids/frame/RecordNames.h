#pragma once

#include "kit/grid/GridSource.h"

#include <functional>

namespace QV_DOC_CONTROLS {

/// The records of a table that another one refers to: offered in table order, shown by identifier.
class RecordNames {
public:
    RecordNames() = default;
    /// `id` and `name`: of a record.
    template <class Records, class Id, class Name> RecordNames(const Records &records, Id id, Name name)
    {
        for (const auto &r : records) {
            m_choices.push_back({QVariant::fromValue(std::invoke(id, r)), std::invoke(name, r)});
            m_nameOf.insert(std::invoke(id, r), std::invoke(name, r));
        }
    }
    const std::vector<GridChoice> &choices() const { return m_choices; }
    QString operator[](qint16 id) const ///< the identifier when there is no such record
    {
        const auto found = m_nameOf.constFind(id);
        return found == m_nameOf.constEnd() ? QString::number(id) : *found;
    }
    qint16 firstId() const { return m_choices.empty() ? qint16(0) : m_choices.front().value.value<qint16>(); }

private:
    std::vector<GridChoice> m_choices;
    QHash<qint16, QString> m_nameOf;
};

} // namespace QV_DOC_CONTROLS
