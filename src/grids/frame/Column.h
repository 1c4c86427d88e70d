#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/InterfaceLocale.h"
#include "facade/services/Prompts.h"
#include "facade/services/Text.h"
#include "kit/grid/GridSource.h"
#include "rules/NumberFormat.h"
#include "rules/NumberText.h"
#include "rules/OwnerOf.h"

#include <cmath>
#include <limits>
#include <string_view>
#include <type_traits>

namespace QV_DOC_CONTROLS {

/// What the user is told when a value is refused.
struct Refusal {
    Icon icon;
    Text title, text;
};

/// One column of a table: bound to a member of its record by address; "must be unique" is data too. `Names`
/// is what the table looks up once per fill, to show identifiers by name and to offer them as choices.
template <class Rec, class Names> struct Column {
    const char *key;                                    ///< published, kept as spelt
    Text caption;
    QVariant (*get)(const Rec &);
    bool (*put)(Rec &, const QVariant &); ///< false = no value of this column: the edit is dropped
    QString (*shown)(const Rec &, const Names &);
    CellKind kind;
    Text longCaption{};
    bool canEdit = false;
    std::optional<Refusal> taken{};                     ///< set: shown when another row has the value
    std::vector<GridChoice> (*choices)(const Names &) = nullptr;

    double least = std::numeric_limits<double>::lowest(), most = std::numeric_limits<double>::max();
    int decimals = 0;                                   ///< of a number, at most
    Text unit{};                                        ///< of a number, for tool tips and refusals
    bool isPen = false;                                 ///< a pen's number: picked by its colour as well
    bool (*proper)(const QVariant &) = nullptr;         ///< set: other values are dropped
    void (*follow)(Rec &) = nullptr;                    ///< set: what an edit of the column changes too
    bool (*allowed)(ZolWDoc::ZOLW_Doc &) = nullptr;     ///< set: whether the host lets it be edited at all

    constexpr Column within(double from, double to) const
    {
        auto c = *this;
        c.least = from, c.most = to;
        return c;
    }
    constexpr Column measuredIn(Text what) const { auto c = *this; c.unit = what; return c; }
    constexpr Column filled() const
    {
        auto c = *this;
        c.proper = [](const QVariant &v) { return !v.toString().trimmed().isEmpty(); };
        return c;
    }
    bool isNumber() const { return kind == CellKind::Number || kind == CellKind::Color; }
    bool takes(const QVariant &value) const
    {
        if (proper && !proper(value)) return false;
        return kind == CellKind::Text || kind == CellKind::Check ||
               (value.toDouble() >= least && value.toDouble() <= most);
    }
    NumberField asField() const                         ///< how a prompt would ask for its number
    {
        return {.min = least, .max = most, .decimals = decimals, .unit = unit.id ? txt(unit) : QString()};
    }
    constexpr Column with(Text longer) const { auto c = *this; c.longCaption = longer; return c; }
    constexpr Column where(bool (*by)(ZolWDoc::ZOLW_Doc &)) const
    {
        auto c = *this;
        c.allowed = by;
        return c;
    }
    constexpr Column editable() const { auto c = *this; c.canEdit = true; return c; }
    constexpr Column unique(Refusal r) const { auto c = editable(); c.taken = r; return c; }
    constexpr Column alsoSets(void (*what)(Rec &)) const { auto c = *this; c.follow = what; return c; }
    constexpr Column picture() const { auto c = *this; c.kind = CellKind::Picture; return c; }
    constexpr Column pen() const { auto c = within(0, 255); c.isPen = true; return c; }
    constexpr Column color() const { auto c = pen(); c.kind = CellKind::Color; return c; }
    constexpr Column named(QString (*by)(const Rec &, const Names &),
                           std::vector<GridChoice> (*offer)(const Names &)) const
    {
        auto c = *this;
        c.kind = CellKind::List, c.shown = by, c.choices = offer;
        return c;
    }
};


template <class T> constexpr CellKind kindOf()
{
    if constexpr (std::is_same_v<T, bool>) return CellKind::Check;
    else return std::is_arithmetic_v<T> ? CellKind::Number : CellKind::Text;
}

constexpr int kDecimals = 3;
constexpr const char16_t *kRealPattern = u"0.0##";      ///< how a number with decimals is shown

/// Takes over an edited value; text that is no number of the member's kind and range is no value of a number
/// column.
template <class T> bool assign(T &member, const QVariant &value)
{
    if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
        const auto n = numberMeant(value.toString(), u"0", interfaceLocale());
        if (!n || *n != std::floor(*n)) return false;
        if (*n < std::numeric_limits<T>::min() || *n > std::numeric_limits<T>::max()) return false;
        member = T(*n);
    } else if constexpr (std::is_floating_point_v<T>) {
        const bool typed = value.typeId() == QMetaType::QString;
        const auto n = typed ? numberMeant(value.toString(), kRealPattern, interfaceLocale())
                             : std::optional(value.toDouble());
        if (!n) return false;
        member = T(*n);
    } else {
        member = value.value<T>();
    }
    return true;
}

template <class T> QString textOf(const T &value)
{
    if constexpr (std::is_same_v<T, QString>) return value;
    else if constexpr (std::is_same_v<T, bool>) return {};
    else if constexpr (std::is_floating_point_v<T>)
        return formatted(value, QString::fromUtf16(kRealPattern), interfaceLocale());
    else return QString::number(value);
}

template <class T> QVariant valueOf(const T &value)
{
    if constexpr (std::is_same_v<T, quint8>) return int(value); // Qt takes a byte for a letter
    else return QVariant::fromValue(value);
}

/// The column that shows and edits member M.
template <auto M, class Names> constexpr auto field(const char *key, Text caption)
{
    using Rec = decltype(ownerOf(M));
    using T = std::remove_cvref_t<decltype(std::declval<Rec>().*M)>;
    Column<Rec, Names> column{key, caption,
                              [](const Rec &r) { return valueOf(r.*M); },
                              [](Rec &r, const QVariant &v) { return assign(r.*M, v); },
                              [](const Rec &r, const Names &) { return textOf(r.*M); },
                              kindOf<T>()};
    if constexpr (std::is_arithmetic_v<T>)
        column = column.within(std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    column.decimals = std::is_floating_point_v<T> ? kDecimals : 0;
    return column;
}

/// The place of a column; an unknown key does not compile.
template <class Table> consteval int columnOf(std::string_view key)
{
    int c = 0;
    while (Table::columns[c].key != key) ++c;
    return c;
}

/// The columns of a table as a grid shows them, captions in the current language; `doc` is the one it is of.
template <class Table> std::vector<GridColumn> gridColumnsOf(ZolWDoc::ZOLW_Doc *doc)
{
    std::vector<GridColumn> columns;
    for (const auto &c : Table::columns)
        columns.push_back({.key = QString::fromLatin1(c.key),
                           .caption = txt(c.caption),
                           .longCaption = c.longCaption.id ? txt(c.longCaption) : QString(),
                           .kind = c.kind,
                           .editable = c.canEdit && (!c.allowed || (doc && c.allowed(*doc))),
                           .unit = c.unit.id ? txt(c.unit) : QString(),
                           .asks = c.isPen});
    return columns;
}

} // namespace QV_DOC_CONTROLS
