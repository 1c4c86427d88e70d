#pragma once

#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

enum class Check : qint8 {
    No,
    Toggle,                                     ///< on or off by itself
    OneOf,                                      ///< one of the tools of its band is on
};

/// One tool on one band: a row of data. A tool that stands on several bands has a row for each; one of them
/// has a caption and says everything, the others only the place.
struct Tool {
    const char *band;                           ///< published
    const char *name;                           ///< published; "-" = a line between tools
    Text caption{};
    const char *icon = "";                      ///< a row of the icon table
    const char *keys = "";                      ///< as QKeySequence reads them, several with "; " between
    Check check = Check::No;
    const char *opens = "";                     ///< the band that it pops up
};
inline constexpr const char *kToolLine = "-";

/// What a tool does, when it can be used and whether it is on: a row of an owner's command table.
template <class Owner> struct ToolCommand {
    const char *tool;
    void (Owner::*run)();
    bool (Owner::*enabled)() const = nullptr;   ///< null = always
    bool (Owner::*checked)() const = nullptr;   ///< of a tool that is on or off
};

} // namespace QV_DOC_CONTROLS
