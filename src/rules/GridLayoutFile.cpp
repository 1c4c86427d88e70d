#include "rules/GridLayoutFile.h"

#include "facade/services/Services.h"
#include "rules/WholeFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace QV_DOC_CONTROLS {
namespace {

constexpr auto kForm = QLatin1String("qv-doc-controls grid layout");
constexpr int kVersion = 1;
constexpr qint64 kMostBytes = 256 * 1024;       ///< a layout of 50 columns has about 4 KB
constexpr int kWidest = 144000;                 ///< twips, 100 inches
constexpr int kMostLevels = 4;
constexpr int kLastView = 2;

constexpr auto kFormName = QLatin1String("form"), kVersionName = QLatin1String("version"),
               kTableName = QLatin1String("table"), kViewName = QLatin1String("view"),
               kColumnsName = QLatin1String("columns"), kSortName = QLatin1String("sort"),
               kGroupsName = QLatin1String("groups"), kKeyName = QLatin1String("key"),
               kWidthName = QLatin1String("width"), kVisibleName = QLatin1String("visible"),
               kDescendingName = QLatin1String("descending");

QJsonArray arrayOf(const std::vector<GridState::Level> &levels)
{
    QJsonArray out;
    for (const auto &l : levels) out << QJsonObject{{kKeyName, l.key}, {kDescendingName, l.descending}};
    return out;
}

/// A whole number of 0..most; nothing for any other value.
std::optional<int> numberFrom(const QJsonValue &value, int most)
{
    const int n = value.toInt(-1); // also -1 for what is no whole number
    return n < 0 || n > most ? std::nullopt : std::optional(n);
}

std::optional<GridState::Column> columnFrom(const QJsonObject &row)
{
    const QString key = row[kKeyName].toString();
    const auto width = numberFrom(row[kWidthName], kWidest);
    if (key.isEmpty() || !width || !row[kVisibleName].isBool()) return {};
    return GridState::Column{key, *width, row[kVisibleName].toBool()};
}

std::optional<GridState::Level> levelFrom(const QJsonObject &row)
{
    const QString key = row[kKeyName].toString();
    if (key.isEmpty() || !row[kDescendingName].isBool()) return {};
    return GridState::Level{key, row[kDescendingName].toBool()};
}

/// Every entry of an array; nothing when it is no array, one entry is damaged or a key comes twice.
template <class Entry> std::optional<std::vector<Entry>>
entriesFrom(const QJsonValue &value, std::optional<Entry> (*read)(const QJsonObject &))
{
    if (!value.isArray()) return {};
    std::vector<Entry> out;
    QSet<QString> keys;
    const QJsonArray rows = value.toArray();
    for (const QJsonValue &row : rows) {
        auto entry = read(row.toObject());
        if (!entry || keys.contains(entry->key)) return {};
        keys.insert(entry->key);
        out.push_back(std::move(*entry));
    }
    return out;
}

bool isOurs(const QJsonObject &root, const QString &table)
{
    const auto version = numberFrom(root[kVersionName], kVersion);
    return root[kFormName].toString() == kForm && version && *version >= 1
           && root[kTableName].toString() == table;
}

/// Columns that the file does not know follow the column that stands before them in the built-in order.
void addMissing(std::vector<GridState::Column> &columns, std::span<const GridState::Column> builtIn)
{
    auto place = columns.begin();
    for (const GridState::Column &own : builtIn) {
        const auto found = std::ranges::find(columns, own.key, &GridState::Column::key);
        place = (found != columns.end() ? found : columns.insert(place, own)) + 1;
    }
}

template <class Entry>
void dropUnknown(std::vector<Entry> &entries, std::span<const GridState::Column> builtIn)
{
    std::erase_if(entries, [&](const Entry &e) {
        return std::ranges::find(builtIn, e.key, &GridState::Column::key) == builtIn.end();
    });
}

} // namespace

QByteArray layoutBytes(const QString &table, const GridState &state)
{
    QJsonArray columns;
    for (const auto &c : state.columns)
        columns << QJsonObject{{kKeyName, c.key}, {kWidthName, c.width}, {kVisibleName, c.visible}};
    const QJsonObject root{{kFormName, kForm},
                           {kVersionName, kVersion},
                           {kTableName, table},
                           {kViewName, state.view},
                           {kColumnsName, columns},
                           {kSortName, arrayOf(state.sort)},
                           {kGroupsName, arrayOf(state.groups)}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

std::optional<GridState> layoutFrom(const QByteArray &bytes, const QString &table,
                                    std::span<const GridState::Column> builtIn)
{
    if (bytes.size() > kMostBytes) return {};
    const QJsonObject root = QJsonDocument::fromJson(bytes).object(); // empty when damaged
    auto columns = entriesFrom(root[kColumnsName], &columnFrom);
    auto sort = entriesFrom(root[kSortName], &levelFrom);
    auto groups = entriesFrom(root[kGroupsName], &levelFrom);
    const auto view = numberFrom(root[kViewName], kLastView);
    if (!isOurs(root, table) || !columns || !sort || !groups || !view) return {};
    if (sort->size() > kMostLevels || groups->size() > kMostLevels) return {};

    GridState state{std::move(*columns), std::move(*sort), std::move(*groups), qint16(*view)};
    dropUnknown(state.columns, builtIn);
    dropUnknown(state.sort, builtIn);
    dropUnknown(state.groups, builtIn);
    addMissing(state.columns, builtIn);
    return state;
}

QString layoutFileName(const LayoutName &layout)
{
    return settingsFolder() + u'/' + QLatin1String(layout.table) + txt(layout.suffix) + QLatin1String(".jgl");
}

void saveLayout(const QString &path, const QString &table, const GridState &state)
{
    writeWhole(path, layoutBytes(table, state)); // an error is swallowed
}

std::optional<GridState> loadLayout(const QString &path, const QString &table,
                                    std::span<const GridState::Column> builtIn)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return layoutFrom(file.read(kMostBytes + 1), table, builtIn);
}

} // namespace QV_DOC_CONTROLS
