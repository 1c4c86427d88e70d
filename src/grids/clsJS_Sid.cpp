#include "grids/clsJS_Sid.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

clsJS_Sid::clsJS_Sid() : GroupedManager("clsJS_Sid")
{
    groupRows().setDrags(groupDrags());
    groupRows().setRenaming([this](qint16 group, const QString &name) { return renameInPlace(group, name); });
    groupRows().setRemoval([this] { deleteGroup(); });
}

clsJS_Sid::~clsJS_Sid() { TearDown(); }

void clsJS_Sid::readBeside(ZOLW_Doc &doc, std::vector<tSid> &all)
{
    GroupedManager::readBeside(doc, all);
    qint32 count = qint32(all.size());
    emit FillSample(count, all);
}

bool clsJS_Sid::fits(const tSid &symbol) const
{
    return chosenGroup() == GroupRows::kAll || symbol.GroupId == chosenGroup();
}

std::vector<qint16> clsJS_Sid::strayGroups(const std::vector<tGroup> &groups) const
{
    QSet<qint16> known;
    for (const tGroup &g : groups) known.insert(g.GroupId);
    std::vector<qint16> strays;
    for (const tSid &s : all()) {
        if (known.contains(s.GroupId)) continue;
        known.insert(s.GroupId);
        strays.push_back(s.GroupId);
    }
    return strays;
}

QPixmap clsJS_Sid::picture(int row, int) const { return m_sampler ? m_sampler(recordAt(row)) : QPixmap(); }

/// A number is changed by the host, which lets all that refers to it follow.
void clsJS_Sid::storeEdit(const tSid &now, const tSid &edited)
{
    if (edited.SidId == now.SidId) return GroupedManager::storeEdit(now, edited);
    doc().symbolRenumber()->renumber(now.SidId, edited.SidId);
}

bool clsJS_Sid::edit(int row, int column, const QVariant &value)
{
    const bool stored = GroupedManager::edit(row, column, value);
    if (stored && row < rowCount()) emit RefreshSample(recordAt(row)); // the host may have refilled
    return stored;
}

/// The delete key.
bool clsJS_Sid::removeRows(std::span<const int>)
{
    command([this] { m_removal.askOnly(); });
    return true;
}

QMimeData *clsJS_Sid::dragData(std::span<const int> rows) const
{
    std::vector<qint16> ids;
    for (const int row : rows) ids.push_back(qint16(rowId(row)));
    return ids.empty() ? nullptr : m_drag.data(ids);
}

GroupDrags clsJS_Sid::groupDrags()
{
    return {{},
            [this](const QMimeData &mime, qint16) { return canEditGroups() && m_drag.idsIn(mime); },
            [this](const QMimeData &mime, qint16 group) {
                command([&] { m_groups.moveRecords(*m_drag.idsIn(mime), group); });
            }};
}

bool clsJS_Sid::renameInPlace(qint16 group, const QString &name)
{
    return guardedOr(false, [&] {
        if (!m_groups.renameInPlace(group, name)) return false;
        groupRenamed(group, name);
        return true;
    });
}

void clsJS_Sid::raiseSelection(int count)
{
    qint32 selectedRows = count;
    emit SelectedChanched(selectedRows, currentRecord().value_or(tSid{}));
}

} // namespace QV_DOC_CONTROLS
