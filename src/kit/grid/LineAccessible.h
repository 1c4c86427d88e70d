#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QModelIndex>

namespace QV_DOC_CONTROLS {

class LineView;

/// A view of lines for a screen reader: a table of lines by columns, the column headers first where it has
/// any. Bands are cells that can be expanded.
class LineAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    static void install(); ///< makes it the interface of every LineView; more than once is once
    static void tell(LineView &view, QAccessible::Event what, const QModelIndex &at); ///< whoever listens
    explicit LineAccessible(LineView &view);
    ~LineAccessible() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return headers() + rowCount() * columnCount(); }
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    QAccessibleInterface *cellAt(int row, int column) const override;
    int rowCount() const override;
    int columnCount() const override;
    QString rowDescription(int row) const override;
    QString columnDescription(int column) const override;
    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    int selectedCellCount() const override { return int(selectedCells().size()); }
    QList<QAccessibleInterface *> selectedCells() const override;
    int selectedRowCount() const override { return int(selectedRows().size()); }
    QList<int> selectedRows() const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool unselectRow(int row) override;
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override { forgetPieces(); }

private:
    int headers() const;                        ///< children before the cells
    void forgetPieces();
    LineView &m_view;
    mutable QHash<int, QAccessible::Id> m_pieces; ///< headers and cells, by child index
};

} // namespace QV_DOC_CONTROLS
