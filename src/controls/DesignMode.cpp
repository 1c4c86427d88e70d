#include "controls/DesignMode.h"

namespace QV_DOC_CONTROLS {

static bool (*s_test)(const QWidget &) = nullptr;

bool isDesigned(const QWidget &control) { return s_test && s_test(control); }
void setDesignedTest(bool (*test)(const QWidget &)) { s_test = test; }

} // namespace QV_DOC_CONTROLS
