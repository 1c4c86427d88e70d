#pragma once

#include "kit/grid/SampleRows.h"

#include "kit/grid/Grid.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/GroupBox.h"

#include "support/QtClasses.h"

namespace tests {

/// A grid as a dialog shows it.
struct Shown {
    SampleRows rows{{"alma", "körte", "barack", "szilva", "alma 10", "alma 9"}};
    QDialog dialog;
    Grid grid{&dialog};
    GridTable &table = *grid.findChild<GridTable *>();

    Shown()
    {
        for (int i = 0; i < rows.rowCount(); ++i)
            rows.all[size_t(i)].kind = i % 3, rows.all[size_t(i)].visible = i % 2;
        (new QVBoxLayout(&dialog))->addWidget(&grid);
        grid.setSource(&rows);
        grid.setMultiSelection(true);
        grid.setAllowEdit(true);
        dialog.resize(800, 500);
        dialog.show();
        dialog.activateWindow();
        QApplication::setActiveWindow(&dialog);
        grid.activeView()->setFocus();
    }
    QModelIndex cell(int line, int column) const { return table.model()->index(line, column); }
    QString lines() const { return linesOf(*table.model(), SampleRows::Name); }
    void key(Qt::Key k, Qt::KeyboardModifiers m = {}) { QTest::keyClick(QApplication::focusWidget(), k, m); }
    void goTo(int line, int column) { grid.activeView()->setCurrentIndex(cell(line, column)); }
    void group(std::initializer_list<SortKey> levels) { grid.setGroupLevels(std::vector<SortKey>(levels)); }
    void click(const QModelIndex &at, Qt::KeyboardModifiers m = {})
    {
        QTest::mouseClick(grid.activeView()->viewport(), Qt::LeftButton, m,
                          grid.activeView()->visualRect(at).center());
    }
    QPoint header(int column) const
    {
        const QHeaderView &h = *table.header();
        return {h.sectionViewportPosition(column) + h.sectionSize(column) / 2, h.height() / 2};
    }
    void clickHeader(int column, Qt::KeyboardModifiers m = {})
    {
        QTest::mouseClick(table.header()->viewport(), Qt::LeftButton, m, header(column));
    }
    /// Drags with the mouse only, from one widget to a place on another.
    static void drag(QWidget &from, QPoint start, QWidget &to, QPoint end)
    {
        const QPoint target = from.mapFromGlobal(to.mapToGlobal(end));
        QTest::mousePress(&from, Qt::LeftButton, {}, start);
        for (int i = 1; i <= 4; ++i) {
            const QPoint at = start + (target - start) * i / 4;
            QMouseEvent move(QEvent::MouseMove, at, from.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&from, &move);
        }
        QTest::mouseRelease(&from, Qt::LeftButton, {}, target);
    }
    GroupBox &box() { return *grid.findChild<GroupBox *>(); }
    QList<GroupChip *> chips()
    {
        QList<GroupChip *> all = box().findChildren<GroupChip *>();
        all.removeIf([](GroupChip *chip) { return chip->isHidden(); });
        return all;
    }
};

} // namespace tests
