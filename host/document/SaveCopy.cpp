#include "document/SaveCopy.h"

#include "document/FileCheck.h"

#include "facade/services/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#else
#include <io.h>
#endif

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

[[noreturn]] void refuse(const QString &path, Text why) { throw DocumentError(fileText(path, txt(why))); }

bool onDisk(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) return false;
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0;
#else
    return ::_commit(file.handle()) == 0;
#endif
}

std::filesystem::path systemPath(const QString &path) { return std::filesystem::path(path.toStdU16String()); }

} // namespace

void saveCopy(Database &db, const QString &path)
{
    const QFileInfo target(path), own(db.path());
    if (target.exists() && target.canonicalFilePath() == own.canonicalFilePath())
        refuse(path, {30010, u"' maga a megnyitott rajz, amely minden lépés után mentve van. Adj meg másik "
                             u"nevet a másolatnak!"});
    if (QFileInfo(path + QStringLiteral("-wal")).size() > 0)
        refuse(path,
               {30011, u"' rajz meg van nyitva egy programban. Zárd be ott, vagy adj meg másik nevet!"});
    if (db.depth() > 0)
        refuse(path, {30012, u"' másolat nem készülhet el parancs közben. Fejezd be a parancsot, azután "
                             u"mentsd a másolatot!"});

    const QString part =
        target.absolutePath() + QStringLiteral("/.%1.part").arg(QUuid::createUuid().toString(QUuid::Id128));
    try {
        change(db, QStringLiteral("VACUUM INTO ?"), part);
        std::error_code error;
        if (onDisk(part))
            std::filesystem::rename(systemPath(part), systemPath(target.absoluteFilePath()), error);
        else error = std::make_error_code(std::errc::io_error);
        if (error)
            throw DocumentError(
                fileText(path, join(Text{30013, u"' másolat nem írható a helyére; a régi fájl megmaradt. "
                                                u"Ellenőrizd a jogosultságokat! Részletek: "},
                                    QString::fromStdString(error.message()))));
    } catch (...) {
        QFile::remove(part);
        throw;
    }
}

} // namespace refhost
