#include "facade/services/Services.h"

#include "facade/services/Language.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include <optional>

namespace QV_DOC_CONTROLS {
namespace {

struct State {
    ZolWDoc::HostServices *host = nullptr;
    QString title;
    std::optional<int> settingsVersion;         ///< of the host's settings service, read once
};
State &state()
{
    static State s;
    return s;
}

/// One .ini file per application in the settings folder.
struct IniStore final : ZolWDoc::SettingsStore {
    static QSettings fileOf(const QString &application)
    {
        return {settingsFolder() + u'/' + application + QStringLiteral(".ini"), QSettings::IniFormat};
    }
    QString read(const QString &application, const QString &section, const QString &key,
                 const QString &fallback) const override
    {
        return fileOf(application).value(section + u'/' + key, fallback).toString();
    }
    void write(const QString &application, const QString &section, const QString &key,
               const QString &value) override
    {
        fileOf(application).setValue(section + u'/' + key, value);
    }
    void remove(const QString &application, const QString &section, const QString &key) override
    {
        fileOf(application).remove(section + u'/' + key);
    }
};

/// The host's store, whose errors are swallowed: a lost window size must not end a dialog. What stands there
/// already is not written again, for writing may cost a trip to the disk.
struct QuietStore final : ZolWDoc::SettingsStore {
    ZolWDoc::SettingsStore *own = nullptr;
    QString read(const QString &application, const QString &section, const QString &key,
                 const QString &fallback) const override
    {
        try {
            return own->read(application, section, key, fallback);
        } catch (...) {
            return fallback;
        }
    }
    void write(const QString &application, const QString &section, const QString &key,
               const QString &value) override
    {
        try {
            if (own->read(application, section, key, value + u'?') == value) return;
            own->write(application, section, key, value);
        } catch (...) {
        }
    }
    void remove(const QString &application, const QString &section, const QString &key) override
    {
        try {
            own->remove(application, section, key);
        } catch (...) {
        }
    }
};

struct UndecidedLanguage final : ZolWDoc::LanguageRuntime {
    int currentLanguage() const override { return 0; }
};

} // namespace

void setHostServices(ZolWDoc::HostServices *host)
{
    state().host = host;
    if (!state().title.isEmpty()) setAppTitle(state().title); // the new host's error reports get it too
}

ZolWDoc::SettingsStore &settingsStore()
{
    static IniStore store;
    static QuietStore quiet;
    quiet.own = state().host ? state().host->store() : nullptr;
    if (!quiet.own) quiet.own = &store;
    return quiet;
}

const ZolWDoc::GlobalSettings &globalSettings()
{
    static const ZolWDoc::GlobalSettings defaults;
    const ZolWDoc::GlobalSettings *own = state().host ? state().host->globals() : nullptr;
    return own ? *own : defaults;
}

ZolWDoc::LanguageRuntime &languageRuntime()
{
    static UndecidedLanguage undecided;
    ZolWDoc::LanguageRuntime *own = state().host ? state().host->language() : nullptr;
    return own ? *own : undecided;
}

ZolWDoc::ColorService *colorService() { return state().host ? state().host->colors() : nullptr; }

ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *doc)
{
    return state().host ? state().host->vectorFonts(doc) : nullptr;
}

QString settingsFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                     QStringLiteral("/QV_DOC_CONTROLS");
    try {
        if (ZolWDoc::EnvironmentService *own = state().host ? state().host->environment() : nullptr)
            folder = own->settingsFolder();
    } catch (...) { // kept layouts and sizes are a comfort, no reason to end a dialog
    }
    QDir().mkpath(folder);
    return folder;
}

bool readBoolSetting(const QString &section, const QString &key, bool fallback)
{
    const ZolWDoc::SettingsService *service = state().host ? state().host->settings() : nullptr;
    if (!service) return fallback;
    if (!state().settingsVersion) state().settingsVersion = service->version();
    if (*state().settingsVersion < 5) return service->readBool(section, key, fallback);
    bool result = fallback;
    service->readBool(section, key, fallback, result);
    return result;
}

QString appTitle() { return state().title; }

void setAppTitle(const QString &title)
{
    state().title = title;
    if (ZolWDoc::ErrorReporter *errors = state().host ? state().host->errors() : nullptr)
        errors->setTitle(title);
}

} // namespace QV_DOC_CONTROLS
