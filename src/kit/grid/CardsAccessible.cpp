#include "kit/grid/CardsAccessible.h"

#include "kit/grid/GridCards.h"

#include <QPointer>

namespace QV_DOC_CONTROLS {
namespace {

/// What stands at a line and column now; it is asked for anew each time, so that it never speaks of another
/// row.
class CardCell final : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CardCell(GridCards &cards, int line, int column) : m_cards(&cards), m_line(line), m_column(column) {}
    QModelIndex at() const { return m_cards ? m_cards->model()->index(m_line, m_column) : QModelIndex(); }

    bool isValid() const override { return at().isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_cards->window()->windowHandle(); }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_cards); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QRect rect() const override
    {
        const QRect field = m_cards->visualRect(at());
        return {m_cards->viewport()->mapToGlobal(field.topLeft()), field.size()};
    }
    QString text(QAccessible::Text what) const override
    {
        if (what == QAccessible::Name) return at().data(Qt::AccessibleTextRole).toString();
        return what == QAccessible::Description ? at().data(Qt::AccessibleDescriptionRole).toString()
                                                : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QAccessible::State state() const override
    {
        QAccessible::State state;
        const Qt::ItemFlags flags = at().flags();
        state.invalid = !isValid();
        state.selectable = bool(flags & Qt::ItemIsSelectable);
        state.focusable = true;
        state.multiSelectable = m_cards->selectionMode() == QAbstractItemView::ExtendedSelection;
        state.focused = m_cards->hasFocus() && m_cards->currentIndex() == at();
        state.selected = m_cards->selectionModel()->isSelected(at());
        state.editable = bool(flags & Qt::ItemIsEditable);
        state.checkable = at().data(Qt::CheckStateRole).isValid();
        state.checked = at().data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface *>(this)
                                                       : nullptr;
    }
    bool isSelected() const override { return state().selected; }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_line; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

private:
    QPointer<GridCards> m_cards;
    int m_line, m_column;
};

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *const cards = qobject_cast<GridCards *>(object);
    return cards ? new CardsAccessible(*cards) : nullptr;
}

} // namespace

void CardsAccessible::install()
{
    static const bool once = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(once)
}

CardsAccessible::CardsAccessible(GridCards &cards)
    : QAccessibleWidget(&cards, QAccessible::Table), m_cards(cards)
{
}
CardsAccessible::~CardsAccessible() { forgetCells(); }

void CardsAccessible::forgetCells()
{
    for (const QAccessible::Id id : std::exchange(m_cells, {})) QAccessible::deleteAccessibleInterface(id);
}

void *CardsAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *CardsAccessible::child(int index) const
{
    if (index < 0 || index >= childCount()) return nullptr;
    if (const auto known = m_cells.constFind(index); known != m_cells.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto *const cell = new CardCell(m_cards, index / columnCount(), index % columnCount()); // the registry's
    m_cells.insert(index, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

QAccessibleInterface *CardsAccessible::childAt(int x, int y) const
{
    const QModelIndex at = m_cards.indexAt(m_cards.viewport()->mapFromGlobal(QPoint(x, y)));
    return at.isValid() ? cellAt(at.row(), at.column()) : nullptr;
}

QAccessibleInterface *CardsAccessible::focusChild() const
{
    const QModelIndex now = m_cards.currentIndex();
    return now.isValid() ? cellAt(now.row(), now.column()) : nullptr;
}

int CardsAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto found = std::find_if(m_cells.cbegin(), m_cells.cend(), [child](QAccessible::Id id) {
        return QAccessible::accessibleInterface(id) == child;
    });
    return found == m_cells.cend() ? -1 : found.key();
}

QAccessibleInterface *CardsAccessible::cellAt(int row, int column) const
{
    const bool isThere = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return isThere ? child(row * columnCount() + column) : nullptr;
}

int CardsAccessible::rowCount() const { return m_cards.model() ? m_cards.model()->rowCount() : 0; }
int CardsAccessible::columnCount() const { return m_cards.model() ? m_cards.model()->columnCount() : 0; }
QString CardsAccessible::rowDescription(int) const { return {}; }

QString CardsAccessible::columnDescription(int column) const
{
    return m_cards.model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

QList<QAccessibleInterface *> CardsAccessible::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const int row : selectedRows())
        for (int column = 0; column < columnCount(); ++column) cells << cellAt(row, column);
    return cells;
}

QList<int> CardsAccessible::selectedRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row)
        if (isRowSelected(row)) rows << row;
    return rows;
}

bool CardsAccessible::isRowSelected(int row) const
{
    return m_cards.selectionModel()->isSelected(m_cards.model()->index(row, 0));
}

bool CardsAccessible::selectRow(int row)
{
    const bool several = m_cards.selectionMode() == QAbstractItemView::ExtendedSelection;
    m_cards.selectionModel()->select(m_cards.model()->index(row, 0), QItemSelectionModel::Rows
        | (several ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect));
    return isRowSelected(row);
}

bool CardsAccessible::unselectRow(int row)
{
    m_cards.selectionModel()->select(m_cards.model()->index(row, 0),
                                     QItemSelectionModel::Rows | QItemSelectionModel::Deselect);
    return !isRowSelected(row);
}

} // namespace QV_DOC_CONTROLS
