#include "grids/frame/GroupRows.h"

#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

void GroupRows::readCaptions()
{
    m_columns = {{QStringLiteral("GroupName"), txt(Text{2834, u"Név"}), {}, CellKind::Text, false, 0}};
}

QString GroupRows::text(int row, int) const
{
    return row == 0 ? txt(Text{3235, u"MIND"}) : m_groups[size_t(row - 1)].GroupName;
}

bool GroupRows::edit(int, int, const QVariant &) { return false; } // groups are renamed by command

} // namespace QV_DOC_CONTROLS
