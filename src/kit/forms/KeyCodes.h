#pragma once

#include <QtGlobal>

#include <QtCore/qnamespace.h>

class QKeyEvent;

namespace QV_DOC_CONTROLS {

// Keys, buttons and modifiers as published events number them.
inline constexpr qint16 kBackspace = 8, kEnter = 13, kUp = 38, kDown = 40;

qint16 keyCodeOf(const QKeyEvent &event);           ///< the virtual key code; 0 = the key has none
qint16 shiftOf(Qt::KeyboardModifiers modifiers);    ///< 1 Shift, 2 Ctrl, 4 Alt, added up
qint16 buttonsOf(Qt::MouseButtons buttons);         ///< 1 left, 2 right, 4 middle, added up

} // namespace QV_DOC_CONTROLS
