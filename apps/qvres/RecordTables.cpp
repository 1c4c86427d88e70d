#include "qvres/RecordTables.h"

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Text.h"
#include "rules/LayerFile.h"
#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetValues.h"

#include <QHash>
#include <QSet>

#include <cmath>

namespace qvres {

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Type = RecordsetField::Type;

namespace {

// --- records as rows

Cell cell(const QString &text) { return Cell::ofText(text); }
Cell cell(bool on) { return Cell::ofBoolean(on); }
Cell cell(float value) { return Cell::ofNumber(realText(double(value), true)); }
Cell cell(double value) { return Cell::ofNumber(realText(value, false)); }
template <std::integral Int> Cell cell(Int n) { return Cell::ofNumber(QString::number(n)); }
template <class T> Cell cell(const std::vector<T> &values)
{
    QStringList all;
    for (const T &value : values) all << cell(value).text;
    return Cell::ofText(all.join(u' '));
}

template <class Rec> struct Member {
    const char *name;
    Cell (*get)(const Rec &);
};
template <auto M> constexpr auto member(const char *name)
{
    using Rec = decltype(ownerOf(M));
    return Member<Rec>{name, [](const Rec &r) { return cell(r.*M); }};
}

template <class Rec, size_t N>
Table rowsOf(const char *name, const std::vector<Rec> &records, const Member<Rec> (&members)[N])
{
    Table table{QLatin1String(name), {}, {}};
    for (const auto &m : members) table.columns << QLatin1String(m.name);
    for (const Rec &r : records) {
        auto &row = table.rows.emplace_back();
        for (const auto &m : members) row.push_back(m.get(r));
    }
    return table;
}

constexpr Member<tLay> kLayer[] = {
    member<&tLay::LayId>("LayId"),
    member<&tLay::gNr>("gNr"),
    member<&tLay::Name>("Name"),
    member<&tLay::Visible>("Visible"),
    member<&tLay::PenStyleId>("PenStyleId"),
    member<&tLay::ScrColor>("ScrColor"),
    member<&tLay::PrnColor>("PrnColor"),
    member<&tLay::PenColorId>("PenColorId"),
    member<&tLay::TxdId>("TxdId"),
    member<&tLay::ElByLayer>("ElByLayer"),
    member<&tLay::TxByLayer>("TxByLayer"),
};
constexpr Member<tGroup> kGroup[] = {member<&tGroup::GroupId>("GroupId"),
                                     member<&tGroup::GroupName>("GroupName")};
constexpr Member<tLayMember> kMembership[] = {member<&tLayMember::GroupId>("GroupId"),
                                              member<&tLayMember::LayId>("LayId")};
constexpr Member<tSid> kSymbol[] = {
    member<&tSid::SidId>("SidId"),
    member<&tSid::GroupName>("GroupName"),
    member<&tSid::GroupId>("GroupId"),
    member<&tSid::Code>("Code"),
    member<&tSid::ShortName>("ShortName"),
    member<&tSid::FullName>("FullName"),
    member<&tSid::Align>("Align"),
    member<&tSid::Size_mm>("Size_mm"),
    member<&tSid::YwFact>("YwFact"),
    member<&tSid::XwFact>("XwFact"),
    member<&tSid::Facename>("Facename"),
    member<&tSid::Weight>("Weight"),
    member<&tSid::Italic>("Italic"),
    member<&tSid::Underline>("Underline"),
    member<&tSid::StrikeThrough>("StrikeThrough"),
    member<&tSid::CharSet>("CharSet"),
    member<&tSid::PitchAndFamily>("PitchAndFamily"),
    member<&tSid::ProtXmm>("ProtXmm"),
    member<&tSid::ProtYmm>("ProtYmm"),
    member<&tSid::ProtType>("ProtType"),
    member<&tSid::MoveXmm>("MoveXmm"),
    member<&tSid::MoveYmm>("MoveYmm"),
    member<&tSid::DspZoom>("DspZoom"),
    member<&tSid::LayId>("LayId"),
    member<&tSid::Type>("Type"),
    member<&tSid::Checked>("Checked"),
};
constexpr Member<tTxd> kTextType[] = {
    member<&tTxd::TxdId>("TxdId"),         member<&tTxd::GroupName>("GroupName"),
    member<&tTxd::Name>("Name"),           member<&tTxd::Facename>("Facename"),
    member<&tTxd::Size_mm>("Size_mm"),     member<&tTxd::YwFact>("YwFact"),
    member<&tTxd::XwFact>("XwFact"),       member<&tTxd::RowDist>("RowDist"),
    member<&tTxd::Weight>("Weight"),       member<&tTxd::Italic>("Italic"),
    member<&tTxd::Underline>("Underline"), member<&tTxd::StrikeThrough>("StrikeThrough"),
    member<&tTxd::Align>("Align"),         member<&tTxd::CharSet>("CharSet"),
};
constexpr Member<tPenStyle> kLineType[] = {
    member<&tPenStyle::iPenStyleId>("iPenStyleId"),
    member<&tPenStyle::PenStyleNr>("PenStyleNr"),
    member<&tPenStyle::Name>("Name"),
    member<&tPenStyle::Size>("Size"),
    member<&tPenStyle::PenDown>("PenDown"),
    member<&tPenStyle::Pattern>("Pattern"),
    member<&tPenStyle::Slots>("Slots"),
};
constexpr Member<tPenStyleSi> kSymbolization[] = {
    member<&tPenStyleSi::Nr>("Nr"),
    member<&tPenStyleSi::Name>("Name"),
    member<&tPenStyleSi::SidId>("SidId"),
    member<&tPenStyleSi::Align>("Align"),
    member<&tPenStyleSi::DistrLength>("DistrLength"),
    member<&tPenStyleSi::DistrNr>("DistrNr"),
    member<&tPenStyleSi::MultiDist>("MultiDist"),
    member<&tPenStyleSi::Multi>("Multi"),
    member<&tPenStyleSi::Rotation>("Rotation"),
    member<&tPenStyleSi::OffsetY>("OffsetY"),
    member<&tPenStyleSi::OffsetX>("OffsetX"),
};
constexpr Member<tPenColor> kPen[] = {member<&tPenColor::PenColorId>("PenColorId"),
                                      member<&tPenColor::PrnColor>("PrnColor"),
                                      member<&tPenColor::ScrColor>("ScrColor")};

std::vector<tPenColor> pensOf(const PenColorTable &table)
{
    std::vector<tPenColor> pens;
    for (int n = 1; n <= int(table.pairs.size()); ++n)
        pens.push_back({qint16(n), table.pen(n).PrnColor, table.pen(n).ScrColor});
    return pens;
}

// --- rows as a recordset

using Columns = std::vector<Recordset::Column>;

bool lacksValues(const Table &table, qsizetype c)
{
    return std::ranges::any_of(table.rows,
                               [c](const auto &row) { return row[size_t(c)].kind == Cell::Kind::Null; });
}

/// The narrowest column that takes every value of the table's column.
Recordset::Column columnFor(const Table &table, qsizetype c)
{
    Recordset::Column column{table.columns[c], Type::Text, 1};
    std::optional<Type> type;
    for (const auto &row : table.rows) {
        const Cell &value = row[size_t(c)];
        if (value.kind == Cell::Kind::Null) continue;
        bool isWhole = false;
        value.text.toInt(&isWhole);
        const Type needed = value.kind == Cell::Kind::Boolean ? Type::Boolean
                            : value.kind == Cell::Kind::Text  ? Type::Text
                            : isWhole && type != Type::Double ? Type::Int32
                                                              : Type::Double;
        const bool widens = type == Type::Int32 && needed == Type::Double;
        type = !type || *type == needed || widens ? needed : Type::Text; // what does not go together is text
        column.length = std::max(column.length, int(value.text.size()));
    }
    column.type = type.value_or(Type::Text);
    return column;
}

bool isSymbolSet(const Table &table, const Recordset &symbols)
{
    return table.columns.size() == qsizetype(symbols.fields().size()) &&
           std::ranges::all_of(table.columns, [&](const QString &c) { return symbols.fieldNamed(c) >= 0; });
}

/// Where the set has the columns; -1 = nowhere.
std::vector<int> placesIn(const Recordset &set, const QStringList &columns)
{
    QHash<QString, int> known;
    for (int i = int(set.fields().size()); i-- > 0;) // the first of a name
        known.insert(set.fields()[size_t(i)].name.toCaseFolded(), i);
    std::vector<int> places;
    for (const QString &column : columns) places.push_back(known.value(column.toCaseFolded(), -1));
    return places;
}

/// A column may be null only where the table is; so a set without nulls gets the columns it always has.
Recordset columnsFor(const Table &table, const Recordset *like)
{
    if (like) return like->withoutRows();
    Recordset set = std::get<Recordset>(symbolSetOf({}));
    if (!isSymbolSet(table, set)) {
        Columns columns;
        for (qsizetype c = 0; c < table.columns.size(); ++c) columns.push_back(columnFor(table, c));
        set = Recordset::made(columns);
    }
    std::vector<RecordsetField> fields = set.fields();
    const std::vector<int> places = placesIn(set, table.columns);
    for (qsizetype c = 0; c < table.columns.size(); ++c) {
        RecordsetField &f = fields[size_t(places[size_t(c)])];
        if (lacksValues(table, c)) f = nullable(f);
    }
    return Recordset(std::move(fields));
}

/// A set's columns have names, which differ without regard to case.
void checkColumns(const QStringList &columns)
{
    QSet<QString> taken;
    for (const QString &column : columns) {
        if (column.isEmpty())
            throw Failure(join(Text{31128, u"Egy jelkulcskészletben minden oszlopnak neve van; adj nevet "
                                           u"ennek is. Oszlop: "},
                               int(taken.size()) + 1));
        if (taken.contains(column.toCaseFolded()))
            throw Failure(join(Text{31127, u"Egy jelkulcskészletben a kis- és nagybetű egyre megy, ezért ez "
                                           u"az oszlopnév többször szerepelne: "},
                               column));
        taken.insert(column.toCaseFolded());
    }
}

bool put(Recordset &set, int row, int field, const Cell &value)
{
    const RecordsetField &f = set.fields()[size_t(field)];
    if (value.kind == Cell::Kind::Null) {
        if (!f.needsValue) set.setNull(row, field);
        return !f.needsValue;
    }
    if (f.type == Type::Boolean) {
        const auto on = booleanIn(value.text);
        return on && set.setBoolean(row, field, *on);
    }
    if (!f.isInteger() && !f.isReal()) return set.setText(row, field, value.text);
    const auto number = numberIn(value.text);
    if (!number) return false;
    if (f.isReal()) return set.setReal(row, field, *number);
    return *number == std::floor(*number) && std::abs(*number) < 9e18 &&
           set.setInteger(row, field, qint64(*number));
}

QString shownOf(const Cell &value)
{
    return value.kind == Cell::Kind::Null ? txt(Text{31125, u"(üres)"}) : value.text;
}

/// A number as it stands, unless only set files write it so ("1,000.5", "&H10", "+.5").
QString digitsOf(const Recordset &set, int row, int field)
{
    const QString source = set.text(row, field).trimmed().toString();
    const bool isSingle = set.fields()[size_t(field)].type == Type::Single;
    return isNumber(source) ? source : realText(set.real(row, field), isSingle);
}

Cell cellOf(const Recordset &set, int row, int field)
{
    const RecordsetField &f = set.fields()[size_t(field)];
    if (set.isNull(row, field)) return {};
    if (f.type == Type::Boolean) return Cell::ofBoolean(set.boolean(row, field));
    if (f.isInteger()) return cell(set.integer(row, field));
    if (f.isReal()) return Cell::ofNumber(digitsOf(set, row, field));
    return Cell::ofText(set.text(row, field).toString());
}

} // namespace

Table tableOf(const Recordset &set)
{
    Table table;
    for (const RecordsetField &f : set.fields()) table.columns << f.name;
    checkSize(size_t(set.rowCount()), set.fields().size());
    for (int r = 0; r < set.rowCount(); ++r) {
        auto &row = table.rows.emplace_back();
        for (int f = 0; f < int(set.fields().size()); ++f) row.push_back(cellOf(set, r, f));
    }
    return table;
}

std::vector<Table> tablesOf(const LayerFile &file)
{
    return {rowsOf("layers", file.layers, kLayer), rowsOf("groups", file.groups, kGroup),
            rowsOf("memberships", file.members, kMembership)};
}

std::vector<Table> tablesOf(ZOLW_Doc &doc)
{
    return {
        rowsOf("layers", doc.layers().readAll(), kLayer),
        rowsOf("groups", doc.layers().groups(), kGroup),
        rowsOf("memberships", doc.layers().members(), kMembership),
        rowsOf("symbols", doc.symbols().readAll(), kSymbol),
        rowsOf("textTypes", doc.textTypes().readAll(), kTextType),
        rowsOf("lineTypes", doc.lineTypes().readAll(), kLineType),
        rowsOf("lineSymbolizations", doc.lineSymbolizations().readAll(), kSymbolization),
        rowsOf("penColors", pensOf(doc.penColors().read()), kPen),
    };
}

Recordset setFor(const Table &table, const Recordset *like)
{
    checkColumns(table.columns);
    Recordset set = columnsFor(table, like);
    const std::vector<int> places = placesIn(set, table.columns);
    if (const auto none = std::ranges::find(places, -1); none != places.end())
        throw Failure(join(Text{31101, u"A mintafájlban nincs ilyen oszlop: "},
                           table.columns[none - places.begin()]));
    for (const auto &cells : table.rows) {
        const int row = set.addRow(Recordset::RowState::Inserted);
        for (size_t c = 0; c < cells.size(); ++c)
            if (!put(set, row, places[c], cells[c]))
                throw Failure(join(Text{31102, u"Az érték nem fér el az oszlopban. Sor: "}, row + 1,
                                   Text{31103, u", oszlop: "}, table.columns[qsizetype(c)],
                                   Text{31104, u", érték: "}, shownOf(cells[c])));
    }
    return set;
}

} // namespace qvres
