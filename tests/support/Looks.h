#pragma once

#include "kit/forms/AccessKeys.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPalette>
#include <QStringList>

namespace tests {

inline QPalette darkPalette()
{
    QPalette p(QColor(0x2d, 0x2f, 0x33));
    p.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor(0x85, 0x88, 0x8c));
    p.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xc2));
    return p;
}

inline QString captionOf(const QWidget &w)
{
    if (const auto *b = qobject_cast<const QAbstractButton *>(&w)) return b->text();
    if (const auto *g = qobject_cast<const QGroupBox *>(&w)) return g->title();
    const auto *l = qobject_cast<const QLabel *>(&w);
    return l ? l->text() : QString();
}

/// Whether the widget has room for what it says.
inline bool hasRoom(const QWidget &w)
{
    if (const auto *list = qobject_cast<const QComboBox *>(&w))
        return list->width() >= list->sizeHint().width();
    const QString caption = captionOf(w);
    if (caption.isEmpty()) return true;
    const auto *label = qobject_cast<const QLabel *>(&w);
    if (label && label->wordWrap()) return label->heightForWidth(label->width()) <= label->height();
    return w.width() >= w.minimumSizeHint().width() && w.height() >= w.minimumSizeHint().height();
}

/// What is wrong with a dialog as it stands on the screen: texts without room, tools that its bar has no room
/// for, access keys given twice.
inline QStringList flawsOf(const QDialog &d)
{
    QStringList flaws;
    QString keys;
    for (const QWidget *w : d.findChildren<QWidget *>()) {
        if (!w->isVisible()) continue;
        const QString caption = captionOf(*w),
                      name = d.objectName() + u' ' + w->objectName() + u' ' + caption;
        if (!hasRoom(*w)) flaws << "cut off: " + name;
        if (w->objectName() == "qt_toolbar_ext_button")
            flaws << "bar too short: " + name;
        const QChar key = QV_DOC_CONTROLS::accessKeyOf(caption);
        if (key.isNull()) continue;
        if (keys.contains(key)) flaws << "access key twice: " + name;
        keys += key;
    }
    return flaws;
}

} // namespace tests
