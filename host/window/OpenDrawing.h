#pragma once

#include "document/SqliteDoc.h"

#include <QTemporaryDir>

namespace refhost {

/// A drawing that is open. A drawing that was never saved lives in a temporary file: every change is
/// durable there too, but it goes with the object.
class OpenDrawing {
public:
    static std::unique_ptr<OpenDrawing> fresh();
    static std::unique_ptr<OpenDrawing> sample();
    static std::unique_ptr<OpenDrawing> file(const QString &path);
    /// A drawing that somebody else has made in that folder, e.g. by importing.
    static std::unique_ptr<OpenDrawing> unsaved(std::unique_ptr<QTemporaryDir> folder, const QString &name);
    static std::unique_ptr<QTemporaryDir> newFolder(); ///< throws DocumentError when there is no room
    static QString pathIn(const QTemporaryDir &);   ///< where the file of such a drawing is expected

    SqliteDoc &doc() { return *m_doc; }
    QString name() const;                           ///< for titles; without folder
    bool isUnsaved() const { return m_folder != nullptr; }
    void touch() { m_keepsWork = true; }            ///< elements were changed
    bool hasUnsavedWork() const;                    ///< it would be lost with the temporary file
    bool isUntouched() const
    {
        return m_isNew && !hasUnsavedWork();
    } ///< new, empty, and nothing was done in it
    /// Called when a table is written to or a redraw is wanted: read later, not within the call.
    void setWatcher(std::function<void()>);
    void saveAs(const QString &path); ///< goes on in the new file; throws DocumentError and stays as it was

private:
    OpenDrawing() = default;
    std::vector<quint64> state() const;
    void watch();
    std::unique_ptr<QTemporaryDir> m_folder;        ///< of an unsaved drawing; outlives m_doc
    std::unique_ptr<SqliteDoc> m_doc;
    QString m_name;                                 ///< of an unsaved drawing
    std::vector<quint64> m_begun;                   ///< revisions when it was new
    std::function<void()> m_watcher;
    bool m_isNew = false;
    bool m_keepsWork = false;                       ///< elements were changed, or they come from an import
};

} // namespace refhost
