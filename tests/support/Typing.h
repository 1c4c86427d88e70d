#pragma once

#include "support/QtClasses.h"

namespace tests {

/// Types into whatever has the focus in that window, letter by letter; "\t", "\r" and "\x1b" are the keys
/// Tab, Return and Escape. Letters of all four languages may be typed.
inline void type(QWidget &window, const QString &text)
{
    for (const QChar c : text) {
        QWidget *const into = window.focusWidget() ? window.focusWidget() : &window;
        switch (c.unicode()) {
        case u'\t': QTest::keyClick(into, Qt::Key_Tab); break;
        case u'\r': QTest::keyClick(into, Qt::Key_Return); break;
        case u'\x1b': QTest::keyClick(into, Qt::Key_Escape); break;
        default: QTest::sendKeyEvent(QTest::Click, into, Qt::Key(c.toUpper().unicode()), c, {});
        }
    }
}

} // namespace tests
