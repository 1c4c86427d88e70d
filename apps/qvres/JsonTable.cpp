#include "qvres/JsonTable.h"

#include "facade/services/Text.h"

#include <nlohmann/json.hpp>

#include <QHash>

#include <utility>

namespace qvres {

using Json = nlohmann::ordered_json;
using QV_DOC_CONTROLS::join;
using QV_DOC_CONTROLS::Text;
using QV_DOC_CONTROLS::txt;

namespace {

Json jsonOf(const Cell &cell)
{
    switch (cell.kind) {
    case Cell::Kind::Null: return nullptr;
    case Cell::Kind::Boolean: return cell.text == u"true";
    case Cell::Kind::Text: return cell.text.toStdString();
    case Cell::Kind::Number: break;
    }
    bool isWhole = false;
    if (const qint64 whole = cell.text.toLongLong(&isWhole); isWhole) return whole;
    if (const quint64 whole = cell.text.toULongLong(&isWhole); isWhole) return whole;
    return cell.text.toDouble();
}

/// Makes the rows of one array of objects as they are read. What no table holds is refused where it begins,
/// so that it costs nothing, however deep or wide it is.
class Rows final : public nlohmann::json_sax<Json> {
public:
    Table table;

    bool null() override { return take({}); }
    bool boolean(bool value) override { return take(Cell::ofBoolean(value)); }
    bool number_integer(std::int64_t value) override { return take(Cell::ofNumber(QString::number(value))); }
    bool number_unsigned(std::uint64_t value) override
    {
        return take(Cell::ofNumber(QString::number(value)));
    }
    bool number_float(double value, const std::string &digits) override
    {
        const QString text = QString::fromStdString(digits); // too many digits would make a text of it
        return take(Cell::ofNumber(isNumber(text) ? text : QString::fromStdString(Json(value).dump())));
    }
    bool string(std::string &value) override { return take(Cell::ofText(QString::fromStdString(value))); }
    bool binary(Json::binary_t &) override { return false; } // not in JSON texts
    bool start_object(size_t) override
    {
        begin(1, "{...}");
        table.rows.emplace_back();
        return true;
    }
    bool start_array(size_t) override { return begin(0, "[...]"); }
    bool end_object() override { return --m_depth, true; }
    bool end_array() override { return --m_depth, true; }
    bool key(std::string &name) override;
    bool parse_error(size_t at, const std::string &, const nlohmann::detail::exception &e) override
    {
        if (dynamic_cast<const Json::out_of_range *>(&e)) // names the number in quotes
            throw Failure(join(Text{31129, u"A JSON-fájl egy száma túl nagy: "},
                               QString::fromUtf8(e.what()).section(u'\'', 1, 1)));
        throw Failure(join(Text{31106, u"Hibás JSON. Hely (bájt): "}, int(at)));
    }

private:
    static Failure noRows() { return Failure(txt(Text{31107, u"A JSON-fájl nem sorok tömbje."})); }
    bool begin(int depth, const char *shown)
    {
        if (m_depth == 2)
            throw Failure(
                join(Text{31105, u"A táblázat egy értéke sem szöveg, sem szám, sem igaz vagy hamis: "},
                     QLatin1String(shown)));
        if (m_depth++ != depth) throw noRows();
        return true;
    }
    bool take(const Cell &cell)
    {
        if (m_depth != 2) throw noRows();
        table.rows.back()[m_column] = cell;
        return true;
    }
    int m_depth = 0;                 ///< 1 = in the array, 2 = in a row
    size_t m_column = 0;             ///< of the next value
    QHash<QString, size_t> m_places; ///< of the columns
    std::vector<size_t> m_lastRow;   ///< by column, from 1: which had it last
};

bool Rows::key(std::string &name)
{
    const QString column = QString::fromStdString(name);
    m_column = m_places.value(column, m_lastRow.size());
    auto &row = table.rows.back();
    if (m_column < m_lastRow.size()) {
        row.reserve(m_lastRow.size()); // likely as long as the rows before it
    } else {
        m_places.insert(column, m_column);
        m_lastRow.push_back(0);
        table.columns << column;
        checkSize(table.rows.size(), m_lastRow.size());
    }
    if (std::exchange(m_lastRow[m_column], table.rows.size()) == table.rows.size())
        throw Failure(join(Text{31126, u"Egy oszlopnév többször szerepel: "}, column));
    if (row.size() <= m_column) row.resize(m_column + 1);
    return true;
}

} // namespace

QByteArray jsonOf(const std::vector<Table> &tables)
{
    Json all = Json::array();
    for (const Table &table : tables) {
        checkNames(table.columns);
        for (const auto &cells : table.rows) {
            Json::object_t row; // names differ: looking for each would cost the square of their number
            if (!table.name.isEmpty()) row.push_back({"table", table.name.toStdString()});
            for (size_t c = 0; c < cells.size(); ++c)
                row.push_back({table.columns[qsizetype(c)].toStdString(), jsonOf(cells[c])});
            all.push_back(std::move(row));
        }
    }
    return QByteArray::fromStdString(all.dump(1)) + '\n';
}

Table tableOfJson(const QByteArray &json)
{
    Rows rows;
    Json::sax_parse(json.begin(), json.end(), &rows);
    Table table = std::move(rows.table);
    checkSize(table.rows.size(), size_t(table.columns.size()));
    for (auto &row : table.rows) {
        row.reserve(size_t(table.columns.size())); // no more than that
        row.resize(size_t(table.columns.size()));
    }
    return table;
}

} // namespace qvres
