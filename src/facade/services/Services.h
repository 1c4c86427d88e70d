#pragma once

#include "facade/contract/HostServices.h"

namespace QV_DOC_CONTROLS {

/// The program's services; each member the host left out has a default: settings in the per-user
/// configuration folder, no boolean settings, three symbol slots, no vector fonts.
void setHostServices(
    ZolWDoc::HostServices *host); ///< null = defaults only; the host's, outlives the library's objects

ZolWDoc::SettingsStore &settingsStore();
const ZolWDoc::GlobalSettings &globalSettings();
ZolWDoc::LanguageRuntime &languageRuntime();
ZolWDoc::ColorService *colorService();              ///< null = none
ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *doc); ///< null = none
QString settingsFolder();                           ///< exists when returned, if it could be made

/// A boolean setting of the host. The service's version is read at the first call and remembered for the
/// process: below 5 its older read is used, from 5 on the newer one.
bool readBoolSetting(const QString &section, const QString &key, bool fallback);

QString appTitle();                                 ///< title of message boxes; empty until set
void setAppTitle(const QString &title); ///< library-wide; the host's error reports get the same title
inline QString productName() { return QStringLiteral("ZOL"); } ///< title of the grid managers' message boxes

} // namespace QV_DOC_CONTROLS
