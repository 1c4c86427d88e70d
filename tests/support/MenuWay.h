#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace tests {

/// The entries of the menus that lead to that one; none = it is in none of them.
inline QList<QAction *> wayTo(const QString &tool, const QList<QAction *> &from)
{
    for (QAction *const a : from) {
        if (a->objectName() == tool) return {a};
        if (const auto rest = a->menu() ? wayTo(tool, a->menu()->actions()) : QList<QAction *>();
            !rest.isEmpty())
            return QList<QAction *>{a} + rest;
    }
    return {};
}

/// A click on the menu bar, then by keys down to that entry; false = nobody can choose it.
inline bool chooseInMenu(QMenuBar &bar, const char *tool)
{
    const auto way = wayTo(QLatin1String(tool), bar.actions());
    if (way.isEmpty() || !way.last()->isEnabled()) return false;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(way.first()).center());
    for (qsizetype i = 1; i < way.size(); ++i) {
        QMenu *const open = way[i - 1]->menu();
        if (!open->isVisible()) return false;
        for (auto n = open->actions().size(); n > 0 && open->activeAction() != way[i]; --n)
            QTest::keyClick(open, Qt::Key_Down); // a long menu does not fit the screen
        QTest::keyClick(open, Qt::Key_Return);
    }
    return true;
}

} // namespace tests
