#pragma once

#include "facade/services/Text.h"

#include <stdexcept>

namespace QV_DOC_CONTROLS {

/// One kind of resource: a mode of the selection dialog and, with the same number, a page of the setup
/// dialog.
struct ResourceKind {
    Text selectCaption;
    bool groupPane;                             ///< a group list stands left of the grid
};
inline constexpr ResourceKind kResourceKinds[] = { // index = mode
    {{3165, u"Rétegválasztó"}, true},
    {{3154, u"Felirattípus-választó"}, true},
    {{3150, u"Vonaltípus-választó"}, false},
    {{3147, u"Jelkulcstípus-választó"}, true},
    {{3148, u"Színtollválasztó"}, false},
    {{3149, u"Vonaltípus jelkulcsozások"}, false},
};

/// Throws std::out_of_range for a mode outside 0..5.
inline const ResourceKind &resourceKind(int mode)
{
    if (mode < 0 || mode >= int(std::size(kResourceKinds)))
        throw std::out_of_range("QV_DOC_CONTROLS: no resource kind " + std::to_string(mode));
    return kResourceKinds[mode];
}

} // namespace QV_DOC_CONTROLS
