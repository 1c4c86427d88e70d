#pragma once

class QWidget;

namespace QV_DOC_CONTROLS {

/// Whether a control stands on a form that is being designed, where it shows its properties and does not
/// work. In the designer's preview of a form it works as in a program.
bool isDesigned(const QWidget &control);
void setDesignedTest(bool (*test)(const QWidget &)); ///< the designer's; null = nothing is designed here

} // namespace QV_DOC_CONTROLS
