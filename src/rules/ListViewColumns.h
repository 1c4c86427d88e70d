#pragma once

#include <QString>

#include <vector>

namespace ZolWDoc {
struct SettingsStore;
}

namespace QV_DOC_CONTROLS {

/// A list view as its settings keep it.
struct ListViewColumns {
    struct Column {
        QString caption;
        int width = 0;                  ///< twips
        bool operator==(const Column &) const = default;
    };
    int viewMode = 0;                   ///< stored; loading leaves it alone
    std::vector<Column> columns;
    bool operator==(const ListViewColumns &) const = default;
};

/// Stores view mode, widths and captions under `key`; entries of columns that are no more are removed. An
/// empty application name does nothing.
void saveListViewColumns(ZolWDoc::SettingsStore &store, const QString &application, const QString &key,
                         const ListViewColumns &list);

/// Gives columns the stored width where the stored caption is still theirs, so that a column set in another
/// language or of other columns keeps its own widths.
void loadListViewColumns(const ZolWDoc::SettingsStore &store, const QString &application, const QString &key,
                         ListViewColumns &list);

} // namespace QV_DOC_CONTROLS
