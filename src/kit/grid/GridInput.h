#pragma once

#include "kit/grid/GridSource.h"

#include <QObject>
#include <QPoint>

class QContextMenuEvent;
class QDropEvent;
class QHeaderView;
class QKeyEvent;
class QMouseEvent;

namespace QV_DOC_CONTROLS {

class GridModel;
class LineView;

/// Keys, clicks on bands, context menus and drops of a grid's views; what follows from them is the grid's.
class GridInput final : public QObject {
    Q_OBJECT
public:
    GridInput(GridModel &model, QObject *parent) : QObject(parent), m_model(model) {}
    void watch(LineView &view);
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
    bool isKeyTaken(LineView &view, const QKeyEvent &event);
    bool isBandKeyTaken(LineView &view, int key);
    bool isChoiceOpened(LineView &view);
    bool isBandPressed(LineView &view, const QMouseEvent &event, bool doubleClick);
    void rememberCheckMark(const LineView &view, QPoint at);
    bool askForMenu(LineView &view, const QContextMenuEvent &event);
    bool isDropTaken(LineView &view, QEvent &event);
    DropTarget targetAt(const QModelIndex &index) const;
    GridModel &m_model;
    std::vector<LineView *> m_views;
    QHeaderView *m_header = nullptr;
    bool m_onCheckMark = false;
};

} // namespace QV_DOC_CONTROLS
