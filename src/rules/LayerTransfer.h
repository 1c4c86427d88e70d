#pragma once

#include "facade/contract/Records.h"

#include <span>

namespace QV_DOC_CONTROLS {

/// The layers of `to` that differ in one of `parts` from the layer of the same number in `from`, with its
/// values of these; those alike already and those without such a layer are left out.
ZolWDoc::tLayArr takingOver(std::span<const ZolWDoc::tLay> from, std::span<const ZolWDoc::tLay> to,
                            std::span<bool ZolWDoc::tLay::*const> parts);

} // namespace QV_DOC_CONTROLS
