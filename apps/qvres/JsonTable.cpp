#include "qvres/JsonTable.h"

#include "facade/services/Text.h"

#include <nlohmann/json.hpp>

#include <QHash>
#include <QSet>

#include <functional>

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

Cell cellOf(const Json &value)
{
    if (value.is_null()) return {};
    if (value.is_boolean()) return Cell::ofBoolean(value.get<bool>());
    if (value.is_string()) return Cell::ofText(QString::fromStdString(value.get<std::string>()));
    return Cell::ofNumber(QString::fromStdString(value.dump()));
}

Failure noRows() { return Failure(txt(Text{31107, u"A JSON-fájl nem sorok tömbje."})); }

/// Refuses what no table holds when it begins, before its depth costs anything: one array of objects, whose
/// values are plain and whose keys differ.
class Shape {
public:
    bool operator()(int depth, Json::parse_event_t event, const Json &parsed)
    {
        using Event = Json::parse_event_t;
        const bool isObject = event == Event::object_start, isArray = event == Event::array_start;
        if (isObject) m_keys.clear();
        if (event == Event::key) checkKey(QString::fromStdString(parsed.get<std::string>()));
        if (!isObject && !isArray) return true;
        if (depth > 1)
            throw Failure(
                join(Text{31105, u"A táblázat egy értéke sem szöveg, sem szám, sem igaz vagy hamis: "},
                     isObject ? QStringLiteral("{...}") : QStringLiteral("[...]")));
        if (depth == 0 ? isObject : isArray) throw noRows();
        return true;
    }

private:
    void checkKey(const QString &key)
    {
        if (m_keys.contains(key))
            throw Failure(join(Text{31126, u"Egy oszlopnév többször szerepel: "}, key));
        m_keys.insert(key);
    }
    QSet<QString> m_keys; ///< of the object that is being read
};

Json parsed(const QByteArray &json)
{
    try {
        Shape shape;
        return Json::parse(json.begin(), json.end(), std::ref(shape));
    } catch (const Json::out_of_range &e) { // names the number in quotes
        throw Failure(join(Text{31129, u"A JSON-fájl egy száma túl nagy: "},
                           QString::fromUtf8(e.what()).section(u'\'', 1, 1)));
    } catch (const Json::parse_error &e) {
        throw Failure(join(Text{31106, u"Hibás JSON. Hely (bájt): "}, int(e.byte)));
    }
}

} // namespace

QByteArray jsonOf(const std::vector<Table> &tables)
{
    Json all = Json::array();
    for (const Table &table : tables) {
        checkNames(table.columns);
        for (const auto &cells : table.rows) {
            Json row = Json::object();
            if (!table.name.isEmpty()) row["table"] = table.name.toStdString();
            for (size_t c = 0; c < cells.size(); ++c)
                row[table.columns[qsizetype(c)].toStdString()] = jsonOf(cells[c]);
            all.push_back(std::move(row));
        }
    }
    return QByteArray::fromStdString(all.dump(1)) + '\n';
}

Table tableOfJson(const QByteArray &json)
{
    const Json all = parsed(json);
    if (!all.is_array()) throw noRows();
    Table table;
    QHash<QString, size_t> places;
    for (const Json &object : all) {
        if (!object.is_object()) throw noRows();
        auto &row = table.rows.emplace_back();
        for (const auto &[key, value] : object.items()) {
            const QString column = QString::fromStdString(key);
            if (!places.contains(column)) {
                places.insert(column, size_t(table.columns.size()));
                table.columns << column;
                checkSize(table.rows.size(), size_t(table.columns.size()));
            }
            row.resize(std::max(row.size(), places.value(column) + 1));
            row[places.value(column)] = cellOf(value);
        }
    }
    checkSize(table.rows.size(), size_t(table.columns.size()));
    for (auto &row : table.rows) row.resize(size_t(table.columns.size()));
    return table;
}

} // namespace qvres
