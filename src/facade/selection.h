#pragma once

#include "facade/contract/ZOLW_Doc.h"

namespace QV_DOC_CONTROLS {

/// Picks one layer in a new selection dialog; true = confirmed, `lay` is the chosen one.
bool selectLayer(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLay &lay, bool warnInvisible);
/// Picks several layers; true = confirmed, `layers` are the chosen ones.
bool selectLayers(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tLayArr &layers);
/// Picks a symbol; true = confirmed, `symbol` is the chosen one.
bool selectSymbol(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::tSid &symbol);

} // namespace QV_DOC_CONTROLS
