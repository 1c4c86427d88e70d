#pragma once

class QWidget;

namespace QV_DOC_CONTROLS {

/// The control beside `control` in its container that has the tab index; null = there is none.
///
/// A control's tab index is its property "TabIndex", if it has one; otherwise its place, from 0, in the tab
/// order of the container's controls that Tab reaches. The first that has it counts.
QWidget *siblingAt(const QWidget &control, int tabIndex);

} // namespace QV_DOC_CONTROLS
