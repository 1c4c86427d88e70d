#pragma once

#include "rules/OwnerOf.h"
#include "rules/recordset/Recordset.h"

#include <optional>
#include <span>
#include <utility>
#include <variant>

namespace QV_DOC_CONTROLS {

/// A value that stops a set file: of which row (0-based) and column. Without a row the column is missing.
struct SetFault {
    std::optional<int> row;
    QString field;
    bool operator==(const SetFault &) const = default;
};

/// A column of a set file and the member of the record it holds. A table of them is the file's layout.
template <class Rec> struct SetField {
    const char *name; ///< published spelling
    RecordsetField::Type type;
    int length = 0;                                             ///< of texts, in UTF-16 units
    bool isRead = true;                                         ///< false = written, but not read back
    bool (*put)(Recordset &, int row, int field, const Rec &);  ///< false = does not fit
    bool (*take)(const Recordset &, int row, int field, Rec &); ///< false = does not fit the member
    Recordset::Column column() const { return {QLatin1String(name), type, length}; }
    constexpr SetField writtenOnly() const
    {
        auto copy = *this;
        copy.isRead = false;
        return copy;
    }
};

template <auto Member> constexpr auto setField(const char *name, RecordsetField::Type type, int length = 0)
{
    using Rec = decltype(ownerOf(Member));
    using Value = std::remove_cvref_t<decltype(std::declval<Rec>().*Member)>;
    SetField<Rec> f{};
    f.name = name, f.type = type, f.length = length;
    f.put = [](Recordset &set, int row, int field, const Rec &r) {
        if constexpr (std::is_same_v<Value, QString>)
            return set.setText(row, field, r.*Member);
        else if constexpr (std::is_same_v<Value, bool>)
            return set.setBoolean(row, field, r.*Member);
        else if constexpr (std::is_floating_point_v<Value>)
            return set.setReal(row, field, double(r.*Member));
        else
            return set.setInteger(row, field, r.*Member);
    };
    f.take = [](const Recordset &set, int row, int field, Rec &r) {
        if (set.isNull(row, field)) return true; // the record keeps what it has
        if constexpr (std::is_same_v<Value, QString>)
            r.*Member = set.text(row, field).toString();
        else if constexpr (std::is_same_v<Value, bool>)
            r.*Member = set.boolean(row, field);
        else if constexpr (std::is_floating_point_v<Value>)
            r.*Member = Value(set.real(row, field));
        else {
            const qint64 n = set.integer(row, field);
            r.*Member = Value(n);
            return std::in_range<Value>(n);
        }
        return true;
    };
    return f;
}

/// The set with one inserted row a record; or the first value that does not fit its column.
template <class Rec>
std::variant<Recordset, SetFault> setOf(std::span<const Rec> records, std::span<const SetField<Rec>> layout)
{
    std::vector<Recordset::Column> columns;
    for (const auto &f : layout) columns.push_back(f.column());
    Recordset set = Recordset::made(columns);
    for (const Rec &r : records) {
        const int row = set.addRow(Recordset::RowState::Inserted);
        for (size_t f = 0; f < layout.size(); ++f)
            if (!layout[f].put(set, row, int(f), r)) return SetFault{row, columns[f].name};
    }
    return set;
}

/// What a set file holds: the records up to the first fault, which ends the reading.
template <class Rec> struct SetContent {
    std::vector<Rec> records;
    std::optional<SetFault> fault;
};
/// Columns are found by name, without regard to case and order; further ones are of no concern. What a row
/// has no value for stays as in `blank`.
template <class Rec>
SetContent<Rec> contentOf(const Recordset &set, std::span<const SetField<Rec>> layout, const Rec &blank)
{
    std::vector<int> places;
    for (const auto &f : layout) {
        places.push_back(set.fieldNamed(QLatin1String(f.name)));
        if (f.isRead && places.back() < 0) return {{}, SetFault{{}, QLatin1String(f.name)}};
    }
    SetContent<Rec> content;
    content.records.reserve(size_t(set.rowCount()));
    for (int row = 0; row < set.rowCount(); ++row) {
        Rec r = blank;
        for (size_t f = 0; f < layout.size(); ++f)
            if (layout[f].isRead && !layout[f].take(set, row, places[f], r))
                return content.fault = SetFault{row, QLatin1String(layout[f].name)}, content;
        content.records.push_back(std::move(r));
    }
    return content;
}

} // namespace QV_DOC_CONTROLS
