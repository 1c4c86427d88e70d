#pragma once

namespace QV_DOC_CONTROLS {

/// Pixels per centimetre of a device by its own account of its size; 320 mm when it says 0.
double pixelsPerCentimetre(int pixels, double millimetres);

/// Pixels per millimetre of the screen across, taken once in each thread. Pixels are those that widgets
/// count, whatever the screen's scaling.
double screenPixelsPerMm();

} // namespace QV_DOC_CONTROLS
