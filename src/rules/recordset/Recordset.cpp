#include "rules/recordset/Recordset.h"

#include "rules/recordset/RecordsetValues.h"

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

using Type = RecordsetField::Type;

struct TypeRow {
    Type type;
    const char *dtType;
    int bytes; ///< 0 = as long as the column says
};
constexpr TypeRow kMadeTypes[] = {
    {Type::Int16, "i2", 2},     {Type::Int32, "int", 4},       {Type::Single, "r4", 4},
    {Type::Double, "float", 8}, {Type::Boolean, "boolean", 2}, {Type::Text, "string", 0},
};

/// One that every reader takes as it stands. A dash is none, as in the programs that write these files; what
/// is called like a place ("c7") is none either, so that it cannot meet the column there.
bool isXmlName(QStringView name)
{
    const auto isLetter = [](QChar c) {
        return c == u'_' || (c.isLetter() && (c.unicode() < 0x80 || c.unicode() >= 0xC0));
    };
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (name.isEmpty() || !isLetter(name[0]) || name.startsWith(u"xml", Qt::CaseInsensitive)) return false;
    const QStringView rest = name.sliced(1);
    if (name[0].toLower() == u'c' && !rest.isEmpty() && std::ranges::all_of(rest, isDigit)) return false;
    return std::ranges::all_of(rest, [&](QChar c) { return isLetter(c) || isDigit(c); });
}

RecordsetField made(const Recordset::Column &column, int number)
{
    const auto row = std::ranges::find(kMadeTypes, column.type, &TypeRow::type);
    Q_ASSERT(row != std::end(kMadeTypes)); // the other types come from files only
    const auto attribute = [](const char *name, const QString &value) {
        return RecordsetAttribute{QLatin1String(name), value};
    };
    const QString xmlName =
        isXmlName(column.name) ? column.name : u'c' + QString::number(number - 1); // by its place
    RecordsetField f{column.name, xmlName, column.type, -1, true, {}, {}};
    f.column = {attribute("name", xmlName)};
    if (xmlName != column.name) f.column.push_back(attribute("rs:name", column.name));
    f.column.push_back(attribute("rs:number", QString::number(number)));
    f.column.push_back(attribute("rs:write", QStringLiteral("true")));
    f.datatype = {attribute("dt:type", QLatin1String(row->dtType)),
                  attribute("dt:maxLength", QString::number(row->bytes ? row->bytes : column.length)),
                  attribute("rs:precision", QStringLiteral("0"))};
    if (row->bytes)
        f.datatype.push_back(attribute("rs:fixedlength", QStringLiteral("true")));
    else
        f.maxLength = column.length;
    f.datatype.push_back(attribute("rs:maybenull", QStringLiteral("false")));
    return f;
}

} // namespace

RecordsetField nullable(RecordsetField f)
{
    const auto named = [](const char *name) {
        return [name](const RecordsetAttribute &a) { return a.name == QLatin1String(name); };
    };
    std::erase_if(f.datatype, named("rs:maybenull"));
    std::erase_if(f.column, named("rs:nullable"));
    const auto number = std::ranges::find_if(f.column, named("rs:number"));
    f.column.insert(number == f.column.end() ? number : number + 1,
                    {QStringLiteral("rs:nullable"), QStringLiteral("true")});
    f.needsValue = false;
    return f;
}

Recordset Recordset::made(const std::vector<Column> &columns)
{
    std::vector<RecordsetField> fields;
    for (const Column &c : columns) fields.push_back(QV_DOC_CONTROLS::made(c, int(fields.size()) + 1));
    return Recordset(std::move(fields));
}

int Recordset::fieldNamed(QAnyStringView name) const
{
    for (size_t i = 0; i < m_fields.size(); ++i)
        if (QAnyStringView::compare(name, m_fields[i].name, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

const Recordset::Value *Recordset::find(int row, int field) const
{
    const Row &r = m_rows[size_t(row)];
    const Value *const first = m_values.data() + r.first, *const end = first + r.count;
    if (quint32(field) < r.count && first[field].field == quint32(field)) return first + field; // a full row
    const Value *const found =
        std::lower_bound(first, end, quint32(field), [](const Value &v, quint32 f) { return v.field < f; });
    return found != end && found->field == quint32(field) ? found : nullptr;
}

/// Where the value goes. A row that stands before others moves behind them when it grows.
Recordset::Value &Recordset::place(int row, int field)
{
    Row &r = m_rows[size_t(row)];
    if (r.first + r.count == m_values.size() && (!r.count || m_values.back().field < quint32(field))) {
        ++r.count; // the next column of the last row, as a rule
        m_values.push_back({quint32(field), 0, kForcedNull});
        return m_values.back();
    }
    if (const Value *const there = find(row, field)) return m_values[size_t(there - m_values.data())];
    if (r.first + r.count != m_values.size()) {
        const size_t from = std::exchange(r.first, m_values.size());
        m_values.reserve(m_values.size() + r.count + 1);
        for (size_t i = 0; i < r.count; ++i) m_values.push_back(m_values[from + i]);
    }
    const auto behind = std::ranges::upper_bound(m_values.begin() + qsizetype(r.first), m_values.end(),
                                                 quint32(field), {}, &Value::field);
    ++r.count;
    return *m_values.insert(behind, {quint32(field), 0, kForcedNull});
}

bool Recordset::isNull(int row, int field) const
{
    const Value *const v = find(row, field);
    return !v || v->length == kForcedNull;
}
bool Recordset::isForcedNull(int row, int field) const
{
    const Value *const v = find(row, field);
    return v && v->length == kForcedNull;
}

QStringView Recordset::text(int row, int field) const
{
    const Value *const v = find(row, field);
    return !v || v->length == kForcedNull ? QStringView() : QStringView(m_texts).sliced(v->from, v->length);
}

qint64 Recordset::integer(int row, int field) const
{
    const QStringView source = text(row, field).trimmed();
    if (const auto whole = wholeIn(source)) return *whole; // a 64-bit number would lose digits as a double
    return qint64(std::nearbyint(numberIn(source).value_or(0))); // halves to even
}

double Recordset::real(int row, int field) const { return numberIn(text(row, field)).value_or(0); }
bool Recordset::boolean(int row, int field) const { return booleanIn(text(row, field)).value_or(false); }

Recordset Recordset::withoutRows() const
{
    Recordset set(m_fields);
    set.rowName = rowName;
    set.rowDescription = rowDescription;
    return set;
}

int Recordset::addRow(RowState state)
{
    m_rows.push_back({m_values.size(), 0, state});
    return rowCount() - 1;
}

void Recordset::setNull(int row, int field) { place(row, field).length = kForcedNull; }

void Recordset::keepSource(int row, int field, QStringView text)
{
    Value &v = place(row, field);
    v.from = quint32(m_texts.size()), v.length = quint32(text.size());
    m_texts.append(text);
}

bool Recordset::setText(int row, int field, QStringView value)
{
    const RecordsetField &f = m_fields[size_t(field)];
    if ((f.maxLength >= 0 && value.size() > f.maxLength) || !hasRoomFor(value.size())) return false;
    if (!value.isValidUtf16()) return false;
    keepSource(row, field, value);
    return true;
}

bool Recordset::setInteger(int row, int field, qint64 value)
{
    const IntegerRange range = rangeOf(m_fields[size_t(field)].type);
    if (value < range.lowest || value > range.highest) return false;
    keepSource(row, field, QString::number(value));
    return true;
}

bool Recordset::setReal(int row, int field, double value)
{
    const bool isSingle = m_fields[size_t(field)].type == Type::Single;
    const double stored = isSingle ? double(float(value)) : value;
    if (!std::isfinite(stored)) return false;
    keepSource(row, field, realText(stored, isSingle));
    return true;
}

bool Recordset::setBoolean(int row, int field, bool value)
{
    keepSource(row, field, booleanText(value));
    return true;
}

} // namespace QV_DOC_CONTROLS
