#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace QV_DOC_CONTROLS {

class GridCards;

/// Cards for a screen reader: a table of lines by columns, as the table view is one.
class CardsAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    static void install(); ///< makes it the interface of every GridCards; more than once is once
    explicit CardsAccessible(GridCards &cards);
    ~CardsAccessible() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return rowCount() * columnCount(); }
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
    void modelChange(QAccessibleTableModelChangeEvent *) override { forgetCells(); }

private:
    void forgetCells();
    GridCards &m_cards;
    mutable QHash<int, QAccessible::Id> m_cells; ///< by child index
};

} // namespace QV_DOC_CONTROLS
