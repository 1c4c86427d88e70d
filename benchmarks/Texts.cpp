#include "Figures.h"

#include "facade/services/Language.h"
#include "facade/services/Text.h"

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

// Looked up for every caption of every form at a language change: a few hundred texts must stay far below a
// frame.
static const bool s_lookUp = figure("text.lookup", "ns", atMost(500), [] {
    ensureResourcesLoaded();
    setLanguage(English, QStringLiteral("qvbench"));
    return nanosecondsOf([] { keep(txt(Text{3411, u"Sorszám"})); });
});
