#pragma once

#include <QObject>
#include <QString>

namespace QV_DOC_CONTROLS {

/// Locale identifiers of the languages that have a string table.
enum LanguageId { Hungarian = 1038, Romanian = 1048, Vietnamese = 1066, English = 2057 };

/// Sets the library's language. Accepted as they are: 1038, 1048, 2057, 1066, 100000 and 2074; any other
/// identifier silently becomes Hungarian. 100000 and 2074 have no table and show Hungarian; they stay
/// accepted on purpose.
void setLanguage(int localeId, const QString &component);
int currentLanguage();                          ///< 0 until first set

/// Loads the string tables once, from the library itself. With QV_DOC_CONTROLS_DEVELOPMENT in the
/// environment, texts of a file "QV_DOC_CONTROLS.res" beside the application (lines: locale, identifier,
/// text; tab-separated) come first. Sets Hungarian when no language has been set.
void ensureResourcesLoaded();

/// Adds a program's own texts, a resource folder or directory with hu.tsv, ro.tsv, vi.tsv and en.tsv.
void addStringTables(const QString &folder);
QString languageNameOf(int localeId);           ///< in that language itself, for menus

/// Passes the host's language change on, after the library's own language has followed it.
class LanguageHub : public QObject {
    Q_OBJECT
public:
    static LanguageHub &instance();
    void connectToRuntime();                    ///< to the host's present one; LanguageChanged comes from it
    void takeOver(); ///< the runtime's language becomes the library's, when it has one
signals:
    void LanguageChanged();                     // published spelling
private:
    LanguageHub() = default;
    QObject *m_runtime = nullptr;               ///< the one connected to; the host's
};

} // namespace QV_DOC_CONTROLS
