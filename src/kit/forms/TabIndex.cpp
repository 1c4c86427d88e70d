#include "kit/forms/TabIndex.h"

#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace QV_DOC_CONTROLS {
namespace {

/// The container's own child that the widget is or lies in.
QWidget *childWith(const QWidget &container, QWidget *widget)
{
    while (widget && widget->parentWidget() != &container)
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return widget;
}

std::vector<QWidget *> inTabOrder(const QWidget &container)
{
    std::vector<QWidget *> order;
    QWidget *const window = container.window();
    for (QWidget *w = window->nextInFocusChain(); w != window; w = w->nextInFocusChain()) {
        QWidget *const child = w->focusPolicy() & Qt::TabFocus ? childWith(container, w) : nullptr;
        if (child && std::ranges::find(order, child) == order.end()) order.push_back(child);
    }
    return order;
}

} // namespace

QWidget *siblingAt(const QWidget &control, int tabIndex)
{
    const QWidget *const container = control.parentWidget();
    if (!container || tabIndex < 0) return nullptr;
    for (QObject *child : container->children()) {
        const QVariant own = child->isWidgetType() ? child->property("TabIndex") : QVariant();
        if (own.isValid() && own.toInt() == tabIndex) return static_cast<QWidget *>(child);
    }
    std::vector<QWidget *> order = inTabOrder(*container);
    std::erase_if(order, [n = 0, tabIndex](const QWidget *w) mutable {
        return n++ != tabIndex || w->property("TabIndex").isValid();
    });
    return order.empty() ? nullptr : order.front();
}

} // namespace QV_DOC_CONTROLS
