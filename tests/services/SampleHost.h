#pragma once

#include "facade/contract/HostServices.h"
#include "facade/services/Services.h"

#include <QStringList>

namespace tests {

/// A host with a language, settings of that version that are all on, a place for the title of error reports
/// and a store that is broken; the library's for as long as it stands.
struct SampleHost final : ZolWDoc::HostServices, ZolWDoc::SettingsService, ZolWDoc::ErrorReporter,
                          ZolWDoc::SettingsStore {
    struct Runtime final : ZolWDoc::LanguageRuntime {
        int now = 0;
        int currentLanguage() const override { return now; }
    } runtime;
    int settingsVersion;
    mutable int versionsRead = 0;
    mutable QStringList reads;
    QString title;

    explicit SampleHost(int version) : settingsVersion(version) { QV_DOC_CONTROLS::setHostServices(this); }
    ~SampleHost() override { QV_DOC_CONTROLS::setHostServices(nullptr); }
    ZolWDoc::LanguageRuntime *language() override { return &runtime; }
    ZolWDoc::SettingsService *settings() override { return this; }
    ZolWDoc::ErrorReporter *errors() override { return this; }
    ZolWDoc::SettingsStore *store() override { return this; }
    void setTitle(const QString &t) override { title = t; }

    int version() const override { return ++versionsRead, settingsVersion; }
    bool readBool(const QString &section, const QString &key, bool) const override
    {
        return reads << "old " + section + u'/' + key, true;
    }
    void readBool(const QString &section, const QString &key, bool, bool &result) const override
    {
        reads << "new " + section + u'/' + key, result = true;
    }
    QString read(const QString &, const QString &, const QString &, const QString &) const override
    {
        throw 1;
    }
    void write(const QString &, const QString &, const QString &, const QString &) override { throw 1; }
    void remove(const QString &, const QString &, const QString &) override { throw 1; }
};

} // namespace tests
