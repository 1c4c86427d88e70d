#pragma once

#include <QString>

class QHeaderView;

namespace QV_DOC_CONTROLS {

/// Keeps the column widths of a list view in the settings, by caption, under `key` of `application`. Nothing
/// happens when the application name is empty; errors are swallowed.
void saveListViewColumns(const QHeaderView &header, const QString &key, const QString &application,
                         int viewMode);
void loadListViewColumns(QHeaderView &header, const QString &key, const QString &application);

} // namespace QV_DOC_CONTROLS
