#include "document/FileCheck.h"

#include "document/Schema.h"

#include "facade/services/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QTemporaryDir>
#include <QUrl>
#include <QUuid>
#include <QtEndian>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr int kHeaderSize = 100;
constexpr int kUserVersionAt = 60;
constexpr int kApplicationIdAt = 68;

[[noreturn]] void refuse(const QString &path, Text why) { throw DocumentError(fileText(path, txt(why))); }

[[noreturn]] void refuseDamaged(const QString &path, const QString &details)
{
    throw DocumentError(
        fileText(path, join(Text{30007, u"' rajz sérült, ezért nem nyitottam meg. Állítsd vissza a "
                                        u"biztonsági mentésből! Részletek: "},
                            details)));
}

QByteArray headerOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isDir())
        refuse(path, {30002, u"' fájl nem található. Ellenőrizd a nevét és a mappáját!"});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, {30008, u"' fájl nem olvasható. Ellenőrizd a jogosultságokat!"});
    return file.read(kHeaderSize);
}

void requireOurHeader(const QString &path)
{
    const QByteArray header = headerOf(path);
    if (header.size() < kHeaderSize || !header.startsWith(QByteArray("SQLite format 3\0", 16)))
        refuse(path, {30006, u"' fájl nem rajz. Válassz .qvd rajzot, vagy használd az importálást!"});
    if (qFromBigEndian<quint32>(header.constData() + kApplicationIdAt) != kApplicationId)
        refuse(path, {30005, u"' fájl egy másik program adatbázisa, nem rajz. Válassz .qvd rajzot!"});
    const auto version = qFromBigEndian<qint32>(header.constData() + kUserVersionAt);
    if (version > SqliteDoc::kVersion)
        throw DocumentError(fileText(
            path, join(Text{30003, u"' rajzot a program újabb változata mentette (fájlváltozat: "},
                       int(version), Text{30004, u"). Frissítsd a programot, és azzal nyisd meg!"})));
}

/// What SQLite says of the file, "ok" for a sound one. Opened so that SQLite writes nothing and takes no
/// lock.
QString verdictOn(const QString &path)
{
    const QString name = QUuid::createUuid().toString();
    QString verdict;
    {
        auto db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(fileUri(path) + QStringLiteral("?immutable=1"));
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
        if (db.open()) {
            QSqlQuery q(db);
            verdict = q.exec(QStringLiteral("PRAGMA quick_check(1)")) && q.next()
                          ? q.value(0).toString()
                          : q.lastError().databaseText();
            const QStringList there = db.tables(QSql::AllTables);
            for (const QString &table : schemaTables())
                if (verdict == QLatin1String("ok") && !there.contains(table)) verdict = table;
        } else {
            verdict = db.lastError().databaseText();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return verdict.isEmpty() ? QStringLiteral("?") : verdict;
}

} // namespace

QString fileUri(const QString &path)
{
    const QByteArray place = QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath(), "/:");
    return QStringLiteral("file:") + QString::fromLatin1(place);
}

QString fileText(const QString &path, const QString &rest)
{
    return join(Text{30000, u"A(z) '"}, path, rest);
}

void requireSoundDrawing(const QString &path)
{
    requireOurHeader(path);
    QString verdict;
    const QString wal = path + QStringLiteral("-wal");
    if (QFileInfo(wal).size() > 0) {
        // After a crash, or while another program has it open, part of the drawing lies in the log: judge a
        // copy.
        QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("copy.qvd"));
        if (!QFile::copy(path, copy) || !QFile::copy(wal, copy + QStringLiteral("-wal")))
            throw DocumentError(join(
                Text{30490, u"Nem hozható létre ideiglenes fájl. Ellenőrizd a szabad helyet! Részletek: "},
                folder.path()));
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        {
            const QString name = QUuid::createUuid().toString();
            {
                auto db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
                db.setDatabaseName(copy);
                if (db.open()) QSqlQuery(db).exec(QStringLiteral("PRAGMA journal_mode=DELETE"));
            }
            QSqlDatabase::removeDatabase(name);
        }
        verdict = verdictOn(copy);
    } else {
        verdict = verdictOn(path);
    }
    if (verdict != QLatin1String("ok")) refuseDamaged(path, verdict);
}

} // namespace refhost
