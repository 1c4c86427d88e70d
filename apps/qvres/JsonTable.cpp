#include "qvres/JsonTable.h"

#include "facade/services/Text.h"

#include <nlohmann/json.hpp>

#include <QHash>

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
    const qint64 whole = cell.text.toLongLong(&isWhole);
    return isWhole ? Json(whole) : Json(cell.text.toDouble());
}

Cell cellOf(const Json &value)
{
    if (value.is_null()) return {};
    if (value.is_boolean()) return Cell::ofBoolean(value.get<bool>());
    if (value.is_string()) return Cell::ofText(QString::fromStdString(value.get<std::string>()));
    if (value.is_number()) return Cell::ofNumber(QString::fromStdString(value.dump()));
    throw Failure(join(Text{31105, u"A táblázat egy értéke sem szöveg, sem szám, sem igaz vagy hamis: "},
                       QString::fromStdString(value.dump())));
}

Json parsed(const QByteArray &json)
{
    try {
        return Json::parse(json.begin(), json.end());
    } catch (const Json::parse_error &e) {
        throw Failure(join(Text{31106, u"Hibás JSON. Hely (bájt): "}, int(e.byte)));
    }
}

} // namespace

QByteArray jsonOf(const std::vector<Table> &tables)
{
    Json all = Json::array();
    for (const Table &table : tables)
        for (const auto &cells : table.rows) {
            Json row = Json::object();
            if (!table.name.isEmpty()) row["table"] = table.name.toStdString();
            for (size_t c = 0; c < cells.size(); ++c)
                row[table.columns[qsizetype(c)].toStdString()] = jsonOf(cells[c]);
            all.push_back(std::move(row));
        }
    return QByteArray::fromStdString(all.dump(1)) + '\n';
}

Table tableOfJson(const QByteArray &json)
{
    const Json all = parsed(json);
    if (!all.is_array()) throw Failure(txt(Text{31107, u"A JSON-fájl nem sorok tömbje."}));
    Table table;
    QHash<QString, size_t> places;
    for (const Json &object : all) {
        if (!object.is_object()) throw Failure(txt(Text{31107, u"A JSON-fájl nem sorok tömbje."}));
        auto &row = table.rows.emplace_back();
        for (const auto &[key, value] : object.items()) {
            const QString column = QString::fromStdString(key);
            if (!places.contains(column)) {
                places.insert(column, size_t(table.columns.size()));
                table.columns << column;
            }
            row.resize(std::max(row.size(), places.value(column) + 1));
            row[places.value(column)] = cellOf(value);
        }
    }
    for (auto &row : table.rows) row.resize(size_t(table.columns.size()));
    return table;
}

} // namespace qvres
