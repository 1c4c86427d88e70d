#include "kit/grid/GridModel.h"

#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

void GridModel::setSource(const GridSource *source)
{
    beginResetModel();
    m_source = source;
    endResetModel();
}

void GridModel::refill()
{
    beginResetModel();
    endResetModel();
}

void GridModel::rowEdited(int row)
{
    if (row >= 0 && row < rowCount()) emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void GridModel::captionsChanged()
{
    if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int GridModel::rowWithId(qint64 id) const
{
    for (int r = 0; m_source && r < m_source->rowCount(); ++r)
        if (m_source->rowId(r) == id) return r;
    return -1;
}

const GridColumn *GridModel::column(int c) const
{
    return m_source && c >= 0 && c < int(m_source->columns().size()) ? &m_source->columns()[size_t(c)] : nullptr;
}

GridStyle GridModel::styleOf(const QModelIndex &index) const
{
    if (!m_source || !index.isValid()) return {};
    const RowStyles names = m_source->styles(index.row());
    GridStyle style = m_styles.find(names.row);
    if (const auto own = names.cells.constFind(index.column()); own != names.cells.constEnd()) {
        const GridStyle cell = m_styles.find(*own);
        if (cell.background.isValid()) style.background = cell.background, style.grayed = false;
        if (cell.text.isValid()) style.text = cell.text;
    }
    return style;
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_source ? 0 : m_source->rowCount();
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_source ? 0 : int(m_source->columns().size());
}

QVariant GridModel::accessibleText(const QModelIndex &index) const
{
    const GridColumn &c = *column(index.column());
    const QString text = m_source->text(index.row(), index.column());
    if (c.kind == CellKind::Check)
        return c.caption + u' ' + (m_source->value(index.row(), index.column()).toBool()
                                       ? txt(Text{20176, u"bekapcsolva"}) : txt(Text{20177, u"kikapcsolva"}));
    if (c.kind == CellKind::Color) return join(Text{20175, u"szín "}, text);
    return text;
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    const GridColumn *c = m_source && index.isValid() ? column(index.column()) : nullptr;
    if (!c) return {};
    switch (role) {
    case Qt::DisplayRole:
        return c->kind == CellKind::Check ? QVariant() : m_source->text(index.row(), index.column());
    case Qt::EditRole: return m_source->value(index.row(), index.column());
    case Qt::CheckStateRole:
        if (c->kind != CellKind::Check) return {};
        return m_source->value(index.row(), index.column()).toBool() ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole: return tooltips ? m_source->text(index.row(), index.column()) : QVariant();
    case Qt::TextAlignmentRole:
        return c->kind == CellKind::Number || c->kind == CellKind::Color
            ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::AccessibleTextRole: return accessibleText(index);
    default: return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const GridColumn *c = orientation == Qt::Horizontal ? column(section) : nullptr;
    if (!c) return {};
    if (role == Qt::DisplayRole) return c->caption;
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return c->longCaption.isEmpty() ? c->caption : c->longCaption;
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    const GridColumn *c = column(index.column());
    if (!index.isValid() || !c) return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_writable && c->editable) flags |= c->kind == CellKind::Check ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const GridColumn *c = column(index.column());
    if (!m_writable || !c || !c->editable) return false;
    if (role != (c->kind == CellKind::Check ? int(Qt::CheckStateRole) : int(Qt::EditRole))) return false;
    const QVariant edited = c->kind == CellKind::Check ? QVariant(value.toInt() == Qt::Checked) : value;
    if (!m_writable->edit(index.row(), index.column(), edited)) return false;
    rowEdited(index.row());
    return true;
}

} // namespace QV_DOC_CONTROLS
