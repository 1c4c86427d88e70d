#include "kit/tools/ToolBand.h"

#include <QActionEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

namespace QV_DOC_CONTROLS {

ToolBand::ToolBand(QWidget *parent) : QToolBar(parent)
{
    setMovable(false);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize({side, side});
}

std::vector<QWidget *> ToolBand::usable() const
{
    std::vector<QWidget *> out;
    for (QAction *action : actions())
        if (auto *button = qobject_cast<QToolButton *>(widgetForAction(action));
            button && action->isEnabled())
            if (action->isVisible()) out.push_back(button);
    return out;
}

void ToolBand::actionEvent(QActionEvent *event)
{
    QToolBar::actionEvent(event);
    if (event->type() == QEvent::ActionAdded)
        if (auto *const button = qobject_cast<QToolButton *>(widgetForAction(event->action()))) {
            button->installEventFilter(this);
            if (event->action()->menu()) button->setPopupMode(QToolButton::InstantPopup);
        }
    placeTabStop();
}

void ToolBand::placeTabStop()
{
    bool first = true;                          // a click leaves the focus where it is, in the table
    for (QWidget *button : usable())
        button->setFocusPolicy(std::exchange(first, false) ? Qt::TabFocus : Qt::NoFocus);
}

bool ToolBand::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) return QToolBar::eventFilter(watched, event);
    const auto tools = usable();
    const auto at = std::ranges::find(tools, watched);
    const int last = int(tools.size()) - 1;
    int to = int(at - tools.begin());
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left: to -= layoutDirection() == Qt::LeftToRight ? 1 : -1; break;
    case Qt::Key_Right: to += layoutDirection() == Qt::LeftToRight ? 1 : -1; break;
    case Qt::Key_Home: to = 0; break;
    case Qt::Key_End: to = last; break;
    default: return QToolBar::eventFilter(watched, event);
    }
    if (last >= 0) tools[size_t(std::clamp(to, 0, last))]->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace QV_DOC_CONTROLS
