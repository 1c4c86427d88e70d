#pragma once

#include "dialogs/select/frmSetup.h"
#include "kit/grid/Grid.h"
#include "support/MenuWay.h"
#include "support/Modal.h"
#include "support/Typing.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QTest>

namespace tests {

/// Someone with a mouse and a keyboard before the layer page. What comes up on the way is answered as was
/// planned: keys, or "@" and the caption of the button that is clicked.
class Someone {
public:
    explicit Someone(QV_DOC_CONTROLS::frmSetup &dialog)
        : m_dialog(dialog), m_grid(child<QV_DOC_CONTROLS::Grid>(dialog, "gridItems")),
          m_groups(child<QV_DOC_CONTROLS::Grid>(dialog, "gridGroups"))
    {
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { answer(); });
        m_watch.start(0);
    }
    QStringList answers, surprises;

    void select(const std::vector<int> &numbers)
    {
        Qt::KeyboardModifiers held;
        for (const int nr : numbers) click(lineOf(nr), 0, std::exchange(held, Qt::ControlModifier));
    }
    /// A click on a cell of the line with that number; column by its place on the screen.
    void click(int line, int column, Qt::KeyboardModifiers held = {}) { clickIn(m_grid, line, column, held); }
    int lineOf(int nr) const
    {
        const QAbstractItemModel &rows = *m_grid.table()->model();
        for (int r = 0; r < rows.rowCount(); ++r)
            if (rows.index(r, 0).data().toInt() == nr) return r;
        return -1;
    }
    void chooseGroup(const QString &name)
    {
        const QAbstractItemModel &rows = *m_groups.table()->model();
        for (int r = 0; r < rows.rowCount(); ++r)
            if (rows.index(r, 0).data().toString() == name) return clickIn(m_groups, r, 0, {});
        surprises << QStringLiteral("no group ") + name;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        m_dialog.activateWindow();              // as the desktop does when a box has closed
        QTRY_VERIFY(m_dialog.isActiveWindow());
        QTest::keyClick(m_dialog.focusWidget() ? m_dialog.focusWidget() : &m_dialog, key, held);
    }
    void keys(const QString &text) { tests::type(m_dialog, text); }
    /// Into the current cell.
    void type(const QString &text)
    {
        press(Qt::Key_F2);
        tests::type(m_dialog, text + u'\r');

        QTRY_COMPARE(m_dialog.focusWidget(), m_grid.table()); // the editor has closed
    }
    /// A click on the menu bar, then by keys down to that tool.
    void menu(const char *tool)
    {
        if (!chooseInMenu(child<QMenuBar>(m_dialog, "mnuMain"), tool))
            surprises << QStringLiteral("cannot be clicked: ") + QLatin1String(tool);
    }

private:
    static void clickIn(QV_DOC_CONTROLS::Grid &grid, int line, int column, Qt::KeyboardModifiers held)
    {
        QAbstractItemView &view = *grid.table();
        const QModelIndex cell = view.model()->index(line, column);
        view.scrollTo(cell);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, held, view.visualRect(cell).center());
    }
    void answer()
    {
        QWidget *const box = QApplication::activeModalWidget();
        if (!box || box == &m_dialog || !box->isVisible()) return;
        if (!box->isActiveWindow()) return box->activateWindow();
        if (answers.isEmpty()) {
            surprises << box->windowTitle();
            return void(box->close());
        }
        const QString next = answers.takeFirst();
        if (!next.startsWith(u'@')) return tests::type(*box, next);
        for (auto *const b : box->findChildren<QAbstractButton *>())
            if (b->text().remove(u'&') == next.mid(1))
                return QTest::mouseClick(b, Qt::LeftButton, {}, {8, b->height() / 2});
        surprises << QStringLiteral("no button ") + next;
        box->close();
    }
    QV_DOC_CONTROLS::frmSetup &m_dialog;
    QV_DOC_CONTROLS::Grid &m_grid, &m_groups;
    QTimer m_watch;
};

} // namespace tests
