#pragma once

#include "kit/grid/GridSource.h"

#include <QObject>
#include <QPoint>

#include <functional>

class QAbstractItemView;
class QContextMenuEvent;
class QDropEvent;
class QHeaderView;
class QKeyEvent;
class QMouseEvent;

namespace QV_DOC_CONTROLS {

class GridDelegate;
class GridModel;

/// Keys, clicks on bands, context menus and drops of a grid's views; what follows from them is the grid's.
class GridInput final : public QObject {
    Q_OBJECT
public:
    GridInput(GridModel &model, GridDelegate &delegate, QObject *parent);
    void watch(QAbstractItemView &view, std::function<void(int line)> markDrop);
    void watch(QHeaderView &header);
    bool wasOnCheckMark() const { return m_onCheckMark; } ///< the last double click

signals:
    void bandToggled(int band);
    void deleteAsked();
    void escaped(bool &taken);
    void contextMenuAsked(int row, int column, QPoint global);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Watched { QAbstractItemView *view; std::function<void(int)> markDrop; };
    bool isKeyTaken(QAbstractItemView &view, const QKeyEvent &event);
    bool isBandKeyTaken(QAbstractItemView &view, int key);
    bool isListOpened(QAbstractItemView &view);
    bool isBandPressed(QAbstractItemView &view, const QMouseEvent &event, bool doubleClick);
    bool isOnCheckMark(const QAbstractItemView &view, QPoint at) const;
    bool askForMenu(QAbstractItemView &view, const QContextMenuEvent &event);
    bool isDropTaken(const Watched &over, QEvent &event);
    DropTarget targetAt(const QModelIndex &index) const;
    GridModel &m_model;
    GridDelegate &m_delegate;
    std::vector<Watched> m_views;
    QHeaderView *m_header = nullptr;
    bool m_onCheckMark = false;
};

} // namespace QV_DOC_CONTROLS
