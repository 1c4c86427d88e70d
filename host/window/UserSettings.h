#pragma once

#include "facade/contract/HostServices.h"

namespace refhost {

/// The user's boolean settings, kept with those of the program.
struct UserSettings final : ZolWDoc::SettingsService {
    int version() const override { return 5; }
    bool readBool(const QString &section, const QString &key, bool fallback) const override;
    using SettingsService::readBool;
    void write(const QString &section, const QString &key, bool on);
};

/// The library opens the managers of single tables instead of its newer dialogs.
inline constexpr char kSetup[] = "setup", kOldStyle[] = "OldStyleSetupForms";

} // namespace refhost
