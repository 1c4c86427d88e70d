#pragma once

#include "facade/services/Services.h"
#include "support/MemoryStore.h"

namespace tests {

/// A program whose only service is a settings store in memory: as long as it stands, no setting is the
/// user's.
struct OwnStore : ZolWDoc::HostServices {
    MemoryStore kept;
    OwnStore() { QV_DOC_CONTROLS::setHostServices(this); }
    ~OwnStore() override { QV_DOC_CONTROLS::setHostServices(nullptr); }
    ZolWDoc::SettingsStore *store() override { return &kept; }
};

} // namespace tests
