#pragma once

namespace QV_DOC_CONTROLS {

/// What a manager of resources is opened for.
enum enumSetupMode {                            // published spelling
    MODE_SELECT = 1,                            ///< to pick one; editing is possible beside it
    MODE_EDIT = 2,
    MODE_SELECT_ONLY = 3,                       ///< to pick one of what there is
};

} // namespace QV_DOC_CONTROLS
