#pragma once

class QWidget;

namespace QV_DOC_CONTROLS {

/// The wheel then edits the box or list only while it has the focus; otherwise it scrolls what is around it.
void quietWheel(QWidget &box);

} // namespace QV_DOC_CONTROLS
