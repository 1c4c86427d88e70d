#pragma once

#include "dialogs/editors/FieldSet.h"
#include "rules/OwnerOf.h"

#include <cmath>

namespace QV_DOC_CONTROLS {

/// A field bound to what it edits of a record.
template <class Rec> struct FieldRow : FieldSpec {
    QVariant (*get)(const Rec &);
    void (*put)(Rec &, const QVariant &);
};

/// A field for a member. A number shown in another unit is the stored one divided by `perUnit`.
template <auto M, int perUnit = 1> constexpr auto fieldRow(const FieldSpec &spec)
{
    using Rec = decltype(ownerOf(M));
    using Value = std::remove_cvref_t<decltype(std::declval<Rec>().*M)>;
    if constexpr (perUnit == 1)
        return FieldRow<Rec>{spec, [](const Rec &r) { return QVariant::fromValue(r.*M); },
                             [](Rec &r, const QVariant &v) { r.*M = v.value<Value>(); }};
    else
        return FieldRow<Rec>{spec, [](const Rec &r) { return QVariant(r.*M / double(perUnit)); },
                             [](Rec &r, const QVariant &v) {
                                 r.*M = Value(std::lround(v.toDouble() * perUnit));
                             }};
}

/// The fields of a form around its working copy of a record.
template <class Rec> class RecordFields final : public FieldSet {
public:
    RecordFields(std::span<const FieldRow<Rec>> rows, QWidget &form, ErrorRelay &relay)
        : FieldSet(form, relay), m_rows(rows)
    {
        for (const FieldRow<Rec> &row : rows) add(row);
    }
    Rec &record() { return m_record; } ///< show() what was changed past the fields
    const Rec &record() const { return m_record; }
    void showAll(const Rec &record)
    {
        m_record = record;
        for (size_t row = 0; row < m_rows.size(); ++row) showRow(row, m_rows[row].get(m_record));
    }
    void show(const char *name) { showRow(indexOf(name), m_rows[indexOf(name)].get(m_record)); }

private:
    void put(size_t row, const QVariant &value) override { m_rows[row].put(m_record, value); }
    std::span<const FieldRow<Rec>> m_rows;
    Rec m_record;
};

} // namespace QV_DOC_CONTROLS
