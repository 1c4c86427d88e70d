#include "kit/forms/KeyCodes.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace QV_DOC_CONTROLS {
namespace {

struct KeyRow {
    int key;
    qint16 code;
};
constexpr KeyRow kKeys[] = { // table
    {Qt::Key_Backspace, kBackspace}, {Qt::Key_Tab, 9}, {Qt::Key_Backtab, 9}, {Qt::Key_Return, kEnter},
    {Qt::Key_Enter, kEnter}, {Qt::Key_Shift, 16}, {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19}, {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35}, {Qt::Key_Home, 36}, {Qt::Key_Left, 37}, {Qt::Key_Up, kUp},
    {Qt::Key_Right, 39}, {Qt::Key_Down, kDown}, {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},
    {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145}, {Qt::Key_Semicolon, 186}, {Qt::Key_Plus, 187},
    {Qt::Key_Equal, 187}, {Qt::Key_Comma, 188}, {Qt::Key_Minus, 189}, {Qt::Key_Period, 190},
    {Qt::Key_Slash, 191},
};
constexpr KeyRow kKeypad[] = { // the decimal key types a point or a comma
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Period, 110},
    {Qt::Key_Comma, 110},    {Qt::Key_Slash, 111},
};

bool isBetween(int key, int first, int last) { return key >= first && key <= last; }

} // namespace

qint16 keyCodeOf(const QKeyEvent &event)
{
    const int key = event.key();
    if (event.modifiers() & Qt::KeypadModifier) {
        if (isBetween(key, Qt::Key_0, Qt::Key_9)) return qint16(key - Qt::Key_0 + 96);
        if (const auto row = std::ranges::find(kKeypad, key, &KeyRow::key); row != std::end(kKeypad))
            return row->code;
    }
    if (key == Qt::Key_Space || isBetween(key, Qt::Key_0, Qt::Key_9) || isBetween(key, Qt::Key_A, Qt::Key_Z))
        return qint16(key);
    if (isBetween(key, Qt::Key_F1, Qt::Key_F24)) return qint16(key - Qt::Key_F1 + 112);
    const auto row = std::ranges::find(kKeys, key, &KeyRow::key);
    return row == std::end(kKeys) ? qint16(0) : row->code;
}

qint16 shiftOf(Qt::KeyboardModifiers modifiers)
{
    return qint16((modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0)
                  | (modifiers & Qt::AltModifier ? 4 : 0));
}

qint16 buttonsOf(Qt::MouseButtons buttons)
{
    return qint16((buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0)
                  | (buttons & Qt::MiddleButton ? 4 : 0));
}

} // namespace QV_DOC_CONTROLS
