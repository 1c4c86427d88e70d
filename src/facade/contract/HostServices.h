#pragma once

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <QObject>
#include <QStringList>

#include <optional>

/// What the library asks of the program around it, beside the document. Every service has a default in the
/// library; a host replaces those it cares about. All belong to the host and outlive every library object.
namespace ZolWDoc {

struct ZOLW_Doc;

/// The language of the program. Raises LanguageChanged after currentLanguage() has changed.
class LanguageRuntime : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    virtual int currentLanguage() const = 0;            ///< locale identifier, e.g. 1038; 0 = not decided
    virtual int componentLanguage(const QString &) const
    {
        return currentLanguage();
    } ///< argument: the component
signals:
    void LanguageChanged();                             // published spelling
};

/// The user's boolean settings. Below version 5 only the older read is called, from 5 on only the newer one.
struct SettingsService {
    virtual ~SettingsService() = default;
    virtual int version() const = 0;                    ///< asked once and remembered
    virtual bool readBool(const QString &section, const QString &key, bool fallback) const = 0;
    virtual void readBool(const QString &section, const QString &key, bool fallback, bool &result) const
    {
        result = readBool(section, key, fallback);
    }
};

/// The per-user store of texts; errors are swallowed by the library.
struct SettingsStore {
    virtual ~SettingsStore() = default;
    virtual QString read(const QString &application, const QString &section, const QString &key,
                         const QString &fallback) const = 0;
    virtual void write(const QString &application, const QString &section, const QString &key,
                       const QString &value) = 0;
    virtual void remove(const QString &application, const QString &section, const QString &key) = 0;
};

/// Settings that hold for every document of the program.
struct GlobalSettings {
    virtual ~GlobalSettings() = default;
    virtual int symbolSlots() const { return 3; }       ///< symbolizations that one line type can carry
    virtual double thicknessMin() const { return 0.0; } ///< of line types, millimetres
    virtual double thicknessMax() const { return 10.0; }///< of line types, millimetres
};

struct EnvironmentService {
    virtual ~EnvironmentService() = default;
    virtual QString settingsFolder() const = 0;         ///< where grid layouts are kept; created on first use
};

/// Shows the host's own error reports; kept in step with the application title.
struct ErrorReporter {
    virtual ~ErrorReporter() = default;
    virtual void setTitle(const QString &title) = 0;
};

struct ColorService {
    virtual ~ColorService() = default;
    virtual std::optional<Palette> palette25() const = 0; ///< of the older 2.5 format; empty = not available
};

/// A font whose characters are strokes.
struct VectorFont {
    struct Entry {
        qint32 code = 0;                                ///< 0..65535; of letters, Unicode
        QString name;                                   ///< as offered in lists
    };
    virtual ~VectorFont() = default;
    virtual QString name() const = 0;
    virtual std::vector<Entry> entries() const = 0;     ///< of all its characters
    virtual Glyph glyph(qint32 code) const = 0;         ///< without strokes when there is none
};
struct VectorFontProvider {
    virtual ~VectorFontProvider() = default;
    virtual QStringList names() const = 0;              ///< in the order of lists
    virtual const VectorFont *find(const QString &name) const = 0;  ///< null = unknown; stays the provider's
};

/// All services of one program. A null answer stands for the library's default.
struct HostServices {
    virtual ~HostServices() = default;
    virtual LanguageRuntime *language() { return nullptr; }
    virtual SettingsService *settings() { return nullptr; }
    virtual SettingsStore *store() { return nullptr; }
    virtual GlobalSettings *globals() { return nullptr; }
    virtual EnvironmentService *environment() { return nullptr; }
    virtual ErrorReporter *errors() { return nullptr; }
    virtual ColorService *colors() { return nullptr; }
    virtual VectorFontProvider *vectorFonts(const ZOLW_Doc *)
    {
        return nullptr;
    } ///< of that document; may be null
};

} // namespace ZolWDoc
