#include "kit/forms/HeaderColumns.h"

#include "facade/services/Services.h"
#include "kit/forms/Twips.h"
#include "rules/ListViewColumns.h"

#include <QAbstractItemModel>
#include <QHeaderView>

namespace QV_DOC_CONTROLS {
namespace {

ListViewColumns columnsOf(const QHeaderView &header)
{
    ListViewColumns list;
    for (int i = 0; i < header.count(); ++i)
        list.columns.push_back({header.model()->headerData(i, header.orientation()).toString(),
                                twipsOf(header.sectionSize(i), header)});
    return list;
}

} // namespace

void saveListViewColumns(const QHeaderView &header, const QString &key, const QString &application,
                         int viewMode)
{
    ListViewColumns list = columnsOf(header);
    list.viewMode = viewMode;
    saveListViewColumns(settingsStore(), application, key, list);
}

void loadListViewColumns(QHeaderView &header, const QString &key, const QString &application)
{
    const ListViewColumns own = columnsOf(header);
    ListViewColumns list = own;
    loadListViewColumns(settingsStore(), application, key, list);
    for (int i = 0; i < header.count(); ++i) {
        const int width = list.columns[size_t(i)].width; // 0 = it was hidden
        if (width > 0 && width != own.columns[size_t(i)].width)
            header.resizeSection(i, pixelsOf(width, header));
    }
}

} // namespace QV_DOC_CONTROLS
