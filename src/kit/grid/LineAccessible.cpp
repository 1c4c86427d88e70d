#include "kit/grid/LineAccessible.h"

#include "facade/services/Text.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/LineView.h"

#include <QHeaderView>
#include <QPointer>

namespace QV_DOC_CONTROLS {
namespace {

const GridModel &modelOf(const LineView &view) { return static_cast<const GridModel &>(*view.model()); }

/// A part of a view that is no widget.
class Piece : public QAccessibleInterface {
public:
    Piece(LineView &view, int column) : m_view(&view), m_column(column) {}
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_view->window()->windowHandle(); }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}

protected:
    QPointer<LineView> m_view;
    int m_column;
};

/// Its description says how the rows are sorted by the column.
class HeaderPiece final : public Piece {
public:
    using Piece::Piece;
    QHeaderView &header() const { return *m_view->columnHeader(); }
    bool isValid() const override { return m_view && m_column < header().count(); }
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QRect rect() const override
    {
        const QPoint corner(header().sectionViewportPosition(m_column), 0);
        return {header().viewport()->mapToGlobal(corner),
                QSize(header().sectionSize(m_column), header().height())};
    }
    QString text(QAccessible::Text what) const override
    {
        if (what == QAccessible::Name)
            return m_view->model()->headerData(m_column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
        const std::vector<SortKey> &keys = modelOf(*m_view).engine().sortKeys();
        const auto key = std::ranges::find(keys, m_column, &SortKey::column);
        if (what != QAccessible::Description || key == keys.end()) return {};
        const QString rank = keys.size() > 1 ? QStringLiteral(" %1").arg(key - keys.begin() + 1) : QString();
        return join(key->order == SortOrder::Ascending ? Text{2805, u"növekvő"} : Text{2804, u"csökkenő"},
                    rank);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.invisible = isValid() && header().isSectionHidden(m_column);
        return state;
    }
};

/// What stands at a line and column now; it is asked for anew each time, so that it never speaks of another
/// row.
class CellPiece final : public Piece, public QAccessibleTableCellInterface {
public:
    CellPiece(LineView &view, int line, int column) : Piece(view, column), m_line(line) {}
    QModelIndex at() const { return m_view ? m_view->model()->index(m_line, m_column) : QModelIndex(); }

    bool isValid() const override { return at().isValid(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QRect rect() const override
    {
        const QRect field = m_view->visualRect(at());
        return field.isEmpty() ? QRect()
                               : QRect(m_view->viewport()->mapToGlobal(field.topLeft()), field.size());
    }
    QString text(QAccessible::Text what) const override
    {
        if (what == QAccessible::Name) return at().data(Qt::AccessibleTextRole).toString();
        return what == QAccessible::Description ? at().data(Qt::AccessibleDescriptionRole).toString()
                                                : QString();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid) return state;
        const QModelIndex cell = at();
        const Qt::ItemFlags flags = cell.flags();
        state.invisible = rect().isEmpty();
        state.selectable = bool(flags & Qt::ItemIsSelectable);
        state.focusable = true;
        state.multiSelectable = m_view->selectionMode() == QAbstractItemView::ExtendedSelection;
        state.focused = m_view->hasFocus() && m_view->currentIndex() == cell;
        state.selected = m_view->selectionModel()->isSelected(cell);
        state.editable = bool(flags & Qt::ItemIsEditable);
        state.checkable = cell.data(Qt::CheckStateRole).isValid();
        state.checked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        if (const int band = modelOf(*m_view).bandOf(cell); band >= 0) {
            const bool expanded = modelOf(*m_view).engine().band(band).expanded;
            state.expandable = true, state.expanded = expanded, state.collapsed = !expanded;
        }
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface *>(this)
                                                       : nullptr;
    }
    bool isSelected() const override { return state().selected; }
    QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        if (!m_view->columnHeader()) return {};
        return {parent()->child(m_column)};
    }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_line; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

private:
    int m_line;
};

QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *const view = qobject_cast<LineView *>(object);
    return view ? new LineAccessible(*view) : nullptr;
}

int headersOf(const LineView &view) { return view.columnHeader() ? view.model()->columnCount() : 0; }

} // namespace

void LineAccessible::install()
{
    static const bool once = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(once)
}

void LineAccessible::tell(LineView &view, QAccessible::Event what, const QModelIndex &at)
{
    if (!QAccessible::isActive() || !at.isValid()) return;
    QAccessibleEvent event(&view, what);
    event.setChild(headersOf(view) + at.row() * view.model()->columnCount() + at.column());
    QAccessible::updateAccessibility(&event);
}

LineAccessible::LineAccessible(LineView &view) : QAccessibleWidget(&view, QAccessible::Table), m_view(view) {}
LineAccessible::~LineAccessible() { forgetPieces(); }

int LineAccessible::headers() const { return headersOf(m_view); }

void LineAccessible::forgetPieces()
{
    for (const QAccessible::Id id : std::exchange(m_pieces, {})) QAccessible::deleteAccessibleInterface(id);
}

void *LineAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *LineAccessible::child(int index) const
{
    if (index < 0 || index >= childCount()) return nullptr;
    if (const auto known = m_pieces.constFind(index); known != m_pieces.constEnd())
        return QAccessible::accessibleInterface(*known);
    const int cell = index - headers(), columns = columnCount();
    Piece *piece = nullptr;                     // the registry's
    if (cell < 0) piece = new HeaderPiece(m_view, index);
    else piece = new CellPiece(m_view, cell / columns, cell % columns);
    m_pieces.insert(index, QAccessible::registerAccessibleInterface(piece));
    return piece;
}

QAccessibleInterface *LineAccessible::childAt(int x, int y) const
{
    if (const QHeaderView *header = m_view.columnHeader(); header && header->isVisible())
        if (const QPoint on = header->mapFromGlobal(QPoint(x, y)); header->rect().contains(on))
            return child(header->logicalIndexAt(on));
    const QModelIndex at = m_view.indexAt(m_view.viewport()->mapFromGlobal(QPoint(x, y)));
    return at.isValid() ? cellAt(at.row(), at.column()) : nullptr;
}

QAccessibleInterface *LineAccessible::focusChild() const
{
    const QModelIndex now = m_view.currentIndex();
    return now.isValid() ? cellAt(now.row(), now.column()) : nullptr;
}

int LineAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto found = std::find_if(m_pieces.cbegin(), m_pieces.cend(), [child](QAccessible::Id id) {
        return QAccessible::accessibleInterface(id) == child;
    });
    return found == m_pieces.cend() ? -1 : found.key();
}

QAccessibleInterface *LineAccessible::cellAt(int row, int column) const
{
    const bool isThere = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return isThere ? child(headers() + row * columnCount() + column) : nullptr;
}

int LineAccessible::rowCount() const { return m_view.model() ? m_view.model()->rowCount() : 0; }
int LineAccessible::columnCount() const { return m_view.model() ? m_view.model()->columnCount() : 0; }
QString LineAccessible::rowDescription(int) const { return {}; }

QString LineAccessible::columnDescription(int column) const
{
    return m_view.model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

QList<QAccessibleInterface *> LineAccessible::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const int row : selectedRows())
        for (int column = 0; column < columnCount(); ++column) cells << cellAt(row, column);
    return cells;
}

QList<int> LineAccessible::selectedRows() const
{
    QList<int> rows;
    for (const QItemSelectionRange &range : m_view.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            if (modelOf(m_view).engine().bandAt(row) < 0) rows << row;
    return rows;
}

bool LineAccessible::isRowSelected(int row) const
{
    return m_view.selectionModel()->isSelected(m_view.model()->index(row, 0));
}

bool LineAccessible::selectRow(int row)
{
    const bool several = m_view.selectionMode() == QAbstractItemView::ExtendedSelection;
    m_view.selectionModel()->select(m_view.model()->index(row, 0), QItemSelectionModel::Rows
        | (several ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect));
    return isRowSelected(row);
}

bool LineAccessible::unselectRow(int row)
{
    m_view.selectionModel()->select(m_view.model()->index(row, 0),
                                    QItemSelectionModel::Rows | QItemSelectionModel::Deselect);
    return !isRowSelected(row);
}

} // namespace QV_DOC_CONTROLS
