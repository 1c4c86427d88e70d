#include "kit/grid/GridInput.h"

#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/LineView.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

namespace QV_DOC_CONTROLS {

void GridInput::watch(LineView &view)
{
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    m_views.push_back(&view);
    connect(static_cast<GridDelegate *>(view.itemDelegate()), &GridDelegate::choiceAsked, &m_model,
            &GridModel::choose);
}

void GridInput::watch(QHeaderView &header)
{
    header.viewport()->installEventFilter(this);
    m_header = &header;
}

bool GridInput::eventFilter(QObject *watched, QEvent *event)
{
    if (m_header && watched == m_header->viewport()) {
        if (event->type() != QEvent::ContextMenu) return false;
        const auto &menu = static_cast<const QContextMenuEvent &>(*event);
        emit contextMenuAsked(-1, m_header->logicalIndexAt(menu.pos()), menu.globalPos());
        return true;
    }
    const auto over = std::ranges::find_if(
        m_views, [&](const LineView *view) { return watched == view || watched == view->viewport(); });
    if (over == m_views.end() || !m_model.source()) return false;
    LineView &view = **over;
    const bool onViewport = watched == view.viewport();
    switch (event->type()) {
    case QEvent::KeyPress: return !onViewport && isKeyTaken(view, static_cast<const QKeyEvent &>(*event));
    case QEvent::ContextMenu: return askForMenu(view, static_cast<const QContextMenuEvent &>(*event));
    case QEvent::MouseButtonPress:
        return onViewport && isBandPressed(view, static_cast<const QMouseEvent &>(*event), false);
    case QEvent::MouseButtonDblClick:
        rememberCheckMark(view, static_cast<const QMouseEvent &>(*event).position().toPoint());
        return onViewport && isBandPressed(view, static_cast<const QMouseEvent &>(*event), true);
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop: return onViewport && isDropTaken(view, *event);
    default: return false;
    }
}

bool GridInput::isKeyTaken(LineView &view, const QKeyEvent &event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier && event.key() == Qt::Key_Down) return isChoiceOpened(view);
    if (modifiers == Qt::ShiftModifier && event.key() == Qt::Key_F10) // not every desktop makes a menu of it
        return askForMenu(view, {QContextMenuEvent::Keyboard, QPoint(), QPoint()});
    if (modifiers != Qt::NoModifier) return false;
    if (event.key() == Qt::Key_Delete) return emit deleteAsked(), true;
    if (event.key() == Qt::Key_Escape) {
        bool taken = false;
        emit escaped(taken);
        return taken;
    }
    return isBandKeyTaken(view, event.key());
}

/// On a band: Left closes it or goes to the one over it, Right opens it, Space and Enter turn it.
bool GridInput::isBandKeyTaken(LineView &view, int key)
{
    const QModelIndex now = view.currentIndex();
    const int b = m_model.bandOf(now);
    if (b < 0) return false;
    const RowEngine::Band &band = m_model.engine().band(b);
    const bool turn = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool close = key == Qt::Key_Left || key == Qt::Key_Minus,
               open = key == Qt::Key_Right || key == Qt::Key_Plus;
    if (!turn && !close && !open) return false;
    if (turn || (band.expanded ? close : open)) emit bandToggled(b);
    else if (key == Qt::Key_Left && band.parent >= 0)
        view.setCurrentIndex(m_model.index(m_model.engine().lineOfBand(band.parent), now.column()));
    else if (key == Qt::Key_Right) view.setCurrentIndex(m_model.index(now.row() + 1, now.column()));
    return true;
}

/// A list drops down, a colour is asked for.
bool GridInput::isChoiceOpened(LineView &view)
{
    const QModelIndex now = view.currentIndex();
    if (!(now.flags() & Qt::ItemIsEditable)) return false;
    const GridColumn &column = *m_model.column(now.column());
    if (column.asks) return m_model.choose(now), true;
    if (column.kind != CellKind::List) return false;
    view.edit(now);
    if (auto *const list = view.viewport()->findChild<QComboBox *>()) list->showPopup();
    return true;
}

bool GridInput::isBandPressed(LineView &view, const QMouseEvent &event, bool doubleClick)
{
    const QPoint at = event.position().toPoint();
    const QModelIndex index = view.indexAt(at);
    const int band = m_model.bandOf(index);
    if (band < 0 || event.button() != Qt::LeftButton) return false;
    if (!doubleClick && !view.isOnBandMark(index, at)) return false;
    emit bandToggled(band);
    return true;
}

void GridInput::rememberCheckMark(const LineView &view, QPoint at)
{
    m_onCheckMark = view.isOnCheckMark(view.indexAt(at), at);
}

bool GridInput::askForMenu(LineView &view, const QContextMenuEvent &event)
{
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    QPoint global = event.globalPos();
    if (byKey) global = view.viewport()->mapToGlobal(view.visualRect(view.currentIndex()).center());
    const QModelIndex index =
        byKey ? view.currentIndex() : view.indexAt(view.viewport()->mapFromGlobal(global));
    const int band = m_model.bandOf(index);
    const int level = band < 0 ? -1 : m_model.engine().band(band).level;
    const int column = level < 0 ? index.column() : m_model.engine().groupLevels()[size_t(level)].column;
    emit contextMenuAsked(m_model.sourceRow(index), column, global);
    return true;
}

DropTarget GridInput::targetAt(const QModelIndex &index) const
{
    const int band = m_model.bandOf(index);
    if (band < 0) return {m_model.sourceRow(index), -1, -1};
    const RowEngine &engine = m_model.engine();
    return {-1, engine.groupLevels()[size_t(engine.band(band).level)].column, engine.firstRowOf(band)};
}

bool GridInput::isDropTaken(LineView &view, QEvent &event)
{
    if (event.type() == QEvent::DragLeave) return view.setDropLine(-1, nullptr), true;
    auto &drop = static_cast<QDropEvent &>(event);
    const QModelIndex index = view.indexAt(drop.position().toPoint());
    const DropTarget target = targetAt(index);
    auto *const source = const_cast<GridSource *>(m_model.source());
    const bool takes = drop.mimeData() && source->canDrop(*drop.mimeData(), target);
    const bool done = event.type() == QEvent::Drop;
    view.setDropLine(takes && !done ? index.row() : -1,
                     done ? nullptr : static_cast<QDragMoveEvent *>(&event));
    if (takes) drop.acceptProposedAction();
    else drop.ignore();
    if (takes && done) source->drop(*drop.mimeData(), target);
    return true;
}

} // namespace QV_DOC_CONTROLS
