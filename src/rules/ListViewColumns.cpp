#include "rules/ListViewColumns.h"

#include "facade/contract/HostServices.h"

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

const QString kSection = QStringLiteral("Settings");
constexpr int kMostColumns = 1000;      ///< a damaged count must not keep the user waiting
constexpr double kWidest = 144000;      ///< twips, 100 inches

// Names of the stored values.
QString countKey(const QString &key) { return QStringLiteral("ColumnCount") + key; }
QString viewModeKey(const QString &key) { return QStringLiteral("ViewMode") + key; }
QString widthKey(const QString &key, int number) { return key + QString::number(number); }
QString captionKey(const QString &key, int number)
{
    return QStringLiteral("Text") + key + QString::number(number);
}

/// A stored number; nothing when the text is none.
std::optional<int> numberFrom(const QString &text, double most)
{
    bool isNumber = false;
    const double n = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(n) || n < 0) return {};
    return int(std::lround(std::min(n, most)));
}

} // namespace

void saveListViewColumns(ZolWDoc::SettingsStore &store, const QString &application, const QString &key,
                         const ListViewColumns &list)
{
    if (application.isEmpty()) return;
    const int before =
        numberFrom(store.read(application, kSection, countKey(key), {}), kMostColumns).value_or(0);
    for (int n = int(list.columns.size()) + 1; n <= before; ++n) { // the others are written over
        store.remove(application, kSection, widthKey(key, n));
        store.remove(application, kSection, captionKey(key, n));
    }
    store.write(application, kSection, countKey(key), QString::number(list.columns.size()));
    store.write(application, kSection, viewModeKey(key), QString::number(list.viewMode));
    int n = 0;
    for (const auto &column : list.columns) {
        ++n;
        store.write(application, kSection, widthKey(key, n), QString::number(column.width));
        store.write(application, kSection, captionKey(key, n), column.caption);
    }
}

void loadListViewColumns(const ZolWDoc::SettingsStore &store, const QString &application, const QString &key,
                         ListViewColumns &list)
{
    if (application.isEmpty() || store.read(application, kSection, countKey(key), {}).isEmpty()) return;
    int n = 0;
    for (auto &column : list.columns) {
        ++n;
        const auto width = numberFrom(store.read(application, kSection, widthKey(key, n), {}), kWidest);
        if (width && store.read(application, kSection, captionKey(key, n), {}) == column.caption)
            column.width = *width;
    }
}

} // namespace QV_DOC_CONTROLS
