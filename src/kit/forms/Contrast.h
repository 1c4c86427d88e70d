#pragma once

#include <QColor>

namespace QV_DOC_CONTROLS {

/// How well one colour is read on the other, 1 (same) to 21 (black on white): the ratio of WCAG 2.1, 1.4.3.
double contrastOf(QColor a, QColor b);

QColor blackOrWhiteOn(QColor ground);           ///< whichever is read better there

} // namespace QV_DOC_CONTROLS
