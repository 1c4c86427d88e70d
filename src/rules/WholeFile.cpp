#include "rules/WholeFile.h"

#include "facade/services/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace QV_DOC_CONTROLS {
namespace {

QString about(const QString &path, const Text &what, const QString &details)
{
    return join(Text{3425, u"A(z) '"}, QDir::toNativeSeparators(path), what, details);
}

} // namespace

std::optional<QString> whyKept(const QString &path)
{
    constexpr int kMostLinks = 40; // as systems have it
    constexpr QFile::Permissions kAnyone = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    QFileInfo there(path);
    for (int links = 0; there.isSymLink() && links < kMostLinks; ++links)
        there.setFile(there.symLinkTarget());
    if (there.isSymLink() || (there.exists() && !there.isFile()))
        return txt(Text{21772, u"ezen a helyen nem közönséges fájl van"});
    if (there.exists() && !(there.permissions() & kAnyone)) return txt(Text{21773, u"a fájl írásvédett"});
    return {};
}

std::optional<QString> writeWhole(const QString &path, const QByteArray &bytes)
{
    if (auto why = whyKept(path)) return why;
    QSaveFile file(path);
    // On a full disk a part may be written without an error, and the flush of commit() says nothing of it.
    const bool isOnDisk =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isOnDisk && file.commit() ? std::nullopt : std::optional(file.errorString());
}

QString notWritable(const QString &path, const QString &details)
{
    return about(path,
                 {21767, u"' fájl nem menthető; ha volt ilyen fájl, a régi tartalma megmaradt. "
                         u"Ellenőrizd a szabad helyet és a jogosultságokat! Részletek: "},
                 details);
}

QString notReadable(const QString &path, const QString &details)
{
    return about(path,
                 {21765, u"' fájl nem olvasható. Ellenőrizd, hogy megvan-e, és van-e hozzá "
                         u"jogosultságod! Részletek: "},
                 details);
}

} // namespace QV_DOC_CONTROLS
