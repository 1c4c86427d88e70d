#include "window/UserSettings.h"

#include "window/HostServices.h"

#include "facade/services/Services.h"

namespace refhost {

bool UserSettings::readBool(const QString &section, const QString &key, bool fallback) const
{
    const QString kept = QV_DOC_CONTROLS::settingsStore().read(settingsName(), section, key, {});
    return kept.isEmpty() ? fallback : kept == u"1";
}

void UserSettings::write(const QString &section, const QString &key, bool on)
{
    QV_DOC_CONTROLS::settingsStore().write(settingsName(), section, key,
                                           on ? QStringLiteral("1") : QStringLiteral("0"));
}

} // namespace refhost
