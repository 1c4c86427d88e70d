#pragma once

#include <functional>

class QDialog;

namespace QV_DOC_CONTROLS {

/// Runs a dialog as QDialog::exec() does, but one that is not the heap's: when its owner goes meanwhile, it is
/// closed and outlives it. `shown` is called once it is shown, before it waits for the user; what was closed
/// by then waits no more.
int runModal(QDialog &dialog, const std::function<void()> &shown = {});

/// Closes the modal windows from the innermost to `last`, message boxes included, asking none of them.
void closeDownTo(QDialog &last);

} // namespace QV_DOC_CONTROLS
